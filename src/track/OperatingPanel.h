#pragma once

// The operating panel: mode and direction buttons. It is a view of the state variables;
// SetControlStates brings every element in line with them.

namespace glidetrak {

/// The emergency stop is latched: the lever is locked until its reset, and nothing else is.
inline bool bEmergencyStop = false;

/// Cheap when nothing has changed; may be called at any time. A change of mode seen here stops the
/// motor.
void SetControlStates();

void cmdManual_Click();
void cmdProgram_Click();
void cmdForward_Click();
void cmdBackward_Click();

}  // namespace glidetrak
