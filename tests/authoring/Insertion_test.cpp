// The exact text that reaches the program.

#include "authoring/CatalogueTexts.h"
#include "authoring/PickerTest.h"

namespace glidetrak {

namespace {

TEST_F(PickerTest, EveryNameGoesInWithItsBlankOrItsLineEndSelected) {
  for (const CatalogueText& row : aCatalogue) {
    station.SetProgram("");
    Insert(row.sName);
    const QString sText = row.sName + QString(row.bTakesArgument ? " " : "\r\n");
    EXPECT_EQ(txtProgram.Text(), sText);
    EXPECT_EQ(txtProgram.SelStart(), 0) << row.sName;
    EXPECT_EQ(txtProgram.SelLength(), sText.size()) << row.sName;
    EXPECT_FALSE(pnlCommandSel.Visible) << row.sName;
  }
}

TEST_F(PickerTest, PrintInAnEmptyEditorIsSixSelectedCharacters) {
  Insert("PRINT");
  EXPECT_EQ(txtProgram.SelText(), "PRINT ");
  EXPECT_EQ(txtProgram.SelLength(), 6);
}

TEST_F(PickerTest, HaltInAnEmptyEditorIsSixSelectedCharacters) {
  Insert("HALT");
  EXPECT_EQ(txtProgram.SelText(), "HALT\r\n");
  EXPECT_EQ(txtProgram.SelLength(), 6);
}

TEST_F(PickerTest, NameReplacesTheSelectedStretch) {
  station.SetProgram("ABCDEF");
  txtProgram.Select(2, 3);
  Insert("GOTO");
  EXPECT_EQ(txtProgram.Text(), "ABGOTO F");
  EXPECT_EQ(txtProgram.SelStart(), 2);
  EXPECT_EQ(txtProgram.SelText(), "GOTO ");
}

TEST_F(PickerTest, NameGoesInAtTheCaret) {
  station.SetProgram("HALT\r\nHALT");
  txtProgram.Select(6, 0);
  Insert("BEEP");
  EXPECT_EQ(txtProgram.Text(), "HALT\r\nBEEP\r\nHALT");
  EXPECT_EQ(txtProgram.SelStart(), 6);
  EXPECT_EQ(txtProgram.SelLength(), 6);
}

TEST_F(PickerTest, InsertionCountsAsAChange) {
  bProgramDirty = bNeedCompile = false;
  Insert("HALT");
  EXPECT_TRUE(bProgramDirty);
  EXPECT_TRUE(bNeedCompile);
  EXPECT_TRUE(MNUSAVEPROG.Enabled);
}

TEST_F(PickerTest, InsertionLeavesTheKeptSelectionAndForgetsItsText) {
  lSavedSelStart = 3;
  lSavedSelLength = 2;
  sSavedSelText = "AL";
  Insert("HALT");
  EXPECT_EQ(lSavedSelStart, 3);
  EXPECT_EQ(lSavedSelLength, 2);
  EXPECT_EQ(sSavedSelText, "");
}

TEST_F(PickerTest, KeptSelectionReplacesTheInsertionsAtTheNextFocus) {
  station.SetProgram("ABCDEF");
  txtProgram.Select(1, 2);
  txtProgram.LostFocus();
  Insert("HALT");
  EXPECT_EQ(txtProgram.SelLength(), 6);
  txtProgram.GotFocus();
  EXPECT_EQ(txtProgram.SelStart(), 1);
  EXPECT_EQ(txtProgram.SelLength(), 2);
}

TEST_F(PickerTest, FocusIsAskedForWhileTheEditorIsStillDisabled) {
  int iAsked = 0;
  bool bEnabled = true;
  txtProgram.SetFocus = [&] {
    ++iAsked;
    bEnabled = txtProgram.Enabled;
  };
  Insert("HALT");
  EXPECT_EQ(iAsked, 1);
  EXPECT_FALSE(bEnabled);
  EXPECT_TRUE(txtProgram.Enabled);
}

TEST_F(PickerTest, DoubleClickInTheListInserts) {
  Mark("LET");
  lstProgCommands.DblClick();
  EXPECT_EQ(txtProgram.Text(), "LET ");
  EXPECT_FALSE(pnlCommandSel.Visible);
}

TEST_F(PickerTest, NothingIsInsertedWhileAProgramRuns) {
  Mark("LET");
  bProgramRunning = true;
  btnSelectComSel.Click();
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_FALSE(pnlCommandSel.Visible);
}

}  // namespace

}  // namespace glidetrak
