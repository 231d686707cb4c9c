#pragma once

// The behaviour of the program editor. It is a plain text box: what the user types stays as typed.

#include <QString>

namespace glidetrak {

/// txtProgram holds the focus. Written by its GotFocus and LostFocus; a reset program clears it.
inline bool bEditorHasFocus = false;

/// The selection kept from the last loss of focus. GotFocus puts it back when start and length are
/// both non-zero, so never one that starts at the first character; it also survives an insertion
/// from the picker, which empties the text alone. Both deliberate. Written by LostFocus and cleared
/// by a reset program.
inline qint32 lSavedSelStart = 0;
inline qint32 lSavedSelLength = 0;
inline QString sSavedSelText;  ///< stored and cleared; read by nobody

/// Empties the editor and puts the program's state back to its beginning; reads the keywords. The
/// emptied text fires Change like any other, so that callers clear bProgramDirty after it. Of the
/// direction only the variable is reset: nothing is sent to the rig.
void ResetProgramState();

void txtProgram_Change();
void txtProgram_GotFocus();
void txtProgram_LostFocus();
void txtProgram_DblClick();

/// Throws away the keys that the focus keeper received.
void txtFocusGrab_LostFocus();

}  // namespace glidetrak
