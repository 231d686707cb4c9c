#pragma once

// The keys of a running program; with no program running they do nothing and keys pass on. A key
// code is a virtual key code, a character code one of the code page; 0 swallows the key. Space
// always stops and is never read by GET.

namespace glidetrak {

/// The key of the form, of txtProgram and of txtFocusGrab.
void Form_KeyDown(int& iKeyCode);
void Form_KeyUp(int& iKeyCode);

void Form_KeyPress(int& iCharCode);

/// Also that of txtFocusGrab.
void txtProgram_KeyPress(int& iCharCode);

}  // namespace glidetrak
