#pragma once

// The state of the one program that the editor holds.

#include <QString>

namespace glidetrak {

/// Station path of the program's file; empty when it has none.
inline QString sProgramFile;

/// The editor holds changes that are not saved.
inline bool bProgramDirty = false;

/// Form_Load is under way: a changed text counts as no change.
inline bool bLoading = false;

/// The close prompt is saving the program; cleared once a write has ended. Read by nobody.
inline bool bSaveBeforeExit = false;

}  // namespace glidetrak
