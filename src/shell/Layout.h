#pragma once

namespace glidetrak {

/// Places the panels by fixed numbers whenever the window changes size. A window under the smallest
/// size snaps back. Nothing while minimised.
///
/// The tick stops during the layout and is enabled after it, whatever it was before: a resize
/// during start-up or under a close prompt starts it. Deliberate.
void Form_Resize();

}  // namespace glidetrak
