// The About box.

#include "shell/AboutTest.h"

namespace glidetrak {

namespace {

class AboutBox : public AboutTest {
 protected:
  void SetUp() override {
    station.Start();
    picClose.Click();
    aCalls.clear();
  }
};

TEST_F(AboutBox, OpensModalFromTheMenu) {
  station.Click("MNUAbout");
  EXPECT_EQ(aCalls, (Calls{"modal"}));
  EXPECT_EQ(frmAbout.Caption.value(), "Glidetrak Control");
  EXPECT_EQ(lblProgName.Caption.value(), "Glidetrak Control");
  EXPECT_EQ(lblProgVer.Caption.value(), "Version: 3.00.0000");
  EXPECT_FALSE(lblplw8Instruct.Visible);
  ExpectCentred();
}

TEST_F(AboutBox, DoesNotOpenWhileAProgramRuns) {
  bProgramRunning = true;
  MNUAbout.Click();
  EXPECT_TRUE(aCalls.empty());
}

TEST_F(AboutBox, StaysUntilItsPictureIsClicked) {
  station.Click("MNUAbout");
  EXPECT_FALSE(TmrAbout.Enabled);
  station.platform.RunFor(20000);
  EXPECT_TRUE(frmAbout.Visible);
  picClose.Click();
  EXPECT_EQ(aCalls, (Calls{"modal", "main focus", "unload"}));
}

/// The timers of the start-up box end with its showing.
TEST_F(AboutBox, StaysWhenItTookTheStartUpBoxesPlace) {
  Station another;
  another.Start();
  another.platform.RunFor(2000);
  ASSERT_TRUE(TmrAbout.Enabled);
  another.Click("MNUAbout");
  EXPECT_FALSE(TmrAbout.Enabled);
  aCalls.clear();
  another.platform.RunFor(20000);
  EXPECT_EQ(aCalls, Calls{});
}

TEST_F(AboutBox, LeavesTheTickRunning) {
  station.Click("MNUAbout");
  EXPECT_TRUE(tmrSystem.Enabled);
}

TEST_F(AboutBox, IsLoadedAfreshForEachShowing) {
  lblplw8Instruct.Caption = "old";
  frmAbout.Caption = "old";
  station.Click("MNUAbout");
  EXPECT_EQ(lblplw8Instruct.Caption.value(), "Checking for Hardware. Please Wait ...");
  EXPECT_EQ(frmAbout.Caption.value(), "Glidetrak Control");
  EXPECT_TRUE(tmrUpdate.Enabled);
}

TEST_F(AboutBox, OtherVariantIsNotModalAndHasNoTitle) {
  ShowPlzW8Box(false);
  EXPECT_EQ(aCalls, (Calls{"show", "refresh"}));
  EXPECT_EQ(frmAbout.Caption.value(), "");
  EXPECT_TRUE(lblplw8Instruct.Visible);
}

}  // namespace

}  // namespace glidetrak
