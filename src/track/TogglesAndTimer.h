#pragma once

// The timing and the impact toggle of the operating panel, and the buttons that reset the journey
// timer. All of them act in either mode, during a run and while the emergency stop is latched.

namespace glidetrak {

/// State of the two toggles, as their pictures show it; off at start-up. Written by their clicks
/// alone.
inline bool bTimerToggle = false;
inline bool bImpactToggle = false;

/// Switches timing on or off. On resets the journey; off leaves the time as it stands, unseen.
void picTogTimer_Click();

/// The button that is visible while timing is on.
void btnTmrReset_Click();

/// The debug panel's button; nothing without debug mode.
void cmdTimerReset_Click();

/// Switching the toggle off only changes its picture: the impact display, once on, stays on.
void picTogImpact_Click();

}  // namespace glidetrak
