// Save.

#include "files/FileMenuTest.h"

namespace glidetrak {

namespace {

TEST_F(FileMenuTest, SaveWritesTheTextAndLeavesTheTitle) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  Type("beep\r\n");
  frmGlidetrak.Caption = "AS IT WAS";
  SaveProgram();
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "beep\r\nHALT");
  EXPECT_FALSE(bProgramDirty);
  EXPECT_EQ(frmGlidetrak.Caption.value(), "AS IT WAS");
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  EXPECT_TRUE(save.aShowings.empty());
  ExpectNoBox();
}

TEST_F(FileMenuTest, SaveReplacesALongerFileAsAWhole) {
  OpenFile("\\HOME\\A.GTP", "A LONG PROGRAM");
  txtProgram.UserEdit(0, 13, "");
  SaveProgram();
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "M");
}

TEST_F(FileMenuTest, CharacterThatTheCodePageLacksIsWrittenAsAQuestionMark) {
  OpenFile("\\HOME\\A.GTP", "");
  Type(u"\u20AC \u00F1 \u0416"_qs);
  SaveProgram();
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "\x80 \xF1 ?");
}

TEST_F(FileMenuTest, SaveWithoutAFileAsksForAName) {
  Type("HALT");
  save.aReplies = {{""}};
  SaveProgram();
  EXPECT_EQ(save.aShowings.size(), 1U);
  ExpectNoBox();
}

TEST_F(FileMenuTest, SaveWithABlankNameAsksForAName) {
  Type("HALT");
  sProgramFile = "   ";
  platform.AddFile("   ", "");
  save.aReplies = {{""}};
  SaveProgram();
  EXPECT_EQ(save.aShowings.size(), 1U);
}

TEST_F(FileMenuTest, SaveOfAFileThatIsGoneAsksForANameWithoutAMessage) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  platform.DeleteFile("\\HOME\\A.GTP");
  save.aReplies = {{""}};
  SaveProgram();
  EXPECT_EQ(save.aShowings.at(0).sName, "\\HOME\\A.GTP");
  ExpectNoBox();
}

TEST_F(FileMenuTest, SaveOfAReadOnlyFileTellsSoAndAsksForAName) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  platform.AddFile("\\HOME\\A.GTP", "HALT", attrReadOnly);
  Type("BEEP\r\n");
  save.aReplies = {{""}};
  SaveProgram();
  ExpectBox("The Program file can not be saved because it has been set as Read-Only.",
            "Save Program", BoxIcon::Exclamation);
  EXPECT_EQ(save.aShowings.size(), 1U);
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "HALT");
  EXPECT_TRUE(bProgramDirty);
}

TEST_F(FileMenuTest, PointerIsPlainUnderTheDialogOfSave) {
  Type("HALT");
  save.aReplies = {{""}};
  int iPointer = -1;
  save.OnShow = [&] { iPointer = screen.MousePointer; };
  SaveProgram();
  EXPECT_EQ(iPointer, ptrDefault);
}

TEST_F(FileMenuTest, ProgramOfLowerCaseStaysSoOnDisk) {
  OpenFile("\\HOME\\A.GTP", "");
  Type("  print \"Hola\" : saludo\r\n\r\n");
  SaveProgram();
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "  print \"Hola\" : saludo\r\n\r\n");
}

struct ExitFlagRow : NamedRow {
  DialogReply reply;
  bool bWritable;
  bool bDialogFails;
  bool bFlagAfter;
};

class ExitFlag : public FileMenuTest, public ::testing::WithParamInterface<ExitFlagRow> {};

TEST_P(ExitFlag, IsClearedOnceAWriteHasEnded) {
  const ExitFlagRow& row = GetParam();
  Type("HALT");
  save.aReplies = {row.reply};
  if (!row.bWritable) platform.aUnwritable = {"\\HOME\\A.GTP"};
  if (row.bDialogFails) save.OnShow = [] { throw RuntimeError(Fault::PlatformCall); };
  bSaveBeforeExit = true;
  SaveProgramAs();
  EXPECT_EQ(bSaveBeforeExit, row.bFlagAfter);
}

INSTANTIATE_TEST_SUITE_P(
    FileMenu, ExitFlag,
    ::testing::Values(ExitFlagRow{"Written", {"\\HOME\\A.GTP"}, true, false, false},
                      ExitFlagRow{"WriteFailed", {"\\HOME\\A.GTP"}, false, false, false},
                      ExitFlagRow{"DialogFailed", {""}, true, true, false},
                      ExitFlagRow{"DialogCancelled", {""}, true, false, true}),
    RowName());

TEST_F(FileMenuTest, SaveClearsTheExitFlagToo) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  bSaveBeforeExit = true;
  SaveProgram();
  EXPECT_FALSE(bSaveBeforeExit);
}

}  // namespace

}  // namespace glidetrak
