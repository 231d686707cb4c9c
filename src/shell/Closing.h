#pragma once

// Shut-down is the unloading of the main form.

namespace glidetrak {

/// The close confirmation, for any kind of close, and the saving of the window's place. A program
/// is stopped first and stays stopped when the user says No.
void Form_QueryUnload(bool& bCancel);

/// Lets go of the rig and ends the process at once.
void Form_Unload();

/// The machine is about to sleep, and nobody would watch the rig: the vehicle stops, and a program
/// with it. Nothing once shut-down has begun, behind whose last byte none may come.
void Form_Suspend();

}  // namespace glidetrak
