// New, and the question about unsaved changes.

#include "files/FileMenuTest.h"

namespace glidetrak {

namespace {

const QString sQuestion =
    "Changes have been made to the current program that have not been saved.\r\n"
    "If you continue, these changes will be lost.\r\n"
    "Would you like to save the changes?";

TEST_F(FileMenuTest, NewEmptiesTheEditorAndForgetsTheFile) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  NewProgram();
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_EQ(sProgramFile, "");
  EXPECT_FALSE(bProgramDirty);
  EXPECT_EQ(frmGlidetrak.Caption.value(), "Glidetrak Control");
  EXPECT_EQ(screen.MousePointer, ptrDefault);
}

TEST_F(FileMenuTest, NewGoesToProgramMode) {
  ASSERT_EQ(iControlMode, modeManual);
  NewProgram();
  EXPECT_EQ(iControlMode, modeProgram);
  EXPECT_TRUE(pnlProgramBox.Visible);
}

TEST_F(FileMenuTest, NewTurnsSaveOffUntilTheFirstChange) {
  Type("HALT");
  platform.aAnswers = {BoxAnswer::No};
  NewProgram();
  EXPECT_FALSE(MNUSAVEPROG.Enabled);
  EXPECT_FALSE(MNUSAVEPROGAS.Enabled);
  EXPECT_TRUE(MNUNEWPROG.Enabled);
  EXPECT_TRUE(MNULOADPROG.Enabled);
  Type("H");
  EXPECT_TRUE(MNUSAVEPROG.Enabled);
  EXPECT_TRUE(MNUSAVEPROGAS.Enabled);
}

TEST_F(FileMenuTest, MenuStatesFollowTheFlagAndTheText) {
  const struct {
    bool bEnable;
    const char* sText;
    bool bSave;
  } rows[] = {{true, "", false}, {true, "A", true}, {false, "", false}, {false, "A", false}};
  for (const auto& row : rows) {
    txtProgram.SetText(row.sText);
    SetFileMenuStates(row.bEnable);
    EXPECT_EQ(MNUNEWPROG.Enabled, row.bEnable);
    EXPECT_EQ(MNULOADPROG.Enabled, row.bEnable);
    EXPECT_EQ(MNUSAVEPROG.Enabled, row.bSave);
    EXPECT_EQ(MNUSAVEPROGAS.Enabled, row.bSave);
  }
}

TEST_F(FileMenuTest, NewAsksOnlyAboutChanges) {
  NewProgram();
  ExpectNoBox();
}

TEST_F(FileMenuTest, NewAsksWithYesAndNoAlone) {
  Type("HALT");
  platform.aAnswers = {BoxAnswer::No};
  NewProgram();
  ExpectBox(sQuestion, "New Program", BoxIcon::Question);
  EXPECT_EQ(platform.aBoxes[0].buttons, BoxButtons::YesNo);
}

TEST_F(FileMenuTest, NoAtNewLosesTheChanges) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  Type("BEEP\r\n");
  platform.aAnswers = {BoxAnswer::No};
  NewProgram();
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "HALT");
}

TEST_F(FileMenuTest, YesAtNewSavesTheFileFirst) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  Type("BEEP\r\n");
  platform.aAnswers = {BoxAnswer::Yes};
  NewProgram();
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "BEEP\r\nHALT");
  EXPECT_EQ(txtProgram.Text(), "");
}

TEST_F(FileMenuTest, YesAndACancelledSaveAsStillReplacesTheProgram) {
  Type("HALT");
  platform.aAnswers = {BoxAnswer::Yes};
  save.aReplies = {{""}};
  NewProgram();
  EXPECT_EQ(save.aShowings.size(), 1U);
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_FALSE(bProgramDirty);
}

TEST_F(FileMenuTest, YesAndAFailedWriteStillReplacesTheProgram) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  Type("BEEP\r\n");
  platform.aUnwritable = {"\\HOME\\A.GTP"};
  platform.aAnswers = {BoxAnswer::Yes};
  NewProgram();
  EXPECT_EQ(platform.aBoxes.size(), 2U);
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_FALSE(bProgramDirty);
}

struct FileCommand : NamedRow {
  void (*command)();
};

class WhileRunning : public FileMenuTest, public ::testing::WithParamInterface<FileCommand> {};

TEST_P(WhileRunning, DoesNothingAndSaysNothing) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  Type("BEEP\r\n");
  bProgramRunning = true;
  GetParam().command();
  EXPECT_EQ(txtProgram.Text(), "BEEP\r\nHALT");
  EXPECT_EQ(sProgramFile, "\\HOME\\A.GTP");
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "HALT");
  EXPECT_EQ(open.aShowings.size(), 1U);
  EXPECT_TRUE(save.aShowings.empty());
  EXPECT_TRUE(bProgramDirty);
  ExpectNoBox();
}

INSTANTIATE_TEST_SUITE_P(FileMenu, WhileRunning,
                         ::testing::Values(FileCommand{"New", NewProgram},
                                           FileCommand{"Open", OpenProgram},
                                           FileCommand{"Save", SaveProgram},
                                           FileCommand{"SaveAs", SaveProgramAs}),
                         RowName());

}  // namespace

}  // namespace glidetrak
