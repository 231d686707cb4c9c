#pragma once

namespace glidetrak {

/// Gives the main window the place, size and state of the last close. What is not stored counts as
/// 0, so that a first start opens at the smallest size in the top-left corner. Deliberate. A stored
/// state of minimised opens normal.
void RestorePlacement();

/// Stores the place and size that the window has when it is neither minimised nor maximised, and
/// its state.
void SavePlacement();

}  // namespace glidetrak
