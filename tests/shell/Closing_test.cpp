// The close prompts, and the end.

#include "shell/Closing.h"
#include "programs/ProgramFiles.h"
#include "shell/StartUpTest.h"
#include "track/OutputImage.h"
#include "transcript/Clicks.h"

namespace glidetrak {

namespace {

const QString sLeaving =
    "You are about to leave the Application.\r\nAre you sure you wish to continue?";
const QString sUnsaved =
    "Changes have been made to the current program that have not been saved.\r\n"
    "If you continue, these changes will be lost.\r\n"
    "Would you like to save the changes?";

class Closing : public StartUpTest {
 protected:
  void SetUp() override {
    platform.rig.AttachParallel();
    platform.AddFile("\\H\\A.GTP", "LABEL A\r\nGOTO A");
    Start("\\H\\A.GTP");
    platform.aWritten.clear();
  }

  /// The user's close; true when it was refused.
  bool QueryUnload() {
    bool bCancel = false;
    frmGlidetrak.QueryUnload(bCancel);
    return bCancel;
  }

  void Type(const QString& sText) { txtProgram.UserEdit(0, 0, sText); }
};

TEST_F(Closing, AsksOnceWhenNothingHasChanged) {
  EXPECT_FALSE(QueryUnload());
  ASSERT_EQ(platform.aBoxes.size(), 1U);
  EXPECT_EQ(platform.aBoxes[0].sText, sLeaving);
  EXPECT_EQ(platform.aBoxes[0].sTitle, "Close Software");
  EXPECT_EQ(platform.aBoxes[0].icon, BoxIcon::Question);
  EXPECT_EQ(platform.aBoxes[0].buttons, BoxButtons::YesNo);
}

TEST_F(Closing, GivesTheWindowTheFocusAndStopsTheTickUnderThePrompt) {
  int iFocus = 0;
  frmGlidetrak.SetFocus = [&] { ++iFocus; };
  bool bTicking = true;
  platform.OnBox = [&](const VirtualBox&) { bTicking = tmrSystem.Enabled; };
  QueryUnload();
  EXPECT_EQ(iFocus, 1);
  EXPECT_FALSE(bTicking);
}

TEST_F(Closing, NoRefusesAndLeavesTheTickAsItWas) {
  for (const bool bTicking : {true, false}) {
    tmrSystem.Enabled = bTicking;
    platform.aAnswers = {BoxAnswer::No};
    EXPECT_TRUE(QueryUnload());
    EXPECT_EQ(tmrSystem.Enabled, bTicking);
  }
}

TEST_F(Closing, NoWritesNoPlacementAndAsksNothingMore) {
  Type("X");
  platform.aAnswers = {BoxAnswer::No};
  QueryUnload();
  EXPECT_EQ(platform.aBoxes.size(), 1U);
  EXPECT_TRUE(platform.aWritten.empty());
  EXPECT_TRUE(bProgramDirty);
  EXPECT_FALSE(bShuttingDown);
}

TEST_F(Closing, YesLeavesTheTickOff) {
  QueryUnload();
  EXPECT_FALSE(tmrSystem.Enabled);
}

TEST_F(Closing, StopsARunAheadOfThePromptAndNoLeavesItStopped) {
  iControlMode = modeProgram;
  platform.aAnswers = {BoxAnswer::No};
  bool bRunning = false, bRunningAtBox = true;
  platform.OnBox = [&](const VirtualBox&) { bRunningAtBox = bProgramRunning; };
  platform.At(platform.lNow + 500, [&] {
    bRunning = bProgramRunning;
    QueryUnload();
  });
  cmdRunProgram.Click();
  EXPECT_TRUE(bRunning);
  EXPECT_FALSE(bRunningAtBox);
  EXPECT_FALSE(bProgramRunning);
  EXPECT_TRUE(tmrSystem.Enabled);
}

TEST_F(Closing, WithChangesAsksUnderTheSameTitle) {
  Type("X");
  platform.aAnswers = {BoxAnswer::Yes, BoxAnswer::No};
  EXPECT_FALSE(QueryUnload());
  ASSERT_EQ(platform.aBoxes.size(), 2U);
  EXPECT_EQ(platform.aBoxes[1].sText, sUnsaved);
  EXPECT_EQ(platform.aBoxes[1].sTitle, "Close Software");
  EXPECT_EQ(platform.aBoxes[1].icon, BoxIcon::Question);
  EXPECT_EQ(platform.aBoxes[1].buttons, BoxButtons::YesNo);
}

TEST_F(Closing, NoToSavingDiscardsTheChangesAndGoesOn) {
  Type("X");
  platform.aAnswers = {BoxAnswer::Yes, BoxAnswer::No};
  EXPECT_FALSE(QueryUnload());
  EXPECT_EQ(platform.FileBytes("\\H\\A.GTP"), "LABEL A\r\nGOTO A");
  EXPECT_EQ(platform.aWritten.size(), 5U);
}

TEST_F(Closing, YesToSavingSaves) {
  Type("BEEP\r\n");
  EXPECT_FALSE(QueryUnload());
  EXPECT_EQ(platform.FileBytes("\\H\\A.GTP"), "BEEP\r\nLABEL A\r\nGOTO A");
  EXPECT_FALSE(bSaveBeforeExit);
}

TEST_F(Closing, GoesOnAfterACancelledSaveAs) {
  Type("BEEP\r\n");
  sProgramFile.clear();
  bool bFlagAtDialog = false;
  cmSave.ShowSave = [&] {
    bFlagAtDialog = bSaveBeforeExit;
    cmSave.FileName = "";
  };
  EXPECT_FALSE(QueryUnload());
  EXPECT_TRUE(bFlagAtDialog);
  EXPECT_TRUE(bSaveBeforeExit);
  EXPECT_EQ(platform.aWritten.size(), 5U);
}

TEST_F(Closing, GoesOnAfterAFailedWrite) {
  Type("BEEP\r\n");
  platform.aUnwritable = {"\\H\\A.GTP"};
  EXPECT_FALSE(QueryUnload());
  EXPECT_EQ(platform.aBoxes.size(), 3U);
  EXPECT_EQ(platform.aWritten.size(), 5U);
}

TEST_F(Closing, BeginsWithTheSaveFlagClear) {
  bSaveBeforeExit = true;
  QueryUnload();
  EXPECT_FALSE(bSaveBeforeExit);
}

TEST_F(Closing, DoesNotAskOnceShutDownHasBegun) {
  bShuttingDown = true;
  tmrSystem.Enabled = true;
  EXPECT_FALSE(QueryUnload());
  EXPECT_TRUE(platform.aBoxes.empty());
  EXPECT_TRUE(platform.aWritten.empty());
  EXPECT_TRUE(tmrSystem.Enabled);
}

TEST_F(Closing, AsksAgainAfterANo) {
  platform.aAnswers = {BoxAnswer::No, BoxAnswer::No};
  EXPECT_TRUE(QueryUnload());
  EXPECT_TRUE(QueryUnload());
  EXPECT_EQ(platform.aBoxes.size(), 2U);
}

TEST_F(Closing, GoesOnWhenAStepFails) {
  for (const char* sStep : {"NormalRect", "WriteSetting"}) {
    platform.aFailing = {sStep};
    EXPECT_FALSE(QueryUnload()) << sStep;
  }
  EXPECT_EQ(platform.aBoxes.size(), 2U);
}

TEST_F(Closing, GoesOnWhenTheSaveFails) {
  Type("X");
  cmSave.ShowSave = [] { throw RuntimeError(Fault::PlatformCall); };
  platform.aUnwritable = {"\\H\\A.GTP"};
  platform.aUndeletable = {"\\H\\A.GTP"};
  EXPECT_FALSE(QueryUnload());
  EXPECT_FALSE(platform.aWritten.empty());
}

TEST_F(Closing, UnloadSwitchesTheRigOffAndEndsTheProcess) {
  lOutputImage = 0xFF;
  bool bTicking = true;
  platform.rig.aWritten.clear();
  platform.rig.OnWrite = [&](qint32) { bTicking = tmrSystem.Enabled; };
  const qint64 lStart = platform.lNow;
  EXPECT_THROW(frmGlidetrak.FormUnload(), ProcessEnded);
  ASSERT_FALSE(platform.rig.aWritten.empty());
  EXPECT_EQ(platform.rig.aWritten.back().lByte, 0);
  EXPECT_FALSE(bTicking);
  EXPECT_TRUE(bShuttingDown);
  EXPECT_GE(platform.lNow - lStart, 200);
}

TEST_F(Closing, AClickInTheLastWaitDoesNotReachTheRig) {
  SetPower(15);
  platform.At(platform.lNow + 50, [] { ClickControl("cmdBackward"); });
  platform.At(platform.lNow + 60, [] { ClickControl("MNURUN"); });
  EXPECT_THROW(frmGlidetrak.FormUnload(), ProcessEnded);
  EXPECT_EQ(platform.rig.aWritten.back().lByte, 0);
}

TEST_F(Closing, ASecondUnloadInTheLastWaitWritesNothingMore) {
  SetPower(15);
  platform.rig.aWritten.clear();
  platform.At(platform.lNow + 50, [] { frmGlidetrak.FormUnload(); });
  EXPECT_THROW(frmGlidetrak.FormUnload(), ProcessEnded);
  EXPECT_EQ(platform.rig.aWritten.size(), 1U);
}

TEST_F(Closing, ASleepStopsTheVehicleAndTheProgram) {
  iControlMode = modeProgram;
  platform.At(platform.lNow + 500, [] {
    SetPower(9);
    Form_Suspend();
  });
  cmdRunProgram.Click();
  EXPECT_FALSE(bProgramRunning);
  EXPECT_EQ(iPower, 0);
  EXPECT_EQ(platform.rig.aWritten.back().lByte, 0x10);
}

TEST_F(Closing, ASleepInTheLastWaitDoesNotReachTheRig) {
  platform.At(platform.lNow + 50, Form_Suspend);
  EXPECT_THROW(frmGlidetrak.FormUnload(), ProcessEnded);
  EXPECT_EQ(platform.rig.aWritten.back().lByte, 0);
}

TEST_F(Closing, UnloadWithTheLinkDownTouchesNoHardware) {
  bLinkUp = false;
  platform.rig.aWritten.clear();
  EXPECT_THROW(frmGlidetrak.FormUnload(), ProcessEnded);
  EXPECT_TRUE(platform.rig.aWritten.empty());
  EXPECT_TRUE(bShuttingDown);
}

TEST_F(Closing, SecondCloseDuringTheLastWaitDoesNotPrompt) {
  bool bAsked = false;
  platform.At(platform.lNow + 100, [&] {
    QueryUnload();
    bAsked = !platform.aBoxes.empty();
  });
  EXPECT_THROW(frmGlidetrak.FormUnload(), ProcessEnded);
  EXPECT_FALSE(bAsked);
}

TEST_F(Closing, ExitEntryWorksOnlyWhileNoProgramRuns) {
  int iUnloads = 0;
  frmGlidetrak.Unload = [&] { ++iUnloads; };
  bProgramRunning = true;
  MNUEXIT.Click();
  EXPECT_EQ(iUnloads, 0);
  EXPECT_TRUE(bProgramRunning);
  bProgramRunning = false;
  MNUEXIT.Click();
  EXPECT_EQ(iUnloads, 1);
}

}  // namespace

}  // namespace glidetrak
