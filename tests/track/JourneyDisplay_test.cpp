// What is shown of the journey, and when.

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/RigStation.h"
#include "track/InputDecoding.h"

namespace glidetrak {
namespace {

class JourneyDisplay : public testing::Test {
 protected:
  RigStation station;
};

TEST_F(JourneyDisplay, HasTwoDecimals) {
  iTimingEnabled = 1;
  const std::pair<qint32, const char*> aRows[] = {{0, "0.00"},
                                                  {4, "0.00"},
                                                  {6, "0.01"},
                                                  {10, "0.01"},
                                                  {94, "0.09"},
                                                  {990, "0.99"},
                                                  {999, "1.00"},
                                                  {1000, "1.00"},
                                                  {10'000, "10.00"},
                                                  {123'456, "123.46"},
                                                  {1'234'560, "1234.56"},
                                                  {9'999'990, "9999.99"}};
  for (const auto& [lTime, sText] : aRows) {
    lElapsedMs = lTime;
    EXPECT_EQ(JourneyText(), sText);
    ShowJourneyTime();
    EXPECT_EQ(lblTimer.Caption.value(), sText);
  }
}

TEST_F(JourneyDisplay, IsDashesWhileTimingIsOff) {
  lElapsedMs = 4711;
  ShowJourneyTime();
  EXPECT_EQ(lblTimer.Caption.value(), "--.--");
}

TEST_F(JourneyDisplay, FillsTheClockOfTheDebugPanelInDebugModeOnly) {
  pnlClock.Caption = "before";
  ShowJourneyTime();
  EXPECT_EQ(pnlClock.Caption.value(), "before");
  bDebugMode = true;
  ShowJourneyTime();
  EXPECT_EQ(pnlClock.Caption.value(), "--.--");
}

TEST_F(JourneyDisplay, ResetsTheClockOfTheDebugPanelAtOnce) {
  bDebugMode = true;
  iTimingEnabled = 1;
  lElapsedMs = 4711;
  lblTimer.Caption = "before";
  ResetJourneyTimer();
  EXPECT_EQ(pnlClock.Caption.value(), "0.00");
  EXPECT_EQ(lblTimer.Caption.value(), "before");
}

TEST_F(JourneyDisplay, FollowsTheTimingToggle) {
  station.Start();
  station.platform.RunFor(100);
  EXPECT_EQ(lblTimer.Caption.value(), "--.--");
  station.Click("picTogTimer");
  station.platform.RunFor(100);
  EXPECT_EQ(lblTimer.Caption.value(), "0.00");
  lElapsedMs = 4700;
  station.platform.RunFor(100);
  EXPECT_EQ(lblTimer.Caption.value(), "4.70");
  station.Click("picTogTimer");
  station.platform.RunFor(100);
  EXPECT_EQ(lblTimer.Caption.value(), "--.--");
  EXPECT_EQ(lElapsedMs, 4700);
  station.Click("picTogTimer");
  station.platform.RunFor(100);
  EXPECT_EQ(lElapsedMs, 0);
}

TEST_F(JourneyDisplay, IsWrittenEachFiftyMilliseconds) {
  station.Start();
  station.Click("picTogTimer");
  station.platform.RunFor(100);
  station.rig.lInput = 16;
  station.platform.RunFor(5);
  std::vector<qint64> aTimes;
  const auto watcher =
      lblTimer.Caption.addNotifier([&] { aTimes.push_back(station.platform.lNow); });
  station.platform.RunFor(1000);
  ASSERT_GE(aTimes.size(), 19u);
  for (size_t i = 1; i < aTimes.size(); ++i) EXPECT_EQ(aTimes[i] - aTimes[i - 1], 50);
}

}  // namespace
}  // namespace glidetrak
