// Writes that fail. The old file is gone before the first byte is written. One that breaks off
// leaves the one file slot open until the process ends, one that cannot begin leaves it free.

#include "files/FileMenuTest.h"
#include "programs/PresetCatalogue.h"

namespace glidetrak {

namespace {

const QString sWriteFault = "An error was encountered while attempting to save your program.";

class WriteFault : public FileMenuTest {
 protected:
  void SetUp() override {
    OpenFile("\\HOME\\A.GTP", "HALT");
    Type("BEEP\r\n");
    platform.aUnwritable = {"\\HOME\\A.GTP", "\\HOME\\B.GTP"};
  }
};

TEST_F(WriteFault, IsToldAndTheChangesStayUnsaved) {
  SaveProgram();
  ExpectBox(sWriteFault, "Save Program", BoxIcon::Exclamation);
  EXPECT_TRUE(bProgramDirty);
  EXPECT_EQ(txtProgram.Text(), "BEEP\r\nHALT");
  EXPECT_EQ(sProgramFile, "\\HOME\\A.GTP");
  EXPECT_EQ(screen.MousePointer, ptrDefault);
}

TEST_F(WriteFault, TakesTheOldFileWithIt) {
  SaveProgram();
  EXPECT_FALSE(platform.FileBytes("\\HOME\\A.GTP"));
}

TEST_F(WriteFault, UnderANewNameLeavesThatNameAndTheOldTitle) {
  save.aReplies = {{"\\HOME\\B.GTP"}};
  SaveProgramAs();
  ExpectBox(sWriteFault, "Save Program", BoxIcon::Exclamation);
  EXPECT_EQ(sProgramFile, "\\HOME\\B.GTP");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "A.GTP : Glidetrak Control");
  EXPECT_TRUE(bProgramDirty);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
}

TEST_F(WriteFault, MakesEveryLaterOpenFail) {
  platform.AddFile("\\HOME\\C.GTP", "BREAK");
  SaveProgram();
  platform.aAnswers = {BoxAnswer::No};
  open.aReplies = {{"\\HOME\\C.GTP"}};
  OpenProgram();
  EXPECT_EQ(platform.aBoxes.back().sTitle, "Unable to Open Program");
  EXPECT_EQ(txtProgram.Text(), "BEEP\r\nHALT");
}

TEST_F(WriteFault, MakesEveryLaterSaveFail) {
  SaveProgram();
  platform.aUnwritable.clear();
  save.aReplies = {{"\\HOME\\D.GTP"}};
  SaveProgramAs();
  EXPECT_EQ(station.BoxTexts(), QStringList({sWriteFault, sWriteFault}));
  EXPECT_FALSE(platform.FileBytes("\\HOME\\D.GTP"));
}

TEST_F(WriteFault, MakesPresetFilesUnreadable) {
  platform.AddFile("\\STATION\\Examples\\E.GTP", "BREAK");
  ASSERT_EQ(ReadPresetText("E.GTP"), "BREAK");
  SaveProgram();
  EXPECT_EQ(ReadPresetText("E.GTP"), "");
}

TEST_F(WriteFault, OfADeleteKeepsTheOldFileAndTheSlot) {
  platform.aUnwritable.clear();
  platform.aUndeletable = {"\\HOME\\A.GTP"};
  SaveProgram();
  ExpectBox(sWriteFault, "Save Program", BoxIcon::Exclamation);
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "HALT");
  EXPECT_TRUE(bProgramDirty);
  platform.aUndeletable.clear();
  SaveProgram();
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "BEEP\r\nHALT");
}

TEST_F(WriteFault, IsReportedByTheWriterItself) {
  bool bSuccess = true;
  WriteProgramFile("\\HOME\\A.GTP", "HALT", bSuccess);
  EXPECT_FALSE(bSuccess);
  ExpectNoBox();
}

class RefusedOpen : public FileMenuTest {
 protected:
  void SetUp() override {
    OpenFile("\\HOME\\A.GTP", "HALT");
    Type("BEEP\r\n");
    platform.AddFile("\\HOME\\FOLDER.GTP", "", attrFolder);
    save.aReplies = {{"\\HOME\\FOLDER.GTP"}};
    SaveProgramAs();
  }
};

TEST_F(RefusedOpen, IsToldAndTheChangesStayUnsaved) {
  ExpectBox(sWriteFault, "Save Program", BoxIcon::Exclamation);
  EXPECT_TRUE(bProgramDirty);
  EXPECT_EQ(sProgramFile, "\\HOME\\FOLDER.GTP");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "A.GTP : Glidetrak Control");
}

TEST_F(RefusedOpen, LetsTheNextSaveReplaceTheGoodFile) {
  save.aReplies = {{"\\HOME\\A.GTP"}};
  SaveProgramAs();
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "BEEP\r\nHALT");
  EXPECT_FALSE(bProgramDirty);
}

TEST_F(RefusedOpen, LetsTheNextFileBeOpened) {
  bProgramDirty = false;
  OpenFile("\\HOME\\B.GTP", "BREAK");
  EXPECT_EQ(txtProgram.Text(), "BREAK");
}

TEST_F(FileMenuTest, WriterCreatesReplacesAndClearsTheChangedFlag) {
  for (const char* sText : {"LONG PROGRAM", "S", ""}) {
    bProgramDirty = true;
    bool bSuccess = false;
    WriteProgramFile("\\HOME\\A.GTP", sText, bSuccess);
    EXPECT_TRUE(bSuccess) << sText;
    EXPECT_FALSE(bProgramDirty) << sText;
    EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), sText);
  }
}

}  // namespace

}  // namespace glidetrak
