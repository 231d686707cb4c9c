#pragma once

// Control Programs on disk. A file holds the text of the editor and nothing else: one byte a
// character in the code page, line ends as the editor holds them (CR LF). Bytes are never judged
// here; the compile pass finds fault with them.

#include <QString>

namespace glidetrak {

/// The one file slot stands open, left so by a write that broke off: nothing can be opened any more
/// until the process ends. Deliberate. An open that is refused leaves it free. Written by
/// WriteProgramFile alone.
inline bool bFileSlotOpen = false;

/// Loads a program; the old text goes only after the new one was read. A file that is not named
/// .GTP is never written back: the program takes the next free .GTP name beside it. On false
/// nothing has changed and nothing was shown. bProgramDirty is the caller's.
void LoadProgramFile(const QString& sPath, bool& bSuccess);

/// Deletes the file and writes it anew: no temporary file and no backup. On false bProgramDirty
/// keeps its value, and unless it was the deletion that failed the old file is gone.
void WriteProgramFile(const QString& sPath, const QString& sText, bool& bSuccess);

/// The path that a command line names, its switches gone: "" unless it holds ".GTP" and the file
/// is there. Double quotes are taken out wherever they stand.
QString ResolveFileArgument(const QString& sText);

/// The path with its last four characters replaced by ".GTP", or by 1, 2, 3... and ".GTP" while
/// that name is taken.
QString sGetNextFreeRTPFile(const QString& sPath);

/// Up to and including the last backslash; of several files in one path, joined by NUL, what
/// stands ahead of the first NUL. Always ends in a backslash.
QString GetFolderOfPath(const QString& sPath);

/// True for what is there and is no folder.
bool FileExists(const QString& sPath);

/// 0 writable, 1 read-only (and the user was told), 2 unknown. Callers treat 1 and 2 alike.
int IsFileReadOnly(const QString& sPath);

/// What a file is read through: throws while the slot stands open.
QByteArray ReadThroughSlot(const QString& sPath);

/// The window's title with a file's name in it, upper-cased, and without.
void ShowFileInTitle(const QString& sName);
void ShowPlainTitle();

}  // namespace glidetrak
