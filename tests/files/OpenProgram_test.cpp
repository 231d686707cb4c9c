// Open, and what it makes of a file.

#include "files/FileMenuTest.h"
#include "strings/LanguageFunctions.h"

namespace glidetrak {

namespace {

QByteArray EveryByte() {
  QByteArray bytes(256, '\0');
  for (int i = 0; i < 256; ++i) bytes[i] = static_cast<char>(i);
  return bytes;
}

TEST_F(FileMenuTest, OpenDialogHasItsFields) {
  sUserFolder = "\\HOME\\";
  open.aReplies = {{""}};
  OpenProgram();
  ASSERT_EQ(open.aShowings.size(), 1U);
  const Showing& shown = open.aShowings[0];
  EXPECT_EQ(shown.sFolder, "\\HOME\\");
  EXPECT_EQ(shown.sName, "*.GTP");
  EXPECT_EQ(shown.sFilter,
            "Control Program (*.GTP)|*.GTP|Control Program [Version 1] (*.TXT)|*.TXT");
  EXPECT_EQ(shown.iFilterIndex, 1);
  EXPECT_EQ(shown.sTitle, "Open Program");
  EXPECT_EQ(shown.iFlags, 4100);
  EXPECT_EQ(shown.sDefaultExtension, "TXT");
  EXPECT_TRUE(shown.bCancelIsError);
}

TEST_F(FileMenuTest, OpenFilterFollowsTheLanguage) {
  iUILanguage = iSpanish;
  open.aReplies = {{""}};
  OpenProgram();
  const QString sWord = LoadTextFor(220, iSpanish);
  ASSERT_NE(sWord, "Control Program");
  EXPECT_EQ(open.aShowings.at(0).sFilter,
            sWord + " (*.GTP)|*.GTP|" + sWord + LoadTextFor(221, iSpanish) + " (*.TXT)|*.TXT");
}

TEST_F(FileMenuTest, BothDialogsBeginInTheDocumentsFolder) {
  open.aReplies = {{""}};
  save.aReplies = {{""}};
  OpenProgram();
  SaveProgramAs();
  EXPECT_EQ(open.aShowings.at(0).sFolder, "\\DOCUMENTS\\");
  EXPECT_EQ(save.aShowings.at(0).sFolder, "\\DOCUMENTS\\");
}

TEST_F(FileMenuTest, BlankUserFolderMeansTheDocumentsFolder) {
  sUserFolder = "  ";
  open.aReplies = {{""}};
  OpenProgram();
  EXPECT_EQ(open.aShowings.at(0).sFolder, "\\DOCUMENTS\\");
}

TEST_F(FileMenuTest, OpenTakesTextFileAndTitle) {
  OpenFile("\\HOME\\First trip.gtp", "forward\r\nHALT");
  EXPECT_EQ(txtProgram.Text(), "forward\r\nHALT");
  EXPECT_EQ(sProgramFile, "\\HOME\\First trip.gtp");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "FIRST TRIP.GTP : Glidetrak Control");
  EXPECT_EQ(iControlMode, modeProgram);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  ExpectNoBox();
}

TEST_F(FileMenuTest, TitleOfAPathWithoutFoldersIsThePath) {
  OpenFile("A.GTP", "HALT");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "A.GTP : Glidetrak Control");
}

TEST_F(FileMenuTest, TitleShowsNoMarkOfChanges) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  Type("B");
  EXPECT_TRUE(bProgramDirty);
  EXPECT_EQ(frmGlidetrak.Caption.value(), "A.GTP : Glidetrak Control");
}

TEST_F(FileMenuTest, OpenAsksAboutChangesAheadOfTheDialog) {
  Type("HALT");
  platform.aAnswers = {BoxAnswer::No};
  open.aReplies = {{""}};
  size_t iBoxesAtDialog = 0;
  open.OnShow = [&] { iBoxesAtDialog = platform.aBoxes.size(); };
  OpenProgram();
  EXPECT_EQ(iBoxesAtDialog, 1U);
  EXPECT_EQ(platform.aBoxes.at(0).sTitle, "Open Program");
}

TEST_F(FileMenuTest, CancelAfterNoLeavesTextAndFlagAsTheyWere) {
  Type("HALT");
  platform.aAnswers = {BoxAnswer::No};
  open.aReplies = {{""}};
  OpenProgram();
  EXPECT_EQ(txtProgram.Text(), "HALT");
  EXPECT_TRUE(bProgramDirty);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  EXPECT_EQ(sUserFolder, "\\DOCUMENTS\\");
}

TEST_F(FileMenuTest, DialogThatFailsEndsOpenInSilence) {
  open.OnShow = [] { throw RuntimeError(Fault::PlatformCall); };
  OpenProgram();
  ExpectNoBox();
  EXPECT_EQ(screen.MousePointer, ptrDefault);
}

TEST_F(FileMenuTest, DialogWithoutANameEndsOpen) {
  open.OnShow = [] { cmLoad.CancelError = false; };
  open.aReplies = {{""}};
  OpenProgram();
  ExpectNoBox();
  EXPECT_EQ(sUserFolder, "\\DOCUMENTS\\");
}

TEST_F(FileMenuTest, NameWithAnotherExtensionBringsTheDialogBack) {
  for (const char* sPath : {"\\H\\A.DOC", "\\H\\A", "\\H\\A.GTP.BAK", "ABC", "GTP", "X"}) {
    platform.AddFile(sPath, "HALT");
    open.aReplies = {{sPath}, {""}};
    open.aShowings.clear();
    station.Forget();
    OpenProgram();
    EXPECT_EQ(open.aShowings.size(), 2U) << sPath;
    ExpectBox("Unable to open the selected file. The file is not a valid Control Program file.",
              "Open Program", BoxIcon::Exclamation);
    EXPECT_EQ(txtProgram.Text(), "") << sPath;
  }
}

TEST_F(FileMenuTest, ShortNameKeepsTheExtensionOfTheNameBefore) {
  open.aReplies = {{"\\H\\A.DOC"}, {"GTP"}, {""}};
  OpenProgram();
  EXPECT_EQ(platform.aBoxes.size(), 2U);
}

TEST_F(FileMenuTest, FolderFollowsARefusedFileToo) {
  open.aReplies = {{"\\ELSEWHERE\\A.DOC"}, {""}};
  OpenProgram();
  EXPECT_EQ(sUserFolder, "\\ELSEWHERE\\");
  EXPECT_EQ(open.aShowings.at(1).sFolder, "\\ELSEWHERE\\");
}

TEST_F(FileMenuTest, FolderFollowsAFileThatCannotBeOpened) {
  open.aReplies = {{"\\ELSEWHERE\\A.GTP"}};
  OpenProgram();
  EXPECT_EQ(sUserFolder, "\\ELSEWHERE\\");
}

struct LostFile : NamedRow {
  bool bThere;
  int iAttributes;
};

class UnopenedFile : public FileMenuTest, public ::testing::WithParamInterface<LostFile> {};

TEST_P(UnopenedFile, IsToldAndLeavesTheProgramAsItWas) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  Type("BEEP\r\n");
  platform.aAnswers = {BoxAnswer::No};
  if (GetParam().bThere) platform.AddFile("\\HOME\\B.GTP", "BREAK", GetParam().iAttributes);
  platform.aUnreadable = {"\\HOME\\B.GTP"};
  open.aReplies = {{"\\HOME\\B.GTP"}};
  OpenProgram();
  ASSERT_EQ(platform.aBoxes.size(), 2U);
  EXPECT_EQ(platform.aBoxes[1].sText,
            "An error was encountered while trying to open the program file. Please ensure you "
            "have permissions to open this file.");
  EXPECT_EQ(platform.aBoxes[1].sTitle, "Unable to Open Program");
  EXPECT_EQ(platform.aBoxes[1].icon, BoxIcon::Exclamation);
  EXPECT_EQ(txtProgram.Text(), "BEEP\r\nHALT");
  EXPECT_EQ(sProgramFile, "\\HOME\\A.GTP");
  EXPECT_TRUE(bProgramDirty);
  EXPECT_EQ(frmGlidetrak.Caption.value(), "A.GTP : Glidetrak Control");
  EXPECT_EQ(screen.MousePointer, ptrDefault);
}

INSTANTIATE_TEST_SUITE_P(FileMenu, UnopenedFile,
                         ::testing::Values(LostFile{"Vanished", false, 0},
                                           LostFile{"Unreadable", true, 0},
                                           LostFile{"Folder", true, attrFolder}),
                         RowName());

TEST_F(FileMenuTest, OldFormatProgramIsNamedAfterTheNextFreeName) {
  platform.AddFile("\\HOME\\A.GTP", "1");
  platform.AddFile("\\HOME\\A1.GTP", "2");
  OpenFile("\\HOME\\A.TXT", "HALT");
  EXPECT_EQ(sProgramFile, "\\HOME\\A2.GTP");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "A2.GTP : Glidetrak Control");
  save.aReplies = {{""}};
  SaveProgram();
  EXPECT_EQ(save.aShowings.at(0).sName, "\\HOME\\A2.GTP");
}

TEST_F(FileMenuTest, OldFormatProgramIsNeverWrittenBack) {
  OpenFile("\\HOME\\A.TXT", "HALT");
  Type("BEEP\r\n");
  save.aReplies = {{"\\HOME\\A.GTP"}};
  SaveProgram();
  EXPECT_EQ(save.aShowings.at(0).sName, "\\HOME\\A.GTP");
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.TXT"), "HALT");
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "BEEP\r\nHALT");
}

TEST_F(FileMenuTest, EveryByteSurvivesOpenAndSave) {
  OpenFile("\\HOME\\A.GTP", EveryByte());
  ExpectNoBox();
  EXPECT_EQ(txtProgram.Text().size(), 256);
  SaveProgram();
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), EveryByte());
}

TEST_F(FileMenuTest, LineEndsStayAsTheFileHasThem) {
  for (const char* sText : {"A\nB\rC\r\nD", "A\r\n", "\r\n", "\n", "A"}) {
    OpenFile("\\HOME\\A.GTP", sText);
    EXPECT_EQ(txtProgram.Text(), sText);
    SaveProgram();
    EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), sText);
  }
}

TEST_F(FileMenuTest, FileOfNoBytesGivesAnEmptyProgram) {
  Type("HALT");
  platform.aAnswers = {BoxAnswer::No};
  OpenFile("\\HOME\\A.GTP", "");
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_EQ(sProgramFile, "\\HOME\\A.GTP");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "A.GTP : Glidetrak Control");
}

TEST_F(FileMenuTest, LoadingLeavesTheChangedFlagToItsCaller) {
  platform.AddFile("\\HOME\\A.GTP", "HALT");
  bool bSuccess = false;
  LoadProgramFile("\\HOME\\A.GTP", bSuccess);
  EXPECT_TRUE(bSuccess);
  EXPECT_TRUE(bProgramDirty);
}

}  // namespace

}  // namespace glidetrak
