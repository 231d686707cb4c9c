#pragma once

// The engineering view of the rig's two bytes, shown in debug mode.

namespace glidetrak {

/// Colours of the output lamps by bit, 24-bit with red in the low byte: bit 1 yellow, bit 2 green,
/// the others red. Filled once at start-up by FillLampColours.
inline int aOutputLampColour[8] = {};

void FillLampColours();

/// Repaints lamps and text; returns at once while the panel is hidden, since the tick calls it. An
/// error ends the call and leaves the old values.
void RefreshDebugPanel();

/// Shows the panel, in every mode and during a run.
void MNUShowDebug_Click();

void imgCloseDebug_Click();

/// Repaints the form and leaves the panel open.
void pnlDebug_DblClick();

}  // namespace glidetrak
