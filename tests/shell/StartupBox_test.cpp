// The box that greets at every start.

#include "shell/AboutTest.h"
#include "station/NamedRow.h"

namespace glidetrak {

namespace {

const QString sDetected = "Glidetrak interface detected";
const QString sNotDetected = "Glidetrak interface not detected";

TEST_F(AboutTest, StartupBoxComesUpAQuarterOfASecondAfterItsLoading) {
  station.Start();
  EXPECT_GE(lShown - lLoaded, 250);
  EXPECT_LE(lShown - lLoaded, 255);
  EXPECT_EQ(aCalls, (Calls{"show", "focus"}));
}

TEST_F(AboutTest, TickRestsUntilTheStartupBoxIsThere) {
  int iPumps = 0, iTicking = 0;
  station.platform.OnPump = [&] {
    const bool bWaiting = station.platform.lNow - lLoaded < 250;
    if (!TmrAbout.Enabled || !bWaiting) return;
    ++iPumps;
    if (tmrSystem.Enabled) ++iTicking;
  };
  station.Start();
  EXPECT_GT(iPumps, 200);
  EXPECT_EQ(iTicking, 0);
  EXPECT_TRUE(tmrSystem.Enabled);
}

TEST_F(AboutTest, StartupBoxHasNoTitleAndItsTexts) {
  station.Start();
  EXPECT_EQ(frmAbout.Caption.value(), "");
  EXPECT_EQ(lblProgName.Caption.value(), "Glidetrak Control");
  EXPECT_EQ(lblProgVer.Caption.value(), "Version: 3.00.0000");
  EXPECT_EQ(lblplw8Instruct.Caption.value(), "Checking for Hardware. Please Wait ...");
  EXPECT_TRUE(lblplw8Instruct.Visible);
  EXPECT_FALSE(lblCopyright.Caption.value().isEmpty());
}

TEST_F(AboutTest, StartupBoxStandsInTheMiddleOfTheRestoredWindow) {
  const QString sKey = "SOFTWARE\\TORVANE\\GLIDETRAK\\POSITION\\";
  auto& settings = station.platform.aSettings[static_cast<int>(Scope::User)];
  settings[sKey + "LEFT"] = "1500";
  settings[sKey + "TOP"] = "900";
  settings[sKey + "WIDTH"] = "20000";
  settings[sKey + "HEIGHT"] = "12000";
  station.Start();
  EXPECT_FLOAT_EQ(frmAbout.Left, (20000 - 5235) / 2.0F + 1500);
  ExpectCentred();
}

TEST_F(AboutTest, LinkIsToldThreeSecondsAfterLoading) {
  station.Start(RigLink::Usb);
  RunTo(2999);
  EXPECT_EQ(lblplw8Instruct.Caption.value(), "Checking for Hardware. Please Wait ...");
  RunTo(3000);
  EXPECT_EQ(lblplw8Instruct.Caption.value(), sDetected);
  EXPECT_FALSE(tmrUpdate.Enabled);
}

struct LinkRow : NamedRow {
  bool bAtFirst, bBefore, bAfter;  ///< the link at start, before and after the third second
  QString sTold;
};

class LinkTold : public AboutTest, public ::testing::WithParamInterface<LinkRow> {};

TEST_P(LinkTold, IsThatOfTheThirdSecond) {
  const LinkRow& row = GetParam();
  station.Start();
  station.platform.rig.bPresent = true;  // no tick takes the link down by itself
  bLinkUp = row.bAtFirst;
  RunTo(2900);
  bLinkUp = row.bBefore;
  RunTo(3001);
  bLinkUp = row.bAfter;
  RunTo(5900);
  EXPECT_EQ(lblplw8Instruct.Caption.value(), row.sTold);
}

INSTANTIATE_TEST_SUITE_P(
    About, LinkTold,
    ::testing::Values(LinkRow{{"NeverUp"}, false, false, false, sNotDetected},
                      LinkRow{{"UpTooLate"}, false, false, true, sNotDetected},
                      LinkRow{{"UpInTime"}, false, true, true, sDetected},
                      LinkRow{{"DownAtThatMoment"}, true, false, true, sNotDetected},
                      LinkRow{{"LostAfterwards"}, true, true, false, sDetected}),
    RowName());

TEST_F(AboutTest, StartupBoxGoesSixSecondsAfterLoading) {
  station.Start();
  RunTo(5999);
  EXPECT_TRUE(frmAbout.Visible);
  aCalls.clear();
  RunTo(6000);
  EXPECT_EQ(aCalls, (Calls{"main focus", "unload"}));
  EXPECT_FALSE(TmrAbout.Enabled);
}

TEST_F(AboutTest, StartupBoxClosedEarlyTakesItsTimersAlong) {
  station.Start();
  RunTo(1000);
  aCalls.clear();
  picClose.Click();
  EXPECT_EQ(aCalls, (Calls{"main focus", "unload"}));
  EXPECT_FALSE(TmrAbout.Enabled);
  EXPECT_FALSE(tmrUpdate.Enabled);
  RunTo(10000);
  EXPECT_EQ(aCalls.size(), 2U);
  EXPECT_EQ(lblplw8Instruct.Caption.value(), "Checking for Hardware. Please Wait ...");
}

}  // namespace

}  // namespace glidetrak
