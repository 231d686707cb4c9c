// The way to the debug panel.

#include "shell/AboutTest.h"

namespace glidetrak {

namespace {

TEST_F(AboutTest, WithoutDebugModeThePanelCannotBeReached) {
  station.Start();
  EXPECT_FALSE(MNUShowDebug.Visible);
  station.Click("MNUShowDebug");
  EXPECT_FALSE(pnlDebug.Visible);
}

TEST_F(AboutTest, DebugModeShowsTheEntryAndTheEntryThePanel) {
  station.Start(RigLink::None, "/debugmode");
  EXPECT_TRUE(MNUShowDebug.Visible);
  EXPECT_FALSE(pnlDebug.Visible);
  station.Click("MNUShowDebug");
  EXPECT_TRUE(pnlDebug.Visible);
  EXPECT_TRUE(txtDebug.Text().startsWith("Data In:  0\r\nData Out: 16\r\nTime:     "));
}

TEST_F(AboutTest, OutputByteOfSixLightsLampsOneAndTwo) {
  station.Start(RigLink::None, "/DEBUGMODE");
  lOutputImage = 6;
  station.Click("MNUShowDebug");
  const int aColours[] = {0, 1233395, 57088, 0, 0, 0, 0, 0};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(ledOutput[i].FillColor, aColours[i]) << i;
}

TEST_F(AboutTest, CloseCrossHidesThePanelAndRepaints) {
  station.Start(RigLink::None, "/DEBUGMODE");
  station.Click("MNUShowDebug");
  int iRepaints = 0;
  frmGlidetrak.Refresh = [&] { ++iRepaints; };
  station.Click("imgCloseDebug");
  EXPECT_FALSE(pnlDebug.Visible);
  EXPECT_EQ(iRepaints, 1);
}

TEST_F(AboutTest, DoubleClickOnThePanelOnlyRepaints) {
  station.Start(RigLink::None, "/DEBUGMODE");
  station.Click("MNUShowDebug");
  int iRepaints = 0;
  frmGlidetrak.Refresh = [&] { ++iRepaints; };
  pnlDebug.DblClick();
  EXPECT_TRUE(pnlDebug.Visible);
  EXPECT_EQ(iRepaints, 1);
}

TEST_F(AboutTest, VersionLabelOfThePanelIsPlainDecimal) {
  station.Start();
  EXPECT_EQ(lblDebugAppVer.Caption.value(), "v3.0.0");
}

}  // namespace

}  // namespace glidetrak
