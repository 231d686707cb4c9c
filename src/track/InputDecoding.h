#pragma once

// What the rig's inputs mean: the journey timer between the two gates and the impact bar. There is
// no debounce and no hold time anywhere.
//
//   journey  condition                     leaves by
//   Off      iTimingEnabled 0; "--.--"     the timing toggle
//   Armed    bTimerArmed alone             a gate in a tick: Running [RunJourneyTimer]
//   Running  bTimerArmed, bTimerStarted    the other gate, or the limit: Ended [RunJourneyTimer];
//                                          a reset: Armed [ResetJourneyTimer]
//   Ended    neither; the time stands      a reset: Armed [ResetJourneyTimer]

#include <QString>

namespace glidetrak {

/// 1 while the timing toggle is on, else 0.
inline qint16 iTimingEnabled = 0;

/// A journey may start or is running.
inline bool bTimerArmed = false;

/// The vehicle has passed the first gate.
inline bool bTimerStarted = false;

/// Journey time in milliseconds, 0 to 9999990.
inline qint32 lElapsedMs = 0;

/// Tick count of the last accumulation; 0 when idle.
inline qint32 lTimerLastTick = 0;

/// The gate bits that end this journey. 0 when both beams were broken in the tick that began it:
/// only the limit ends that one.
inline qint32 iStopGateMask = 0;

/// 0 until the impact toggle is first switched on, then 1 for good.
inline qint16 iAnalogEnabled = 0;

/// One tick's step of the timer, from either gate to the other in either direction. The tick calls
/// it only while timing is on and the timer armed.
void RunJourneyTimer();

/// Brings lblTimer, and in debug mode pnlClock, in line with the time.
void ShowJourneyTime();

/// Seconds with two decimals, or "--.--" while timing is off.
QString JourneyText();

/// Arms the timer; nothing while timing is off.
void ResetJourneyTimer();

/// Shows the analog value of now; no peak is held. It also puts the value over sensor bits 0 to 3
/// of lInputImage until the next tick's read, where statements see it: deliberate.
void UpdateImpactDisplay();

}  // namespace glidetrak
