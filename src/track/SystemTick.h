#pragma once

// The system tick, the one heartbeat of the track side. It samples the rig, notices a lost link,
// carries the lever to the motor and refreshes the displays, the journey each 50 ms and the impact
// each 500 ms; when the uptime counter turns negative both are due at once. It never executes a
// statement: a program sees the rig through what the tick has left in lInputImage.

namespace glidetrak {

/// Milliseconds between ticks: while nothing goes on, and while timing is on or a program runs.
constexpr int iIdleInterval = 25;
constexpr int iBusyInterval = 5;

/// One tick; a step that fails is passed over. A tick that comes inside another, under a message
/// box that the first has raised, returns at once.
void tmrSystem_Timer();

/// Gives tmrSystem the interval of the moment; writes it only when it differs.
void SelectTickInterval();

}  // namespace glidetrak
