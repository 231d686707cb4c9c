#pragma once

#include <QFileDialog>

namespace glidetrak {

/// Lets the list of a file dialog write sizes and dates in the toolkit's present locale. Left alone
/// it writes them in the system's, whatever language the station speaks.
void LocaliseColumns(QFileDialog& box);

}  // namespace glidetrak
