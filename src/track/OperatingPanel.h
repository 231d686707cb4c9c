#pragma once

// The operating panel, with which a user drives the track: mode and direction buttons, the lever,
// the emergency stop with its reset, the timing and impact toggles. It is a view of the state
// variables; SetControlStates brings every element in line with them.

namespace glidetrak {

/// The emergency stop is latched: the lever is locked until its reset, and nothing else is. A
/// program may run, and its power reaches the rig.
inline bool bEmergencyStop = false;

/// State of the two toggles.
inline bool bTimerToggle = false;
inline bool bImpactToggle = false;

/// One of the four mode and direction buttons wears its hover picture.
inline bool bButtonHover = false;

/// Cheap when nothing has changed; may be called at any time. A change of mode seen here stops the
/// motor.
void SetControlStates();

// The mode buttons do nothing while a program runs, the direction buttons nothing in Program mode.
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

// The lever drag, in Manual mode and not while the emergency stop is latched. It moves the picture
// and iLeverLevel; the motor follows at the next tick. The lever does not snap to its level.
void imgLever_MouseDown(int iButton, float fX, float fY);
void imgLever_MouseMove(int iButton, float fX, float fY);
void imgLever_MouseUp(int iButton, float fX, float fY);

/// Acts on the press of any button.
void btnEmergency_MouseDown(int iButton, float fX, float fY);
void tmrEmergencyFlash_Timer();
void btnRstStop_Click();

void picTogTimer_Click();
void btnTmrReset_Click();
void cmdTimerReset_Click();

/// Switching the toggle off only changes its picture: the impact display, once on, stays on.
void picTogImpact_Click();

}  // namespace glidetrak
