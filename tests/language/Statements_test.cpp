// The dispatcher: which keyword heads a line, and what a line comes to.

#include "language/Statements.h"
#include "language/Keywords.h"
#include "language/LanguageTest.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

class Dispatcher : public LanguageTest {
 protected:
  /// Compiles the program and executes its first line as a run does.
  LineResult ExecuteFirst(const QString& sText, bool bTracing = false) {
    EXPECT_TRUE(Compile(sText));
    lCurrentLine = 0;
    bProgramRunning = true;
    const LineResult result = ExecuteProgramLine(bTracing);
    m_bStillRunning = bProgramRunning;
    bProgramRunning = false;
    return result;
  }

  bool m_bStillRunning = false;
};

struct HeadRow {
  const char* sText;
  const char* sKeyword;
};

const HeadRow HeadRows[] = {
    {"BACKWARD", "BACKWARD"}, {"BEEP", "BEEP"},
    {"BREAK", "BREAK"},       {"ENDIF", "ENDIF"},
    {"FORWARD", "FORWARD"},   {"GETA", "GET"},
    {"GOTOLOOP", "GOTO"},     {"HALT", "HALT"},
    {"IFA=1", "IF"},          {"LABELX", "LABEL"},
    {"LETA=1", "LET"},        {"POWER10", "POWER"},
    {"PRINTA", "PRINT"},      {"TIME_RESET", "TIME_RESET"},
    {"WAIT100", "WAIT"},      {"BEEPER", "BEEP"},
    {"GOTOX", "GOTO"},        {"IFFY", "IF"},
    {"FORWARDS", "FORWARD"},  {"GET", "GET"},
    {"HALTING", "HALT"},      {"LETTER=1", "LET"},
};

TEST_F(Dispatcher, KnowsAKeywordByTheLettersAtTheHead) {
  for (const HeadRow& row : HeadRows) EXPECT_EQ(FindCommandKeyword(row.sText), row.sKeyword);
  EXPECT_TRUE(station.BoxTexts().empty());
}

const char* const NoKeywords[] = {
    "START_BUTTON=ON",
    "CITY_CALL",
    "AIRPORT_CALL",
    "LIGHT_SENSOR",
    "TIME_GATE_A",
    "TIME_GATE_B",
    "SOUND_SENSOR",
    "NONSENSE",
    "THEN",
    "ON",
    "OFF",
    "XBEEP",
    "beep",
    "PRIN\"T",
    "5",
};

TEST_F(Dispatcher, TellsOfALineThatNoStatementHeads) {
  for (const char* sText : NoKeywords) {
    station.Forget();
    EXPECT_EQ(FindCommandKeyword(sText), "") << sText;
    EXPECT_EQ(station.BoxTexts(), QStringList(English(511))) << sText;
  }
}

struct ResultRow {
  const char* sText;
  LineResult result;
};

const ResultRow ResultRows[] = {
    {"", LineResult::Empty},           {"   ", LineResult::Empty},
    {": note", LineResult::Empty},     {"THEN", LineResult::Empty},
    {"PRINT \"A\"", LineResult::Done}, {"PRINT", LineResult::Done},
    {"LABEL X", LineResult::Done},     {"LET A=1", LineResult::Done},
    {"BEEP", LineResult::Done},        {"WAIT 10", LineResult::Done},
    {"GOTO X", LineResult::Done},      {"BREAK", LineResult::Stopped},
    {"A=5", LineResult::Stopped},      {"NONSENSE", LineResult::Stopped},
    {"LET", LineResult::Stopped},      {"LET A=", LineResult::Stopped},
    {"WAIT", LineResult::Stopped},     {"WAIT 0", LineResult::Stopped},
    {"GET", LineResult::Stopped},      {"START_BUTTON=ON", LineResult::Stopped},
};

TEST_F(Dispatcher, GivesTheResultOfALine) {
  for (const ResultRow& row : ResultRows) {
    EXPECT_EQ(ExecuteFirst(row.sText), row.result) << row.sText;
    EXPECT_EQ(m_bStillRunning, row.result != LineResult::Stopped) << row.sText;
  }
}

TEST_F(Dispatcher, TellsOfTheMotorUnlessItTraces) {
  SetPower(3);
  EXPECT_EQ(ExecuteFirst("BEEP", false), LineResult::MotorOn);
  EXPECT_EQ(ExecuteFirst("BEEP", true), LineResult::Done);
  EXPECT_EQ(ExecuteFirst("", false), LineResult::Empty);
  EXPECT_EQ(ExecuteFirst("BREAK", false), LineResult::Stopped);
}

TEST_F(Dispatcher, DisablesTheEditorOnTheStopPath) {
  ExecuteFirst("BREAK");
  EXPECT_FALSE(txtProgram.Enabled);
}

TEST_F(Dispatcher, TakesTheStopPathWhenTheProgramNoLongerRuns) {
  Compile("BEEP\r\nBEEP");
  lCurrentLine = 1;
  pnlMessage.Visible = true;
  EXPECT_EQ(ExecuteProgramLine(false), LineResult::Stopped);
  EXPECT_EQ(station.platform.iBeeps, 0);
  EXPECT_FALSE(pnlMessage.Visible);
  EXPECT_EQ(SelectionNow(), (Selection{6, 4}));
}

TEST_F(Dispatcher, ClearsTheIfFlagsAtAGoto) {
  bInIfBlock = true;
  bIfCondition = false;
  ExecuteFirst("GOTO X");
  EXPECT_FALSE(bInIfBlock);
  EXPECT_TRUE(bIfCondition);
}

struct SelectLineRow {
  qint32 lIndex;
  const char* sText;
  Selection selection;
};

const SelectLineRow SelectLineRows[] = {
    {0, "BEEP", {0, 4}}, {1, "", {6, 0}},  {2, "HALT", {8, 6}}, {3, "", {0, 0}},
    {4, "", {1, 1}},     {-1, "", {1, 1}}, {30000, "", {1, 1}},
};

TEST_F(Dispatcher, SelectsTheLineAndGivesItsText) {
  Compile("BEEP\r\n\r\nHALT x");
  LineTable[2].sText = "HALT";
  for (const SelectLineRow& row : SelectLineRows) {
    txtProgram.Select(1, 1);
    EXPECT_EQ(SelectProgramLine(row.lIndex), row.sText) << row.lIndex;
    EXPECT_EQ(SelectionNow(), row.selection) << row.lIndex;
  }
}

}  // namespace
}  // namespace glidetrak
