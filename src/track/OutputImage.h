#pragma once

// The rig is driven by one byte, lOutputImage: bits 0 to 3 motor power as a plain binary number,
// bit 4 direction (1 forward), bits 5 to 7 left as they are. SetPower and SetOutputBit change it,
// and everything else here goes through them; each sends it at once while the link is up, and only
// changes the image and the panel while it is down. The image is not sent again when a link comes
// back. Beside them start-up alone writes to it: a 0 that is not sent, before the first
// SetDirection and SetPower.
//
// There is no brake bit: HALT is power 0, and an emergency stop is power 0 with a latch on the
// panel. Failing steps are passed over; a failed write is told to nobody.

#include <QtGlobal>

namespace glidetrak {

/// Motor power now, 0 to 15. Written by SetPower and ApplyLeverPower; the report to the panel in
/// Program mode hands it to SetPowerLever, which clamps it.
inline qint16 iPower = 0;

/// The value last handed to SetPower, before 16 and more became 0, as 16 bits with sign; -1 from
/// start-up to the first. Written by SetPower, and by start-up.
inline qint16 iLastPowerRequest = -1;

/// The level on which the lever stands, 0 to 15; -1 until the first SetPower, so that that one
/// places it. Written by SetPowerLever, and by the drag on the operating panel.
inline qint16 iLeverLevel = -1;

/// 1 forward, 0 backward. Written by SetDirection. A reset program (New, Load, a pre-set) sets it
/// to 1 and start-up to 0, both without bit 4: behind a reset the vehicle may still go backward,
/// and a SetDirection to forward then sends nothing.
inline qint16 iDirection = 1;

/// The last SetPower left a power of 1 or more. Written there.
inline bool bMotorOn = false;

/// The lever's place in twips: level 15 is the top of its slot, level 0 the bottom.
constexpr float fLeverTop = 2230;
constexpr float fLeverBottom = 4760;
constexpr double fLeverStep = 168.66666666666666;

/// For statements and the tick: drops a level outside 0 to 15 and one that repeats the last
/// request.
void SetPowerChecked(qint16 iLevel);

/// Unconditional. A level of 16 or more stops the motor (it is not cut to 15), yet is kept as the
/// last request.
void SetPower(quint16 iLevel);

/// Puts the lever picture on a level. In and out: a level outside 0 to 15 comes back clamped.
void SetPowerLever(qint16& iLevel);

/// Non-zero is forward. Sends bit 4 only on a change.
void SetDirection(qint16 iForward);

/// Sets or clears one bit of the output byte. iPower and iDirection do not hear of it.
void SetOutputBit(qint32 lBit, bool bOn);

qint16 GetLeverLevel();

/// The tick's road from the lever to the motor.
void ApplyLeverPower();

}  // namespace glidetrak
