// Two screens side by side, the right one larger and 100 pixels lower; two-screens.json.

#include <QGuiApplication>
#include <QScreen>

#include "shell/Monitor_Functions.h"
#include "view/Monitors.h"
#include "view/Units.h"
#include "view/ViewDesktop.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

const QRect aLeft(0, 0, 1000, 800);
const QRect aRight(1000, 100, 1200, 900);

class TwoScreens : public ViewTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(QGuiApplication::screens().size(), 2) << "QT_QPA_PLATFORM names two-screens.json";
    ASSERT_EQ(QGuiApplication::screens()[0]->geometry(), aLeft);
    ASSERT_EQ(QGuiApplication::screens()[1]->geometry(), aRight);
    pDesktop = &m_desktop;
    frmGlidetrak.Width = Twips(960);
    frmGlidetrak.Height = Twips(647);
  }
  void PutAt(QPoint corner) { m_desktop.MoveWindow(corner.x(), corner.y()); }
  QPoint Corner() {
    const std::optional<PixelRect> window = m_desktop.WindowRect();
    return window ? QPoint(window->lLeft, window->lTop) : QPoint();
  }

  ViewDesktop m_desktop;
};

struct NearestRow {
  const char* sWhere;
  QPoint corner;
  QRect nearest;
};

/// A window of 600 by 400 pixels.
const NearestRow NearestRows[] = {
    {"on the left one", {10, 10}, aLeft},
    {"on the right one", {1100, 200}, aRight},
    {"over both, more on the left", {600, 150}, aLeft},
    {"over both, more on the right", {800, 150}, aRight},
    {"a little of it on the left one", {-590, 390}, aLeft},
    {"right of both", {5000, 300}, aRight},
    {"left of both", {-3000, 300}, aLeft},
    {"above the left one", {300, -2000}, aLeft},
    {"above the right one", {1300, -2000}, aRight},
    {"below the left one", {-200, 900}, aLeft},
    {"below the right one", {1300, 3000}, aRight},
};

TEST_F(TwoScreens, TheNearestShowsMostOfAWindowElseLiesLeastAway) {
  for (const NearestRow& row : NearestRows) {
    EXPECT_EQ(NearestScreen(QRect(row.corner, QSize(600, 400))), row.nearest) << row.sWhere;
  }
}

TEST_F(TwoScreens, TheDesktopTellsTheOneOfTheWindow) {
  PutAt({1100, 200});
  const std::optional<PixelRect> monitor = m_desktop.NearestMonitor();
  ASSERT_TRUE(monitor);
  EXPECT_EQ(monitor->lLeft, 1000);
  EXPECT_EQ(monitor->lTop, 100);
  EXPECT_EQ(monitor->lRight, 2200);
  EXPECT_EQ(monitor->lBottom, 1000);
}

struct KeepRow {
  const char* sWhere;
  QPoint stored, kept;
};

const KeepRow KeepRows[] = {
    {"on the right one", {1300, 300}, {1300, 300}},
    {"right of both", {5000, 300}, {1120, 300}},
    {"right of both and below", {5000, 3000}, {1120, 226}},
    {"left of both", {-3000, 100}, {20, 100}},
    {"mostly on the right one, its corner above it", {1100, 50}, {1100, 226}},
    {"mostly on the right one, its corner on the left one", {900, 150}, {1120, 150}},
};

TEST_F(TwoScreens, AWindowOffBothComesBackOnTheNearest) {
  for (const KeepRow& row : KeepRows) {
    PutAt(row.stored);
    KeepWindowOnMonitor();
    EXPECT_EQ(Corner(), row.kept) << row.sWhere;
  }
}

}  // namespace
}  // namespace glidetrak
