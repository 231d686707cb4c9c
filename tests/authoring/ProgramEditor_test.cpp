// The program editor's events and the reset of the program's state.

#include "authoring/ProgramEditor.h"

#include <gtest/gtest.h>

#include "authoring/Document.h"
#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "language/Expressions.h"
#include "language/Keywords.h"
#include "language/RunControl.h"
#include "station/Station.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

class ProgramEditor : public ::testing::Test {
 protected:
  void SetUp() override {
    station.Start(Link::Parallel);
    station.EnterProgramMode();
  }

  Station station;
};

TEST_F(ProgramEditor, IsEmptyAfterAReset) {
  txtProgram.SetText("BEEP");
  txtProgram.Select(1, 2);
  ResetProgramState();
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_EQ(txtProgram.SelStart(), 0);
  EXPECT_EQ(txtProgram.SelLength(), 0);
}

TEST_F(ProgramEditor, ForgetsTheRunAtAReset) {
  lCurrentLine = 5;
  bEditorHasFocus = true;
  bProgramRunning = true;
  bTraceArmed = true;
  bInIfBlock = true;
  bIfCondition = true;
  ResetProgramState();
  EXPECT_EQ(lCurrentLine, 0);
  EXPECT_FALSE(bEditorHasFocus);
  EXPECT_FALSE(bProgramRunning);
  EXPECT_FALSE(bTraceArmed);
  EXPECT_FALSE(bInIfBlock);
  EXPECT_FALSE(bIfCondition);
}

TEST_F(ProgramEditor, ForgetsTheSavedSelectionAndTheFileAtAReset) {
  lSavedSelStart = 3;
  lSavedSelLength = 4;
  sSavedSelText = "ABCD";
  sProgramFile = "\\A.GTP";
  ResetProgramState();
  EXPECT_EQ(lSavedSelStart, 0);
  EXPECT_EQ(lSavedSelLength, 0);
  EXPECT_EQ(sSavedSelText, "");
  EXPECT_EQ(sProgramFile, "");
}

TEST_F(ProgramEditor, PutsTheDisplaysBackAtAReset) {
  pnlMessage.Visible = true;
  lblAnalogVal.Caption = "9";
  lblPowerLevel.Caption = "9";
  ResetProgramState();
  EXPECT_FALSE(pnlMessage.Visible);
  EXPECT_EQ(lblAnalogVal.Caption, "0");
  EXPECT_EQ(lblPowerLevel.Caption, "0");
}

TEST_F(ProgramEditor, SendsNothingToTheRigAtAReset) {
  SetDirection(0);
  station.Forget();
  ResetProgramState();
  EXPECT_EQ(iDirection, 1);
  EXPECT_EQ(lOutputImage, 0);
  EXPECT_TRUE(station.WrittenBytes().empty());
}

TEST_F(ProgramEditor, ReadsTheKeywordsAtAReset) {
  KeywordTable.fill("");
  ResetProgramState();
  EXPECT_EQ(Word(Keyword::Print), "PRINT");
  EXPECT_EQ(Word(Keyword::SoundSensor), "SOUND_SENSOR");
}

TEST_F(ProgramEditor, TakesTheTextEmptiedByAResetForAChange) {
  txtProgram.SetText("BEEP");
  bProgramDirty = false;
  ResetProgramState();
  EXPECT_TRUE(bProgramDirty);
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

TEST_F(ProgramEditor, TakesAChangeForOneUnlessAProgramRunsOrStartUpLoads) {
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

TEST_F(ProgramEditor, LeavesSaveEnabledWhenItIsClearedByHand) {
  txtProgram.UserEdit(0, 0, "X");
  txtProgram.UserEdit(0, 1, "");
  EXPECT_TRUE(MNUSAVEPROG.Enabled);
  EXPECT_TRUE(MNUSAVEPROGAS.Enabled);
}

TEST_F(ProgramEditor, LeavesTheTextAsItWasTyped) {
  txtProgram.UserEdit(0, 0, "print \"Hi\"\r\n");
  station.Click("cmdRunProgram");
  EXPECT_EQ(txtProgram.Text(), "print \"Hi\"\r\n");
}

struct FocusRow {
  int iStart, iLength;  ///< when the focus was lost
  bool bPutBack;
};

const FocusRow FocusRows[] = {{2, 3, true}, {0, 3, false}, {2, 0, false}, {0, 0, false}};

TEST_F(ProgramEditor, PutsASelectionBackThatStartsBehindTheFirstCharacter) {
  txtProgram.SetText("ABCDEFGH");
  for (const FocusRow& row : FocusRows) {
    txtProgram.Select(row.iStart, row.iLength);
    txtProgram.LostFocus();
    EXPECT_FALSE(bEditorHasFocus);
    txtProgram.Select(7, 1);
    txtProgram.GotFocus();
    EXPECT_TRUE(bEditorHasFocus);
    EXPECT_EQ(txtProgram.SelStart(), row.bPutBack ? row.iStart : 7) << row.iStart << row.iLength;
    EXPECT_EQ(txtProgram.SelLength(), row.bPutBack ? row.iLength : 1) << row.iStart;
  }
}

TEST_F(ProgramEditor, SendsTheFocusOnToTheStopButtonWhileAProgramRuns) {
  int iFocus = 0;
  btnStopProg.SetFocus = [&] { ++iFocus; };
  bProgramRunning = true;
  bEditorHasFocus = false;
  txtProgram.GotFocus();
  EXPECT_EQ(iFocus, 1);
  EXPECT_FALSE(bEditorHasFocus);
  bProgramRunning = false;
  txtProgram.GotFocus();
  EXPECT_EQ(iFocus, 1);
}

TEST_F(ProgramEditor, KeepsItsSelectionWhenItLosesTheFocusToARun) {
  lSavedSelStart = 1;
  txtProgram.SetText("ABCD");
  txtProgram.Select(2, 2);
  bProgramRunning = true;
  txtProgram.LostFocus();
  EXPECT_EQ(lSavedSelStart, 1);
}

struct DoubleClickRow {
  int iCaret;
  int iStart, iLength;
};

const DoubleClickRow DoubleClickRows[] = {{0, 0, 4}, {3, 0, 4},  {4, 4, 0},  {6, 6, 0},
                                          {8, 8, 5}, {12, 8, 5}, {13, 13, 0}};

TEST_F(ProgramEditor, SelectsALineOfTheLastCompileByADoubleClick) {
  txtProgram.SetText("BEEP\r\n\r\nBREAK");
  CompileProgram();
  for (const DoubleClickRow& row : DoubleClickRows) {
    txtProgram.Select(row.iCaret, 0);
    txtProgram.DblClick();
    EXPECT_EQ(txtProgram.SelStart(), row.iStart) << row.iCaret;
    EXPECT_EQ(txtProgram.SelLength(), row.iLength) << row.iCaret;
  }
}

TEST_F(ProgramEditor, SelectsNothingByADoubleClickAheadOfTheFirstCompile) {
  txtProgram.SetText("BEEP");
  txtProgram.Select(1, 0);
  txtProgram.DblClick();
  EXPECT_EQ(txtProgram.SelStart(), 1);
  EXPECT_EQ(txtProgram.SelLength(), 0);
}

TEST_F(ProgramEditor, SelectsNothingByADoubleClickWhileAProgramRuns) {
  txtProgram.SetText("BEEP");
  CompileProgram();
  txtProgram.Select(1, 0);
  bProgramRunning = true;
  txtProgram.DblClick();
  EXPECT_EQ(txtProgram.SelLength(), 0);
}

TEST_F(ProgramEditor, ThrowsAwayTheKeysOfItsFocusKeeper) {
  txtFocusGrab.SetText("asdf");
  txtFocusGrab.LostFocus();
  EXPECT_EQ(txtFocusGrab.Text(), "");
}

}  // namespace
}  // namespace glidetrak
