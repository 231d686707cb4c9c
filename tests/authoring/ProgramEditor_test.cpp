// The program editor: changes, the double click, the reset.

#include "files/PresetTest.h"
#include "language/Keywords.h"
#include "language/RunState.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

class EditorTest : public PresetTest {
 protected:
  void SetUp() override { station.Start(); }

  void Compile(const QString& sText) {
    txtProgram.SetText(sText);
    ASSERT_TRUE(CompileProgram());
  }

  /// The selection after a double click with the caret at that place.
  std::pair<int, int> DoubleClickAt(int iCaret) {
    txtProgram.Select(iCaret, 0);
    txtProgram.DblClick();
    return {txtProgram.SelStart(), txtProgram.SelLength()};
  }

  using Stretch = std::pair<int, int>;
};

TEST_F(EditorTest, ChangeMarksTheProgram) {
  bNeedCompile = false;
  Type("halt");
  EXPECT_TRUE(bNeedCompile);
  EXPECT_TRUE(bProgramDirty);
  EXPECT_EQ(txtProgram.Text(), "halt");
}

TEST_F(EditorTest, SecondKeystrokeLeavesTheMenuAsItIs) {
  Type("H");
  MNUSAVEPROG.Enabled = false;
  MNUSAVEPROGAS.Enabled = false;
  Type("A");
  EXPECT_FALSE(MNUSAVEPROG.Enabled);
  EXPECT_FALSE(MNUSAVEPROGAS.Enabled);
}

TEST_F(EditorTest, ClearingByHandLeavesSaveEnabled) {
  Type("H");
  txtProgram.UserEdit(0, 1, "");
  EXPECT_TRUE(MNUSAVEPROG.Enabled);
  EXPECT_TRUE(MNUSAVEPROGAS.Enabled);
}

/// A change of the text in that state, Save and Save As off, and what comes of it.
struct ChangeRow {
  bool bRunning;
  bool bLoading;
  bool bDirtyBefore;
  bool bNeedsCompile;
  bool bDirty;
  bool bSaveEnabled;
};

const ChangeRow ChangeRows[] = {
    {false, false, false, true, true, true},   {false, false, true, true, true, false},
    {true, false, false, false, false, false}, {true, false, true, false, true, false},
    {false, true, false, false, false, false}, {true, true, false, false, false, false},
};

TEST_F(EditorTest, ChangeCountsUnlessAProgramRunsOrStartUpLoads) {
  for (const ChangeRow& row : ChangeRows) {
    SCOPED_TRACE(row.bRunning * 4 + row.bLoading * 2 + row.bDirtyBefore);
    bNeedCompile = false;
    bProgramDirty = row.bDirtyBefore;
    bProgramRunning = row.bRunning;
    bLoading = row.bLoading;
    MNUSAVEPROG.Enabled = false;
    MNUSAVEPROGAS.Enabled = false;
    txtProgram.UserEdit(0, 0, "X");
    EXPECT_EQ(bNeedCompile, row.bNeedsCompile);
    EXPECT_EQ(bProgramDirty, row.bDirty);
    EXPECT_EQ(MNUSAVEPROG.Enabled, row.bSaveEnabled);
    EXPECT_EQ(MNUSAVEPROGAS.Enabled, row.bSaveEnabled);
  }
}

TEST_F(EditorTest, DoubleClickSelectsTheLineWithoutItsEnd) {
  Compile("HALT\r\n\r\n  beep now");
  EXPECT_EQ(DoubleClickAt(0), Stretch(0, 4));
  EXPECT_EQ(DoubleClickAt(3), Stretch(0, 4));
  EXPECT_EQ(DoubleClickAt(8), Stretch(8, 10));
  EXPECT_EQ(DoubleClickAt(17), Stretch(8, 10));
}

TEST_F(EditorTest, DoubleClickSelectsNothingOnABlankLineOrAtALinesEnd) {
  Compile("HALT\r\n\r\n  beep now");
  for (const int iCaret : {4, 5, 6, 7, 18}) EXPECT_EQ(DoubleClickAt(iCaret), Stretch(iCaret, 0));
}

TEST_F(EditorTest, DoubleClickBeforeAnyCompileSelectsNothing) {
  txtProgram.SetText("HALT");
  EXPECT_EQ(DoubleClickAt(1), Stretch(1, 0));
}

TEST_F(EditorTest, DoubleClickAfterEditsTakesTheLinesOfTheLastCompile) {
  Compile("HALT\r\nBEEP");
  Type("XX");
  EXPECT_EQ(DoubleClickAt(1), Stretch(0, 4));
  EXPECT_EQ(DoubleClickAt(7), Stretch(6, 4));
}

TEST_F(EditorTest, DoubleClickDuringARunSelectsNothing) {
  Compile("HALT");
  bProgramRunning = true;
  EXPECT_EQ(DoubleClickAt(1), Stretch(1, 0));
}

TEST_F(EditorTest, LowerCaseProgramCompilesAndStaysAsTyped) {
  Compile("  let c = 1");
  EXPECT_EQ(txtProgram.Text(), "  let c = 1");
  EXPECT_EQ(LineTable.at(0).sText, "LETC=1");
}

TEST_F(EditorTest, SpaceDuringARunStopsItAndStaysOutOfTheText) {
  bProgramRunning = true;
  int iCharCode = ' ';
  txtProgram.KeyPress(iCharCode);
  EXPECT_EQ(iCharCode, 0);
  EXPECT_FALSE(bProgramRunning);
  EXPECT_EQ(txtProgram.Text(), "");
}

TEST_F(EditorTest, KeysPassWhileNoProgramRuns) {
  for (TextBox* pBox : {&txtProgram, &txtFocusGrab}) {
    int iKey = ' ';
    pBox->KeyDown(iKey);
    pBox->KeyPress(iKey);
    pBox->KeyUp(iKey);
    EXPECT_EQ(iKey, ' ');
  }
}

TEST_F(EditorTest, FocusKeeperThrowsItsKeysAway) {
  txtFocusGrab.UserEdit(0, 0, "abc");
  txtFocusGrab.LostFocus();
  EXPECT_EQ(txtFocusGrab.Text(), "");
  EXPECT_EQ(txtProgram.Text(), "");
}

TEST_F(EditorTest, ResetEmptiesTheEditorAndItsSelection) {
  Type("HALT");
  txtProgram.Select(1, 2);
  lSavedSelStart = 3;
  lSavedSelLength = 2;
  sSavedSelText = "AL";
  ResetProgramState();
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_EQ(txtProgram.SelStart(), 0);
  EXPECT_EQ(txtProgram.SelLength(), 0);
  EXPECT_EQ(lSavedSelStart, 0);
  EXPECT_EQ(lSavedSelLength, 0);
  EXPECT_EQ(sSavedSelText, "");
}

TEST_F(EditorTest, ResetPutsTheRunStateBack) {
  bEditorHasFocus = bProgramRunning = bTraceArmed = true;
  bInIfBlock = bIfCondition = true;
  lCurrentLine = 7;
  sProgramFile = "\\A.GTP";
  ResetProgramState();
  EXPECT_FALSE(bEditorHasFocus || bProgramRunning || bTraceArmed);
  EXPECT_FALSE(bInIfBlock || bIfCondition);
  EXPECT_EQ(lCurrentLine, 0);
  EXPECT_EQ(sProgramFile, "");
}

TEST_F(EditorTest, ResetClearsTheDisplaysAndHidesTheMessage) {
  pnlMessage.Visible = true;
  lblAnalogVal.Caption = "9";
  lblPowerLevel.Caption = "9";
  ResetProgramState();
  EXPECT_FALSE(pnlMessage.Visible);
  EXPECT_EQ(lblAnalogVal.Caption.value(), "0");
  EXPECT_EQ(lblPowerLevel.Caption.value(), "0");
}

TEST_F(EditorTest, ResetReadsTheKeywords) {
  KeywordTable.fill("");
  ResetProgramState();
  EXPECT_EQ(Word(Keyword::Print), "PRINT");
  EXPECT_EQ(Word(Keyword::SoundSensor), "SOUND_SENSOR");
}

TEST_F(PresetTest, ResetChangesTheDirectionWithoutSendingIt) {
  station.Start(RigLink::Parallel);
  SetDirection(0);
  station.Forget();
  ResetProgramState();
  EXPECT_EQ(iDirection, 1);
  EXPECT_EQ(lOutputImage, 0);
  EXPECT_TRUE(station.WrittenBytes().empty());
}

TEST_F(EditorTest, ResetCountsAsAChangeOfATextThatWasThere) {
  txtProgram.SetText("HALT");
  bProgramDirty = false;
  ResetProgramState();
  EXPECT_TRUE(bProgramDirty);
}

}  // namespace

}  // namespace glidetrak
