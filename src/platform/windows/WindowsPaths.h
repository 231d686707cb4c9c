#pragma once

// Between the station's paths, which are Windows' own, and what the system's calls and the toolkit
// take.

#include <QString>

namespace glidetrak {

/// The path as the toolkit and its dialogs write it: with slashes, and as the disk spells it as far
/// as it is there. A path of a share keeps its spelling.
QString ToolkitPath(const QString& sStationPath);
QString StationPathOf(const QString& sToolkitPath);

/// The path from the root as the system's calls take it, beyond 260 characters too. "" for a path
/// that no call takes, as one with a character 0 in it.
std::wstring CallPath(const QString& sStationPath);

/// What stands behind the program's name on the command line that the system handed over.
QString BehindProgramName(const QString& sCommandLine);

}  // namespace glidetrak
