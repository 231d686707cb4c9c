#pragma once

// The two forms on the screen.

#include "platform/Platform.h"

namespace glidetrak {

/// The real desktop. A question box answers to its buttons alone: it has no escape and
/// no close button, and Enter takes Yes. The window's rectangles are its own without the frame, in
/// logical pixels. Whatever speaks of the main window is for the time after BuildView.
class ViewDesktop : public Desktop {
 public:
  void PumpEvents() override;
  BoxAnswer ShowBox(const QString& sText, const QString& sTitle, BoxIcon icon, BoxButtons buttons,
                    BoxPlace place = BoxPlace::Middle) override;
  void Beep() override;

  std::optional<PixelRect> NearestMonitor() override;
  std::optional<PixelRect> WorkArea() override;
  std::optional<PixelRect> NormalRect() override;
  std::optional<PixelRect> WindowRect() override;
  void MoveWindow(qint32 lLeft, qint32 lTop) override;
  bool IsMainWindowActive() override;
};

/// Draws both forms from their tables, hidden, and wires them: from now on the widgets follow the
/// controls' properties, and mouse, keys, focus and timers fire the controls' events. To be called
/// once, after ResetForms; events may be filled before or after it. The windows live until the
/// application object goes. Closing a window ends nothing by itself: the station ends the process.
void BuildView();

}  // namespace glidetrak
