#pragma once

#include <QString>

namespace glidetrak {

/// The name that is meant by what was typed for one: without what the system's users put around a
/// name and no file's name holds.
QString BareName(const QString& sTyped);

/// Whether the toolkit would take the name for something else than the one file that it names here.
bool IsMisreadByToolkit(const QString& sName);

}  // namespace glidetrak
