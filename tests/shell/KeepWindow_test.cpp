// A window is brought back whose top-left corner lies on no monitor, each axis by itself.

#include "shell/Monitor_Functions.h"
#include "shell/StartUpTest.h"

namespace glidetrak {

namespace {

constexpr PixelRect aPrimary{0, 0, 1920, 1080};
constexpr PixelRect aLeftOfIt{-1920, -100, 0, 980};
constexpr PixelRect aSmall{0, 0, 800, 600};

struct KeepRow {
  PixelRect monitor;
  qint32 lLeft, lTop;
  qint32 lNewLeft, lNewTop;
};

class KeepWindow : public StartUpTest {
 protected:
  void SetUp() override {
    frmGlidetrak.Width = 1000 * iTwipsPerPixel;
    frmGlidetrak.Height = 700 * iTwipsPerPixel;
  }

  void PutAt(qint32 lLeft, qint32 lTop) { platform.MoveWindow(lLeft, lTop); }
};

TEST_F(KeepWindow, LooksAtTheCornerAlone) {
  const KeepRow rows[] = {
      {aPrimary, 0, 0, 0, 0},
      {aPrimary, 1919, 1079, 1919, 1079},
      {aPrimary, 1920, 1080, 1920, 1080},
      {aPrimary, 1500, 900, 1500, 900},
      {aPrimary, 1921, 100, 460, 100},
      {aPrimary, -1, 100, 460, 100},
      {aPrimary, 100, -1, 100, 190},
      {aPrimary, 100, 1081, 100, 190},
      {aPrimary, -1, -1, 460, 190},
      {aPrimary, 5000, 5000, 460, 190},
      {aLeftOfIt, -1920, -100, -1920, -100},
      {aLeftOfIt, -1921, 5, -1460, 5},
      {aLeftOfIt, 1, -101, -1460, 90},
      {aSmall, 900, 700, -100, -50},
  };
  for (const KeepRow& row : rows) {
    platform.monitor = row.monitor;
    PutAt(row.lLeft, row.lTop);
    KeepWindowOnMonitor();
    const std::string sRow = std::to_string(row.lLeft) + " " + std::to_string(row.lTop);
    EXPECT_EQ(frmGlidetrak.Left, static_cast<float>(row.lNewLeft * 15)) << sRow;
    EXPECT_EQ(frmGlidetrak.Top, static_cast<float>(row.lNewTop * 15)) << sRow;
    EXPECT_EQ(frmGlidetrak.Width, 15000) << sRow;
    EXPECT_EQ(frmGlidetrak.Height, 10500) << sRow;
  }
}

TEST_F(KeepWindow, TakesTheMonitorThenTheWorkAreaThenTheScreen) {
  platform.monitor = PixelRect{1, 2, 3, 4};
  platform.workArea = PixelRect{5, 6, 7, 8};
  screen.Width = 1280 * 15;
  screen.Height = 800 * 15;
  EXPECT_EQ(GetMonitorRect().lLeft, 1);
  platform.monitor.reset();
  EXPECT_EQ(GetMonitorRect().lLeft, 5);
  platform.workArea.reset();
  const PixelRect screenRect = GetMonitorRect();
  EXPECT_EQ(screenRect.lLeft, 0);
  EXPECT_EQ(screenRect.lTop, 0);
  EXPECT_EQ(screenRect.lRight, 1280);
  EXPECT_EQ(screenRect.lBottom, 800);
}

TEST_F(KeepWindow, LeavesAWindowAloneWhosePlaceIsUnknown) {
  PutAt(5000, 5000);
  platform.bWindowRectKnown = false;
  KeepWindowOnMonitor();
  EXPECT_EQ(frmGlidetrak.Left, 5000 * 15);
}

TEST_F(KeepWindow, ReadsTheWindowInTwips) {
  PutAt(-10, 20);
  TwipsRect rect;
  EXPECT_TRUE(GetWindowRectTwips(rect));
  EXPECT_EQ(rect.lLeft, -150);
  EXPECT_EQ(rect.lTop, 300);
  EXPECT_EQ(rect.lWidth, 15000);
  EXPECT_EQ(rect.lHeight, 10500);
}

TEST_F(KeepWindow, ActiveWindowIsThatOfTheDesktop) {
  for (const bool bActive : {true, false}) {
    platform.bMainWindowActive = bActive;
    EXPECT_EQ(IsActiveWindow(), bActive);
  }
}

}  // namespace

}  // namespace glidetrak
