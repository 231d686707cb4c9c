// The clicks of Load, Save and Save As, in virtual time.

#include "files/FileMenuTest.h"

namespace glidetrak {

namespace {

TEST_F(FileMenuTest, ClickOnLoadOpensTheChosenFile) {
  platform.AddFile("\\HOME\\A.GTP", "HALT");
  open.aReplies = {{"\\HOME\\A.GTP"}};
  station.Click("MNULOADPROG");
  EXPECT_EQ(txtProgram.Text(), "HALT");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "A.GTP : Glidetrak Control");
}

TEST_F(FileMenuTest, ClickOnSaveWritesTheFileWithoutADialog) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  Type("BEEP\r\n");
  station.Click("MNUSAVEPROG");
  EXPECT_EQ(platform.FileBytes("\\HOME\\A.GTP"), "BEEP\r\nHALT");
  EXPECT_TRUE(save.aShowings.empty());
}

TEST_F(FileMenuTest, ClickOnSaveAsAsksForANameThoughThereIsOne) {
  OpenFile("\\HOME\\A.GTP", "HALT");
  save.aReplies = {{"\\HOME\\B.GTP"}};
  station.Click("MNUSAVEPROGAS");
  EXPECT_EQ(platform.FileBytes("\\HOME\\B.GTP"), "HALT");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "B.GTP : Glidetrak Control");
}

TEST_F(FileMenuTest, ClicksOnSaveDoNothingWithoutAText) {
  ASSERT_TRUE(txtProgram.Text().isEmpty());
  NewProgram();
  for (const char* sEntry : {"MNUSAVEPROG", "MNUSAVEPROGAS"}) station.Click(sEntry);
  EXPECT_TRUE(save.aShowings.empty());
}

TEST_F(FileMenuTest, ClicksDoNothingWhileAProgramRuns) {
  OpenFile("\\HOME\\A.GTP", "WAIT 1000");
  platform.rig.AttachParallel();  // the first tick would tell of a rig that is not there
  station.EnterProgramMode();
  int iClicks = 0;
  for (const char* sEntry : {"MNULOADPROG", "MNUSAVEPROG", "MNUSAVEPROGAS"}) {
    station.After(500, [this, sEntry, &iClicks] {
      ASSERT_TRUE(bProgramRunning);
      station.Click(sEntry);
      ++iClicks;
    });
  }
  station.Click("cmdRunProgram");
  EXPECT_EQ(iClicks, 3);
  EXPECT_EQ(open.aShowings.size(), 1U) << "the one that opened the program";
  EXPECT_TRUE(save.aShowings.empty());
  ExpectNoBox();
}

TEST_F(FileMenuTest, TickGoesOnWhileADialogIsOpen) {
  Type("HALT");
  platform.rig.AttachParallel();
  platform.RunFor(5100);
  ASSERT_TRUE(bLinkUp);
  save.aReplies = {{""}};
  save.OnShow = [this] {
    platform.rig.lInput = 0x02;
    platform.RunFor(100);
  };
  station.Click("MNUSAVEPROGAS");
  EXPECT_EQ(lInputImage & 0x7F, 0x02);
}

}  // namespace

}  // namespace glidetrak
