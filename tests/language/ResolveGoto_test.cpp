// The GOTO of one line against the labels.

#include "language/ResolveGoto.h"
#include "language/LanguageTest.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

class ResolveGoto : public LanguageTest {
 protected:
  /// Compiles the program and resolves that line as a run does.
  LineResult Resolve(const QString& sText, qint32 lLine) {
    EXPECT_TRUE(Compile(sText)) << sText.toStdString();
    lCurrentLine = lLine;
    bProgramRunning = true;
    const LineResult result = ResolveGotoLine(lLine);
    m_bStillRunning = bProgramRunning;
    bProgramRunning = false;
    return result;
  }

  bool m_bStillRunning = false;
};

struct JumpRow {
  QString sText;
  qint32 lLine;
  qint32 lTarget;
};

const JumpRow JumpRows[] = {
    {"LABEL X\r\nGOTO X", 1, 0},
    {"GOTO X\r\nBEEP\r\nLABEL X", 0, 2},
    {"goto my loop\r\nLABEL MyLoop", 0, 1},
    {"GOTO X\r\nLABEL X\r\nLABEL X", 0, 1},
    {"GOTO \"two words\"\r\nLABEL \"TWO WORDS\"", 0, 1},
    {"GOTO\r\nLABEL : x", 0, 1},
    {"GOTO X : back\r\nLABEL X ; here", 0, 1},
    {"LABEL GOTOEND\r\nLABEL END", 0, 1},
    {"IF A=1 GOTO X\r\nENDIF\r\nLABEL X", 0, 2},
    {"LET A=1 GOTO X\r\nLABEL X", 0, 1},
    {"GOTO GOTO\r\nLABEL GOTO", 0, 1},
};

TEST_F(ResolveGoto, StoresTheLineOfTheFirstLabelOfThatName) {
  for (const JumpRow& row : JumpRows) {
    SCOPED_TRACE(row.sText.toStdString());
    EXPECT_EQ(Resolve(row.sText, row.lLine), LineResult::Done);
    EXPECT_EQ(LineTable[static_cast<size_t>(row.lLine)].lTargetLine, row.lTarget);
    EXPECT_TRUE(m_bStillRunning);
  }
}

TEST_F(ResolveGoto, FindsALabelInTheThirtiethSlot) {
  QString sText = "GOTO L30";
  for (int i = 1; i <= 30; ++i) sText += QString("\r\nLABEL L%1").arg(i);
  EXPECT_EQ(Resolve(sText, 0), LineResult::Done);
  EXPECT_EQ(LineTable[0].lTargetLine, 30);
}

const char* const NoJumps[] = {"",
                               "BEEP",
                               "PRINT \"GOTO X\"",
                               "PRINT GOTO X",
                               ": GOTO X",
                               "IF A=1 THEN GOTO X\r\nENDIF",
                               "PRINTGOTO X"};

TEST_F(ResolveGoto, LeavesALineWithoutAJumpAlone) {
  for (const char* sText : NoJumps) {
    EXPECT_EQ(Resolve(sText, 0), LineResult::Empty) << sText;
    EXPECT_TRUE(m_bStillRunning) << sText;
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

TEST_F(ResolveGoto, TellsOfTheMotor) {
  SetPower(3);
  EXPECT_EQ(Resolve("GOTO X\r\nLABEL X", 0), LineResult::MotorOn);
  EXPECT_EQ(Resolve("BEEP", 0), LineResult::Empty);
}

TEST_F(ResolveGoto, LooksAtTheCurrentLineWhateverIsAsked) {
  Compile("GOTO X\r\nGOTO Y\r\nLABEL X\r\nLABEL Y");
  lCurrentLine = 1;
  bProgramRunning = true;
  ResolveGotoLine(0);
  bProgramRunning = false;
  EXPECT_EQ(LineTable[0].lTargetLine, 0);
  EXPECT_EQ(LineTable[1].lTargetLine, 3);
}

TEST_F(ResolveGoto, SelectsTheLine) {
  Resolve("BEEP\r\nBREAK", 1);
  EXPECT_EQ(SelectionNow(), (Selection{6, 5}));
}

TEST_F(ResolveGoto, StopsWhereNoProgramRuns) {
  Compile("BEEP\r\nGOTO X");
  lCurrentLine = 1;
  EXPECT_EQ(ResolveGotoLine(1), LineResult::Stopped);
  EXPECT_EQ(SelectionNow(), (Selection{6, 6}));
  EXPECT_TRUE(station.BoxTexts().empty());
}

struct MissingRow {
  const char* sText;
  const char* sName;
};

const MissingRow MissingRows[] = {
    {"GOTO NOWHERE", "nowhere"},
    {"GOTO", ""},
    {"GOTO É", "é"},
    {"LABEL GOTOEND", "end"},
    {"GOTO X\r\nLABEL XX", "x"},
    {"GOTO XX\r\nLABEL X", "xx"},
    {"GOTO \"A B\"\r\nLABEL A B", "\"a b\""},
};

TEST_F(ResolveGoto, TellsOfAMissingLabelInLowerCase) {
  for (const MissingRow& row : MissingRows) {
    SCOPED_TRACE(row.sText);
    station.Forget();
    EXPECT_EQ(Resolve(row.sText, 0), LineResult::Stopped);
    EXPECT_FALSE(m_bStillRunning);
    ASSERT_EQ(station.platform.aBoxes.size(), 1U);
    const VirtualBox& box = station.platform.aBoxes[0];
    EXPECT_EQ(box.sText, QString("The Label '") + row.sName + "' does not exist");
    EXPECT_EQ(box.sTitle, "GOTO");
    EXPECT_EQ(box.place, BoxPlace::TopBand);
    EXPECT_EQ(box.icon, BoxIcon::Exclamation);
  }
}

TEST_F(ResolveGoto, ShowsTheEditorAndGivesItsKeeperTheFocusAheadOfTheMessage) {
  bool bFocusAtBox = false;
  bool bFocus = false;
  txtFocusGrab.SetFocus = [&] { bFocus = true; };
  station.platform.OnBox = [&](const VirtualBox&) { bFocusAtBox = bFocus; };
  txtProgram.Visible = false;
  Resolve("GOTO X", 0);
  EXPECT_TRUE(bFocusAtBox);
  EXPECT_TRUE(txtProgram.Visible);
  txtFocusGrab.SetFocus = [] {};
}

}  // namespace
}  // namespace glidetrak
