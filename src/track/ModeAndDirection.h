#pragma once

// The mode and direction buttons of the operating panel, and SetControlStates, which brings the
// whole panel in line with the state variables, of which it is a view: mode, direction, program
// box, and the lever's pointer.

namespace glidetrak {

/// One of the four mode and direction buttons wears its hover picture. Set by their mouse moves,
/// cleared by that of imgControls; one flag for all four.
inline bool bButtonHover = false;

/// Cheap when nothing has changed; may be called at any time. A change of mode seen here stops the
/// motor.
void SetControlStates();

// The mode buttons do nothing while a program runs, the direction buttons nothing in Program mode.
// Neither looks at the emergency stop, nor the direction buttons at the power.
void cmdManual_Click();
void cmdProgram_Click();
void cmdForward_Click();
void cmdBackward_Click();

// Hover. Leaving a button for the panel takes the hover picture back.
void cmdManual_MouseMove(int iButton, float fX, float fY);
void cmdProgram_MouseMove(int iButton, float fX, float fY);
void cmdForward_MouseMove(int iButton, float fX, float fY);
void cmdBackward_MouseMove(int iButton, float fX, float fY);
void imgControls_MouseMove(int iButton, float fX, float fY);

}  // namespace glidetrak
