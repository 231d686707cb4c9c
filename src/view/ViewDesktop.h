#pragma once

// What the station asks of the desktop, answered by the windows on the screen.

#include "platform/Platform.h"

namespace glidetrak {

/// The real desktop. A question box answers to its buttons alone: it has no escape and no close
/// button, and Enter takes Yes. The window's rectangles are its own without the frame, in
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

}  // namespace glidetrak
