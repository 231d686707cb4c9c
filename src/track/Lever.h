#pragma once

// The lever under the user's hand. A drag moves the picture and iLeverLevel (track/OutputImage);
// the motor follows at the next tick. The lever does not snap to its level.
//
// It can be dragged in Manual mode while the emergency stop is not latched, and by the left button
// alone. What sets the power moves it too, wherever it stands: SetPowerLever.

namespace glidetrak {

/// The emergency stop's latch; false at start-up. It locks the lever and nothing else. Written by
/// track/EmergencyStop alone, whose header tells its states.
inline bool bEmergencyStop = false;

/// Shows whether the lever can be dragged; writes the pointer only when it differs.
void ShowLeverPointer();

/// A drag begins: the pointer of a drag.
void imgLever_MouseDown(int iButton, float fX, float fY);

/// fY is the place inside the picture, in twips.
void imgLever_MouseMove(int iButton, float fX, float fY);

/// The pointer as the mode has it, whatever the latch: a button that was held when the emergency
/// stop came leaves the pointer of a free lever until SetControlStates runs again.
void imgLever_MouseUp(int iButton, float fX, float fY);

}  // namespace glidetrak
