// A second copy of the program.

#include "shell/StartUpTest.h"

namespace glidetrak {

namespace {

class SecondCopy : public StartUpTest {
 protected:
  void SetUp() override {
    platform.bFirstCopy = false;
    application.Title = "Glidetrak Control";
  }
};

TEST_F(SecondCopy, TellsSoBringsTheFirstForwardAndEnds) {
  EXPECT_THROW(Start(), ProcessEnded);
  ASSERT_EQ(platform.aBoxes.size(), 1U);
  EXPECT_EQ(platform.aBoxes[0].sText, "This Application is already running.");
  EXPECT_EQ(platform.aBoxes[0].sTitle, "Glidetrak Control");
  EXPECT_EQ(platform.aBoxes[0].icon, BoxIcon::Exclamation);
  EXPECT_EQ(platform.aBoxes[0].buttons, BoxButtons::Ok);
  EXPECT_EQ(platform.iOtherCopyActivated, 1);
}

TEST_F(SecondCopy, IsCalledExistsWhenItLooksForTheOther) {
  EXPECT_THROW(Start(), ProcessEnded);
  EXPECT_EQ(platform.sTitleAtActivation, "Exists");
}

TEST_F(SecondCopy, LetsPendingEventsRunBehindItsBox) {
  EXPECT_THROW(Start(), ProcessEnded);
  EXPECT_GT(platform.lNow, platform.aBoxes.at(0).lTime);
}

TEST_F(SecondCopy, HasTouchedThePortByThen) {
  platform.rig.AttachParallel();
  size_t iCalls = 0;
  platform.OnBox = [&](const VirtualBox&) { iCalls = platform.rig.aCalls.size(); };
  EXPECT_THROW(Start(), ProcessEnded);
  EXPECT_GT(iCalls, 0U);
  EXPECT_TRUE(bLinkUp);
}

TEST_F(SecondCopy, WritesNothingWhenItIsToldToEndInItsBox) {
  platform.rig.AttachParallel();
  platform.OnBox = [&](const VirtualBox&) {
    platform.rig.aWritten.clear();
    frmGlidetrak.FormUnload();
  };
  EXPECT_THROW(Start(), ProcessEnded);
  EXPECT_TRUE(platform.rig.aWritten.empty());
}

TEST_F(SecondCopy, NeverShowsItsWindow) {
  EXPECT_THROW(Start(), ProcessEnded);
  EXPECT_FALSE(frmGlidetrak.Visible);
  EXPECT_FALSE(frmAbout.Visible);
}

TEST_F(StartUpTest, FirstCopyShowsNoBox) {
  Start();
  EXPECT_TRUE(platform.aBoxes.empty());
  EXPECT_EQ(platform.iOtherCopyActivated, 0);
}

}  // namespace

}  // namespace glidetrak
