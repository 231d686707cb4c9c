// Choosing a pre-set, and the one that start-up chooses.

#include "files/PresetTest.h"

namespace glidetrak {

namespace {

class PresetChoice : public PresetTest {
 protected:
  void SetUp() override {
    AddThree();
    station.Start();
  }
};

TEST_F(PresetChoice, StartUpTakesTheFirstPresetAsUnchanged) {
  EXPECT_EQ(txtProgram.Text(), "ONE");
  EXPECT_FALSE(bProgramDirty);
  EXPECT_EQ(sProgramFile, "");
  EXPECT_EQ(iControlMode, modeManual);
}

TEST_F(PresetChoice, StartUpLeavesSaveOffUntilTheFirstEdit) {
  EXPECT_FALSE(MNUSAVEPROG.Enabled);
  EXPECT_FALSE(MNUSAVEPROGAS.Enabled);
  Type("H");
  EXPECT_TRUE(MNUSAVEPROG.Enabled);
  EXPECT_TRUE(MNUSAVEPROGAS.Enabled);
}

TEST_F(PresetChoice, FirstChosenPresetTurnsSaveOn) {
  Choose(1);
  EXPECT_TRUE(MNUSAVEPROG.Enabled);
  EXPECT_TRUE(MNUSAVEPROGAS.Enabled);
}

TEST_F(PresetTest, StartUpTakesTheFirstPresetEvenWhenItIsNotListed) {
  AddThree();
  AddExample("EXAMPLE1.GTP", "   ");
  station.Start();
  EXPECT_EQ(txtProgram.Text(), "   ");
  EXPECT_EQ(cmbExamples.List.value().at(0), "EXAMPLE2");
}

TEST_F(PresetChoice, ReplacesTheProgramAndForgetsItsFile) {
  sProgramFile = "\\HOME\\A.GTP";
  frmGlidetrak.Caption = "A.GTP : Glidetrak Control";
  Choose(2);
  EXPECT_EQ(txtProgram.Text(), "THREE");
  EXPECT_EQ(sProgramFile, "");
  EXPECT_FALSE(bProgramDirty);
  EXPECT_EQ(frmGlidetrak.Caption.value(), "Glidetrak Control");
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  EXPECT_TRUE(platform.aBoxes.empty());
}

TEST_F(PresetChoice, AsksForACompileAndHidesTheList) {
  cmdShowExamples.Click();
  bNeedCompile = false;
  Choose(0);
  EXPECT_TRUE(bNeedCompile);
  EXPECT_FALSE(cmbExamples.Visible);
}

TEST_F(PresetChoice, LeavesTheModeAlone) {
  for (const qint16 iMode : {qint16{modeManual}, qint16{modeProgram}}) {
    iControlMode = iMode;
    Choose(1);
    EXPECT_EQ(iControlMode, iMode);
  }
}

TEST_F(PresetChoice, WithChangesAsksFirst) {
  Type("HALT");
  platform.aAnswers = {BoxAnswer::No};
  Choose(1);
  ASSERT_EQ(platform.aBoxes.size(), 1U);
  EXPECT_EQ(platform.aBoxes[0].sTitle, "Load Pre-set Program");
  EXPECT_EQ(platform.aBoxes[0].sText, Lines({English(211), English(212), English(213)}));
  EXPECT_EQ(txtProgram.Text(), "TWO");
}

TEST_F(PresetChoice, AfterYesAndASaveThePresetHasNoFile) {
  Type("HALT");
  cmSave.ShowSave = [] { cmSave.FileName = cmSave.FileTitle = "A.GTP"; };
  Choose(1);
  EXPECT_EQ(platform.FileBytes("A.GTP"), "HALTONE");
  EXPECT_EQ(txtProgram.Text(), "TWO");
  EXPECT_EQ(sProgramFile, "");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "Glidetrak Control");
}

TEST_F(PresetChoice, AfterYesAndACancelThePresetStillComes) {
  Type("HALT");
  cmSave.ShowSave = [] { cmSave.FileName = ""; };
  Choose(1);
  EXPECT_EQ(txtProgram.Text(), "TWO");
  EXPECT_FALSE(bProgramDirty);
}

TEST_F(PresetChoice, MakesSaveAskForAName) {
  Choose(1);
  int iDialogs = 0;
  cmSave.ShowSave = [&] {
    ++iDialogs;
    EXPECT_EQ(cmSave.FileName, "");
  };
  SaveProgram();
  EXPECT_EQ(iDialogs, 1);
}

TEST_F(PresetChoice, DoesNotChangeTheProgramWhileOneRuns) {
  bProgramRunning = true;
  Choose(1);
  EXPECT_EQ(txtProgram.Text(), "ONE");
}

TEST_F(PresetTest, BehindAMissingFileTheListsPositionCounts) {
  AddThree();
  platform.DeleteFile("\\STATION\\Examples\\EXAMPLE2.GTP");
  station.Start();
  Choose(1);
  EXPECT_EQ(txtProgram.Text(), "");
  Choose(0);
  EXPECT_EQ(txtProgram.Text(), "ONE");
}

TEST_F(PresetChoice, IndexOutOfRangeEmptiesTheEditor) {
  for (const qint16 iIndex : {qint16{4}, qint16{-1}, qint16{0}, qint16{32767}, qint16{-32768}}) {
    LoadPreset(1);
    ASSERT_EQ(txtProgram.Text(), "ONE");
    LoadPreset(iIndex);
    EXPECT_EQ(txtProgram.Text(), "") << iIndex;
    EXPECT_FALSE(bProgramDirty) << iIndex;
  }
}

TEST_F(PresetChoice, GivesACopyThatEditsDoNotReach) {
  Choose(1);
  Type("HALT");
  platform.aAnswers = {BoxAnswer::No};
  Choose(1);
  EXPECT_EQ(txtProgram.Text(), "TWO");
}

}  // namespace

}  // namespace glidetrak
