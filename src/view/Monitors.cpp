#include "view/Monitors.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "form/frmGlidetrak.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

qint64 SharedArea(const QRect& screen, const QRect& window) {
  const QRect shared = screen.intersected(window);
  return shared.isEmpty() ? 0 : qint64{shared.width()} * shared.height();
}

/// How far a stretch lies from another; 0 where they meet.
int Distance(int iFirst, int iLast, int iFrom, int iTo) {
  return std::max({0, iFirst - iTo, iFrom - iLast});
}

int Distance(const QRect& screen, const QRect& window) {
  return Distance(screen.left(), screen.right(), window.left(), window.right()) +
         Distance(screen.top(), screen.bottom(), window.top(), window.bottom());
}

bool IsNearer(const QRect& left, const QRect& right, const QRect& window) {
  const qint64 lLeft = SharedArea(left, window);
  const qint64 lRight = SharedArea(right, window);
  if (lLeft != lRight) return lLeft > lRight;
  return Distance(left, window) < Distance(right, window);
}

}  // namespace

QRect NearestScreen(const QRect& window) {
  QRect best;
  for (const QScreen* pScreen : QGuiApplication::screens()) {
    const QRect screen = pScreen->geometry();
    if (best.isNull() || IsNearer(screen, best, window)) best = screen;
  }
  return best;
}

std::optional<PixelRect> RectOf(const QRect& rect) {
  if (rect.isEmpty()) return {};
  return PixelRect{rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

void TellScreenSize() {
  const QScreen* pScreen = QGuiApplication::primaryScreen();
  if (pScreen == nullptr) return;
  screen.Width = Twips(pScreen->geometry().width());
  screen.Height = Twips(pScreen->geometry().height());
}

}  // namespace glidetrak
