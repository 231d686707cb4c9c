#pragma once

// The state of the one program that the editor holds.

#include <QString>

namespace glidetrak {

/// Station path of the program's file; empty when it has none. ResetProgramState, New and a pre-set
/// empty it; LoadProgramFile and Save As set it.
inline QString sProgramFile;

/// The editor holds changes that are not saved. Set by a changed text (txtProgram_Change); cleared
/// by New, a pre-set, a load, a save that was written, and at the end of start-up.
inline bool bProgramDirty = false;

/// Form_Load, which alone writes it, is under way: a changed text counts as no change.
inline bool bLoading = false;

/// The close prompt, which sets it, is saving the program; cleared by the prompt's beginning and
/// once a write has ended. Read by nobody.
inline bool bSaveBeforeExit = false;

}  // namespace glidetrak
