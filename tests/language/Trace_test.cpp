// Trace: one line a press.

#include "language/LanguageTest.h"
#include "language/RunControl.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

class Trace : public LanguageTest {
 protected:
  void Press(int iTimes = 1) {
    for (int i = 0; i < iTimes; ++i) station.Click("cmdSingleStep");
  }
};

TEST_F(Trace, LocksTheMenusAloneAndShowsTheHourglassOverTheScreen) {
  bool bAsTold = false;
  station.After(50, [&] {
    bAsTold = bProgramRunning && !MNUMAIN.Enabled && !MNUHELP.Enabled && !MNUPROGRAMOPT.Enabled &&
              txtProgram.Enabled && cmdRunProgram.Enabled && cmbExamples.Enabled &&
              cmdShowExamples.Enabled && screen.MousePointer == ptrHourglass;
  });
  station.SetProgram("WAIT 100");
  Press();
  EXPECT_TRUE(bAsTold);
  EXPECT_TRUE(MNUMAIN.Enabled && MNUHELP.Enabled && MNUPROGRAMOPT.Enabled);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
}

TEST_F(Trace, ClearsVariablesWhenTheTextHasChanged) {
  station.SetProgram("LET A=A+1\r\nLET A=A+1\r\nBEEP");
  Press();
  txtProgram.UserEdit(0, 0, " ");
  Press();
  EXPECT_EQ(Variable('A'), 1);
}

TEST_F(Trace, GivesTheEditorBackBehindABreak) {
  station.SetProgram("BREAK\r\nBEEP");
  Press();
  EXPECT_TRUE(txtProgram.Enabled);
}

TEST_F(Trace, LeavesThePositionAfterACompileError) {
  station.SetProgram("BEEP\r\nBEEP\r\nBEEP");
  Press(2);
  station.SetProgram("BEEP\r\nBEEP\r\nLABEL");
  Press();
  EXPECT_EQ(lCurrentLine, 2);
  EXPECT_EQ(station.BoxTexts(), QStringList(English(504)));
  EXPECT_FALSE(bProgramRunning);
  EXPECT_TRUE(MNUMAIN.Enabled);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
}

/// Presses at the end of a program of so many lines, each a LET that adds its weight to A.
struct EndRow {
  int iLines;
  qint32 lLineAfterEnd;
  Selection selection;
  qint16 iLinesBehind;  ///< lines executed by one more press
};

const EndRow EndRows[] = {
    {1, 1, {0, 0}, 0},
    {2, 2, {11, 9}, 0},
    {3, 2, {11, 9}, 100},
    {4, 2, {11, 9}, 100},
};

TEST_F(Trace, GoesOnAtTheThirdLineBehindItsEnd) {
  const QStringList aLines{"LET A=A+1", "LET A=A+9", "LET A=A+100", "LET A=A+500"};
  for (const EndRow& row : EndRows) {
    SCOPED_TRACE(row.iLines);
    station.SetProgram(aLines.mid(0, row.iLines).join("\r\n"));
    lCurrentLine = 0;
    Press(row.iLines);
    EXPECT_EQ(lCurrentLine, row.iLines);
    Variable('A') = 0;
    Press();
    EXPECT_EQ(lCurrentLine, row.lLineAfterEnd);
    EXPECT_EQ(SelectionNow(), row.selection);
    EXPECT_EQ(Variable('A'), 0);
    Press();
    EXPECT_EQ(Variable('A'), row.iLinesBehind);
  }
}

TEST_F(Trace, LeavesTheScreenUnlockedAtItsEnd) {
  station.SetProgram("BEEP");
  Press(2);
  EXPECT_TRUE(txtProgram.Enabled);
  EXPECT_TRUE(cmdRunProgram.Enabled);
  EXPECT_TRUE(MNUMAIN.Enabled);
  EXPECT_FALSE(bProgramRunning);
}

class PrepareTraceTest : public LanguageTest {};

struct CaretRow {
  int iCaret;
  Selection selection;
};

const CaretRow CaretRows[] = {
    {0, {0, 4}}, {3, {0, 4}}, {4, {4, 0}},  {5, {5, 0}},
    {6, {6, 0}}, {8, {8, 5}}, {12, {8, 5}}, {13, {13, 0}},
};

TEST_F(PrepareTraceTest, SelectsTheLineAtTheCaret) {
  for (const CaretRow& row : CaretRows) {
    station.SetProgram("BEEP\r\n\r\nBREAK");
    txtProgram.Select(row.iCaret, 0);
    bTraceArmed = false;
    PrepareTrace();
    EXPECT_EQ(SelectionNow(), row.selection) << row.iCaret;
    EXPECT_TRUE(bTraceArmed);
    EXPECT_FALSE(bNeedCompile);
  }
}

TEST_F(PrepareTraceTest, DoesItsWorkOnce) {
  station.SetProgram("BEEP\r\nBREAK");
  PrepareTrace();
  txtProgram.Select(7, 0);
  PrepareTrace();
  EXPECT_EQ(SelectionNow(), (Selection{7, 0}));
}

TEST_F(PrepareTraceTest, DoesNothingWhileAProgramRuns) {
  station.SetProgram("BEEP\r\nBREAK");
  bProgramRunning = true;
  PrepareTrace();
  bProgramRunning = false;
  EXPECT_FALSE(bTraceArmed);
  EXPECT_TRUE(bNeedCompile);
}

TEST_F(PrepareTraceTest, LeavesTheFaultyLineSelectedAfterACompileError) {
  station.SetProgram("BEEP\r\nLABEL");
  PrepareTrace();
  EXPECT_FALSE(bTraceArmed);
  EXPECT_EQ(SelectionNow(), (Selection{6, 5}));
  EXPECT_EQ(station.BoxTexts(), QStringList(English(504)));
}

TEST_F(PrepareTraceTest, LeavesThePositionOfTheTraceAlone) {
  station.SetProgram("BEEP\r\nBREAK");
  lCurrentLine = 1;
  txtProgram.Select(0, 0);
  PrepareTrace();
  EXPECT_EQ(lCurrentLine, 1);
}

TEST_F(PrepareTraceTest, ShowsALineAsItStoodAtTheLastCompile) {
  Compile("BEEP\r\nBREAK");
  txtProgram.UserEdit(0, 0, "XX");
  txtProgram.Select(1, 0);
  SelectCaretLine();
  EXPECT_EQ(SelectionNow(), (Selection{0, 4}));
}

}  // namespace
}  // namespace glidetrak
