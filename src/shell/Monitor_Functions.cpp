#include "shell/Monitor_Functions.h"

#include "form/frmGlidetrak.h"

namespace glidetrak {

namespace {

bool Outside(qint32 lPlace, qint32 lFirst, qint32 lLast) {
  return lPlace < lFirst || lPlace > lLast;
}

PixelRect ScreenRect() {
  return {0, 0, static_cast<qint32>(screen.Width) / iTwipsPerPixel,
          static_cast<qint32>(screen.Height) / iTwipsPerPixel};
}

/// The middle of a stretch for something of that size.
qint32 Centred(qint32 lFirst, qint32 lLast, qint32 lSize) {
  return lFirst + (lLast - lFirst - lSize) / 2;
}

}  // namespace

bool GetWindowRectTwips(TwipsRect& rect) {
  std::optional<PixelRect> pixels = pDesktop->NormalRect();
  if (!pixels) pixels = pDesktop->WindowRect();
  if (!pixels) return false;
  rect = {pixels->lLeft * iTwipsPerPixel, pixels->lTop * iTwipsPerPixel,
          (pixels->lRight - pixels->lLeft) * iTwipsPerPixel,
          (pixels->lBottom - pixels->lTop) * iTwipsPerPixel};
  return true;
}

PixelRect GetMonitorRect() {
  if (const auto monitor = pDesktop->NearestMonitor()) return *monitor;
  if (const auto workArea = pDesktop->WorkArea()) return *workArea;
  return ScreenRect();
}

bool IsTopLeftOnMonitor(const PixelRect& monitor) {
  const std::optional<PixelRect> window = pDesktop->WindowRect();
  return window && !Outside(window->lLeft, monitor.lLeft, monitor.lRight) &&
         !Outside(window->lTop, monitor.lTop, monitor.lBottom);
}

void CentreWindowOnMonitor(const PixelRect& monitor) {
  const std::optional<PixelRect> window = pDesktop->WindowRect();
  if (!window) return;
  qint32 lLeft = window->lLeft;
  qint32 lTop = window->lTop;
  if (Outside(lLeft, monitor.lLeft, monitor.lRight)) {
    lLeft = Centred(monitor.lLeft, monitor.lRight, window->lRight - window->lLeft);
  }
  if (Outside(lTop, monitor.lTop, monitor.lBottom)) {
    lTop = Centred(monitor.lTop, monitor.lBottom, window->lBottom - window->lTop);
  }
  pDesktop->MoveWindow(lLeft, lTop);
}

void KeepWindowOnMonitor() {
  const PixelRect monitor = GetMonitorRect();
  if (!IsTopLeftOnMonitor(monitor)) CentreWindowOnMonitor(monitor);
}

bool IsActiveWindow() {
  return pDesktop->IsMainWindowActive();
}

}  // namespace glidetrak
