#pragma once

#include <string>

namespace glidetrak {

/// Folder of the executable, without a backslash at its end.
std::wstring ExecutableFolderPath();

}  // namespace glidetrak
