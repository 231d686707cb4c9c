// The focus of the editor and of its keeper.

#include "files/PresetTest.h"

namespace glidetrak {

namespace {

class EditorFocus : public PresetTest {
 protected:
  void SetUp() override {
    station.Start();
    txtProgram.SetText("FORWARD");
    txtFocusGrab.SetFocus = [this] { ++iGrabbed; };
    txtProgram.SetFocus = [this] { ++iGiven; };
    btnStopProg.SetFocus = [this] { ++iPassedOn; };
  }

  int iGrabbed = 0, iGiven = 0, iPassedOn = 0;
};

struct SelectionRow {
  qint32 lStart, lLength;
  bool bPutBack;
};

TEST_F(EditorFocus, SelectionComesBackWhenStartAndLengthAreAboveZero) {
  const SelectionRow rows[] = {
      {0, 0, false}, {0, 3, false}, {3, 0, false}, {1, 1, true}, {3, 2, true}};
  for (const SelectionRow& row : rows) {
    txtProgram.Select(row.lStart, row.lLength);
    txtProgram.LostFocus();
    EXPECT_FALSE(bEditorHasFocus);
    txtProgram.Select(7, 0);
    txtProgram.GotFocus();
    EXPECT_TRUE(bEditorHasFocus);
    EXPECT_EQ(txtProgram.SelStart(), row.bPutBack ? row.lStart : 7) << row.lStart;
    EXPECT_EQ(txtProgram.SelLength(), row.bPutBack ? row.lLength : 0) << row.lLength;
  }
}

TEST_F(EditorFocus, LossKeepsStartLengthAndText) {
  txtProgram.Select(3, 2);
  txtProgram.LostFocus();
  EXPECT_EQ(lSavedSelStart, 3);
  EXPECT_EQ(lSavedSelLength, 2);
  EXPECT_EQ(sSavedSelText, "WA");
}

TEST_F(EditorFocus, GoesOnToStopWhileAProgramRuns) {
  bProgramRunning = true;
  txtProgram.GotFocus();
  EXPECT_EQ(iPassedOn, 1);
  EXPECT_FALSE(bEditorHasFocus);
}

TEST_F(EditorFocus, LossDuringARunKeepsNothing) {
  bEditorHasFocus = true;
  txtProgram.Select(3, 2);
  bProgramRunning = true;
  txtProgram.LostFocus();
  EXPECT_TRUE(bEditorHasFocus);
  EXPECT_EQ(lSavedSelLength, 0);
}

struct GrabRow {
  Control* pControl;
  bool bRunning, bActive, bEditorFocus;
  int iGrabbed;
};

TEST_F(EditorFocus, IsGrabbedByTheMouseFromWhateverElseHeldIt) {
  const GrabRow rows[] = {
      {&txtProgram, false, true, false, 1},       {&txtProgram, false, true, true, 0},
      {&txtProgram, false, false, false, 0},      {&txtProgram, true, true, false, 0},
      {&imgProgBoxBack, false, true, false, 1},   {&imgProgBoxBack, false, true, true, 0},
      {&imgProgBoxBack, false, false, false, 0},  {&imgProgBoxBack, true, true, false, 0},
      {&cmdShowExamples, false, true, false, 1},  {&cmdShowExamples, false, true, true, 0},
      {&cmdShowExamples, false, false, false, 0}, {&cmdShowExamples, true, true, false, 1},
      {&cmdShowExamples, true, true, true, 0},    {&cmdShowExamples, true, false, false, 0},
      {&pnlProgramBox, false, true, false, 0},    {&cmdRunProgram, false, true, false, 0},
      {&cmdProgCommands, false, true, false, 0},  {&cmdSingleStep, false, true, false, 0},
      {&btnStopProg, false, true, false, 0},
  };
  for (const GrabRow& row : rows) {
    iGrabbed = 0;
    bProgramRunning = row.bRunning;
    platform.bMainWindowActive = row.bActive;
    bEditorHasFocus = row.bEditorFocus;
    row.pControl->MouseMove(0, 10, 10);
    EXPECT_EQ(iGrabbed, row.iGrabbed) << "row " << &row - rows;
  }
}

TEST_F(EditorFocus, IsNeverGivenToTheEditorByAMouseMove) {
  txtProgram.MouseMove(0, 10, 10);
  imgProgBoxBack.MouseMove(0, 10, 10);
  EXPECT_EQ(iGiven, 0);
}

}  // namespace

}  // namespace glidetrak
