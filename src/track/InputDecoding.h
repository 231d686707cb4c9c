#pragma once

// What the rig's inputs mean: the journey timer between the two gates and the impact bar. There is
// no debounce and no hold time anywhere.
//
//   journey  what holds
//   Off      iTimingEnabled 0; the display "--.--". The flags and the time stand as the toggle
//            found them and mean nothing: nobody steps the timer
//   Armed    iTimingEnabled 1, bTimerArmed, not bTimerStarted; the time 0
//   Running  bTimerArmed, bTimerStarted; iStopGateMask the other gate; the time grows with each
//            tick while the link is up, and by the whole gap with the first one after a lost link
//   Ended    neither flag, lTimerLastTick 0; the time stands
//
//   Off -> Armed                   the toggle goes on [picTogTimer_Click, ResetJourneyTimer]
//   Armed -> Running               a beam is broken in a tick [RunJourneyTimer]
//   Running -> Ended               the other gate; or the limit, in a tick that finds both beams
//                                  free [RunJourneyTimer]
//   Armed, Running, Ended -> Armed a reset: the buttons, TIME_RESET [ResetJourneyTimer]
//   Armed, Running, Ended -> Off   the toggle goes off [picTogTimer_Click]
//
// A timer that has ended does not arm itself again. bTimerStarted is never true without
// bTimerArmed.

#include <QString>

namespace glidetrak {

/// 1 while the timing toggle is on, else 0. Written by picTogTimer_Click alone.
inline qint16 iTimingEnabled = 0;

/// A journey may start or is running. Set by ResetJourneyTimer, cleared by RunJourneyTimer.
inline bool bTimerArmed = false;

/// The vehicle has passed the first gate. Set by RunJourneyTimer, cleared by it and by
/// ResetJourneyTimer.
inline bool bTimerStarted = false;

/// Journey time in milliseconds; 0 to 9999990 when the journey has ended. A running one goes beyond
/// that while a beam stays broken. Written by RunJourneyTimer and, to 0, by ResetJourneyTimer.
inline qint32 lElapsedMs = 0;

/// Tick count of the last accumulation; 0 when none is under way. Written by RunJourneyTimer and
/// ResetJourneyTimer.
inline qint32 lTimerLastTick = 0;

/// The gate bits that end this journey, 16 or 32. 0 when both beams were broken in the tick that
/// began it: only the limit ends that one. Written by RunJourneyTimer; stale outside Running.
inline qint32 iStopGateMask = 0;

/// 0 until the impact toggle is first switched on, then 1 for good. Written by picTogImpact_Click
/// alone.
inline qint16 iAnalogEnabled = 0;

/// One tick's step of the timer, from either gate to the other in either direction. The tick calls
/// it only while timing is on and the timer armed. A difference that 32 bits do not hold is not
/// counted.
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
