#pragma once

// Control Programs on disk. A file holds the text of the editor and nothing else: one byte a
// character in the code page, line ends as the editor holds them (CR LF). Bytes are never judged
// here; the compile pass finds fault with them.

#include <QString>

namespace glidetrak {

/// The one file slot stands open: nothing else can be opened until the process ends.
inline bool bFileSlotOpen = false;

/// Loads a program; the old text goes only after the new one was read. A file that is not named
/// .GTP is never written back: the program takes the next free .GTP name beside it. On false
/// nothing has changed and nothing was shown. bProgramDirty is the caller's.
void LoadProgramFile(const QString& sPath, bool& bSuccess);

/// The path that a command line names, its switches gone: "" unless it holds ".GTP" and the file
/// is there. Double quotes are taken out wherever they stand.
QString ResolveFileArgument(const QString& sText);

/// True for what is there and is no folder.
bool FileExists(const QString& sPath);

/// The path with its last four characters replaced by ".GTP", or by 1, 2, 3... and ".GTP" while
/// that name is taken.
QString sGetNextFreeRTPFile(const QString& sPath);

/// The name behind the last backslash, upper-cased, and the program's name.
void ShowFileInTitle(const QString& sPath);

}  // namespace glidetrak
