#include "language/KeyCapture.h"

#include "common/SharedState.h"
#include "common/UnicodeFunctions.h"
#include "language/RunControl.h"
#include "language/RunState.h"

namespace glidetrak {

namespace {

constexpr int iSpace = 32;

/// Digits and letters of the main keys; and 97 to 122, where the numeric pad and the function keys
/// lie, which so yield letters: numeric-pad 1 gives A, F1 gives P. Deliberate.
bool IsCaptured(int iKeyCode) {
  return (iKeyCode >= 48 && iKeyCode <= 57) || (iKeyCode >= 65 && iKeyCode <= 90) ||
         (iKeyCode >= 97 && iKeyCode <= 122);
}

}  // namespace

void Form_KeyDown(int& iKeyCode) {
  if (!bProgramRunning) return;
  const int iPressed = iKeyCode;
  iKeyCode = 0;
  if (IsCaptured(iPressed)) sKeyPressed = UpperCase(CharFromCode(iPressed));
  if (iPressed == iSpace) StopProgram();
}

/// Takes any character, and so overwrites what the key's code said: the only road of punctuation
/// to GET.
void Form_KeyPress(int& iCharCode) {
  if (!bProgramRunning) return;
  const int iPressed = iCharCode;
  iCharCode = 0;
  if (iPressed == iSpace) {
    StopProgram();
  } else {
    sKeyPressed = UpperCase(CharFromCode(iPressed));
  }
}

void Form_KeyUp(int& iKeyCode) {
  if (bProgramRunning && iKeyCode == iSpace) iKeyCode = 0;
}

void txtProgram_KeyPress(int& iCharCode) {
  if (!bProgramRunning || iCharCode != iSpace) return;
  iCharCode = 0;
  StopProgram();
}

}  // namespace glidetrak
