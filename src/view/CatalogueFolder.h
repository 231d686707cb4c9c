#pragma once

#include <QString>

namespace glidetrak {

/// Where the toolkit's own texts of other languages are: the toolkit's folder on the system, or
/// what was compiled in where the system has no such toolkit.
QString CatalogueFolder();

}  // namespace glidetrak
