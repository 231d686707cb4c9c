#pragma once

// The emergency stop: its button, its flash and its reset. It stops the vehicle and the program at
// once, and leaves a latch (bEmergencyStop) that locks the lever until the reset.
//
//   state     what holds
//   Idle      bEmergencyStop false, btnEmergency at rest, tmrEmergencyFlash off. The lever is
//             Manual mode's
//   Latched   bEmergencyStop true, btnEmergency flashing by tmrEmergencyFlash. The lever cannot be
//             dragged, and its pointer says so. Nothing else is locked: mode and direction buttons,
//             both toggles, Run and Trace act as ever, a program may be started, and the power that
//             it sets reaches the rig and moves the lever's picture
//
//   Idle -> Latched      a press on btnEmergency, F12 or Pause: power 0, bProgramRunning off
//                        [btnEmergency_MouseDown]
//   Latched -> Latched   another press: power and program stop again [btnEmergency_MouseDown]
//   Latched -> Idle      the reset alone [btnRstStop_Click]. The power stays as it is: 0 unless a
//                        program has set it since
//   Idle -> Idle         a reset that nothing has called for [btnRstStop_Click]
//
// No change of mode, New, Open, end of a program or loss of the link touches the latch.

#include "track/Lever.h"

namespace glidetrak {

/// Acts on the press of any button. A program winds down from here as run control tells; the
/// statement at hand goes on, a WAIT to its full time.
void btnEmergency_MouseDown(int iButton, float fX, float fY);

/// The other picture of the flash. The timer fires in Latched alone.
void tmrEmergencyFlash_Timer();

void btnRstStop_Click();

}  // namespace glidetrak
