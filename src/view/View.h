#pragma once

// The two forms on the screen.

namespace glidetrak {

/// Draws both forms from their tables, hidden, and wires them: from now on the widgets follow the
/// controls' properties, and mouse, keys, focus and timers fire the controls' events. To be called
/// once, after ResetForms; events may be filled before or after it. The windows live until the
/// application object goes. Closing a window ends nothing by itself: the station ends the process.
void BuildView();

}  // namespace glidetrak
