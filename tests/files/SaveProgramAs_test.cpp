// Save As.

#include "files/FileMenuTest.h"

namespace glidetrak {

namespace {

TEST_F(FileMenuTest, SaveDialogHasItsFields) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  save.aReplies = {{""}};
  SaveProgramAs();
  ASSERT_EQ(save.aShowings.size(), 1U);
  const Showing& shown = save.aShowings[0];
  EXPECT_EQ(shown.sFolder, "\\HOME\\");
  EXPECT_EQ(shown.sName, "\\HOME\\A.GTP");
  EXPECT_EQ(shown.sFilter, "Control Program (*.GTP)|*.GTP");
  EXPECT_EQ(shown.iFilterIndex, 0);
  EXPECT_EQ(shown.sTitle, "Save Program");
  EXPECT_EQ(shown.iFlags, 4100);
  EXPECT_EQ(shown.sDefaultExtension, "GTP");
  EXPECT_FALSE(shown.bCancelIsError);
}

TEST_F(FileMenuTest, SaveAsTakesANameThatIsNotThereYet) {
  Type("HALT");
  save.aReplies = {{"\\HOME\\first trip.gtp"}};
  SaveProgramAs();
  EXPECT_EQ(platform.FileBytes("\\HOME\\first trip.gtp"), "HALT");
  EXPECT_EQ(sProgramFile, "\\HOME\\first trip.gtp");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "FIRST TRIP.GTP : Glidetrak Control");
  EXPECT_FALSE(bProgramDirty);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  ExpectNoBox();
}

TEST_F(FileMenuTest, SaveAsReplacesAFileWithoutAQuestionOfItsOwn) {
  platform.AddFile("\\HOME\\B.GTP", "OLD AND LONGER");
  Type("HALT");
  save.aReplies = {{"\\HOME\\B.GTP"}};
  SaveProgramAs();
  EXPECT_EQ(platform.FileBytes("\\HOME\\B.GTP"), "HALT");
  ExpectNoBox();
}

TEST_F(FileMenuTest, SaveAsNeverMovesTheUsersFolder) {
  Type("HALT");
  save.aReplies = {{"\\ELSEWHERE\\A.GTP"}};
  SaveProgramAs();
  EXPECT_EQ(sUserFolder, "\\DOCUMENTS\\");
}

TEST_F(FileMenuTest, EmptyEditorIsSavedAsAFileOfNoBytes) {
  save.aReplies = {{"\\HOME\\A.GTP"}};
  SaveProgramAs();
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), QByteArray());
  open.aReplies = {{"\\HOME\\A.GTP"}};
  OpenProgram();
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_EQ(sProgramFile, "\\HOME\\A.GTP");
}

TEST_F(FileMenuTest, CancelledSaveAsChangesNothing) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  Type("BEEP\r\n");
  save.aReplies = {{""}};
  SaveProgramAs();
  EXPECT_EQ(sProgramFile, "\\HOME\\A.GTP");
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "HALT");
  EXPECT_TRUE(bProgramDirty);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  ExpectNoBox();
}

TEST_F(FileMenuTest, AnotherExtensionIsRefusedAndTheDialogComesBack) {
  Type("HALT");
  save.aReplies = {{"\\HOME\\A.txt", true}, {"\\HOME\\A.GTP"}};
  SaveProgramAs();
  ExpectBox(
      "Unable to Save the program to the selected file. The file is not a valid Control Program "
      "file.",
      "Save Program", BoxIcon::Exclamation);
  EXPECT_EQ(save.aShowings.size(), 2U);
  EXPECT_FALSE(platform.FileBytes("\\HOME\\A.txt"));
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "HALT");
}

TEST_F(FileMenuTest, MarkOfAnotherExtensionDoesNotOutliveItsShowing) {
  Type("HALT");
  save.aReplies = {{"\\HOME\\A.txt", true}, {""}};
  SaveProgramAs();
  EXPECT_EQ(save.aShowings.at(1).iFlags, 4100);
}

TEST_F(FileMenuTest, RefusedNameStaysTheProgramsPath) {
  Type("HALT");
  save.aReplies = {{"\\HOME\\A.txt", true}, {""}};
  SaveProgramAs();
  EXPECT_EQ(sProgramFile, "\\HOME\\A.txt");
  EXPECT_EQ(save.aShowings.at(1).sName, "\\HOME\\A.txt");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "Glidetrak Control");
}

TEST_F(FileMenuTest, ReadOnlyTargetIsToldAndTheDialogComesBack) {
  platform.AddFile("\\HOME\\B.GTP", "OLD", attrReadOnly);
  Type("HALT");
  save.aReplies = {{"\\HOME\\B.GTP"}, {""}};
  SaveProgramAs();
  ExpectBox("The Program file can not be saved because it has been set as Read-Only.",
            "Save Program", BoxIcon::Exclamation);
  EXPECT_EQ(save.aShowings.size(), 2U);
  EXPECT_EQ(platform.FileBytes("\\HOME\\B.GTP"), "OLD");
  EXPECT_EQ(sProgramFile, "\\HOME\\B.GTP");
}

TEST_F(FileMenuTest, SaveDialogThatFailsEndsSaveAsInSilence) {
  Type("HALT");
  save.OnShow = [] { throw RuntimeError(Fault::PlatformCall); };
  SaveProgramAs();
  ExpectNoBox();
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  EXPECT_TRUE(bProgramDirty);
}

}  // namespace

}  // namespace glidetrak
