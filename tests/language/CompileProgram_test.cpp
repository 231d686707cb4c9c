// The compile pass: its tables, and when it runs.

#include "language/Keywords.h"
#include "language/LanguageTest.h"

namespace glidetrak {
namespace {

class CompilePass : public LanguageTest {};

struct TableRow {
  QString sText;
  std::vector<ProgramLine> aLines;  ///< without the last record, which stays empty
};

const TableRow TableRows[] = {
    {"", {{0, 0, "", 0}}},
    {"BEEP", {{0, 4, "BEEP", 0}}},
    {"BEEP\r\n", {{0, 4, "BEEP", 0}, {0, 0, "", 0}}},
    {"\r\n", {{0, 0, "", 0}, {0, 0, "", 0}}},
    {"  beep : x \r\n\r\n  \r\nhalt",
     {{0, 11, "BEEP", 0}, {13, 0, "", 0}, {15, 2, "", 0}, {19, 4, "HALT", 0}}},
    {"print \"a b\"  , c : note", {{0, 23, "PRINT\"A B\",C:NOTE", 0}}},
    {"A=1\nB=2", {{0, 7, "A=1B=2", 0}}},
    {"A=1\rB=2", {{0, 7, "A=1B=2", 0}}},
    {"\tBEEP", {{0, 5, "BEEP", 0}}},
    {"IF A=1\r\nBEEP\r\nENDIF", {{0, 6, "IFA=1", 2}, {8, 4, "BEEP", 0}, {14, 5, "ENDIF", 0}}},
    {"IF A=1\r\nENDIF\r\nIF B=1\r\nENDIF",
     {{0, 6, "IFA=1", 1}, {8, 5, "ENDIF", 0}, {15, 6, "IFB=1", 3}, {23, 5, "ENDIF", 0}}},
    {"BEEP\r\nif a=1 then\r\nendif x",
     {{0, 4, "BEEP", 0}, {6, 11, "IFA=1", 2}, {19, 7, "ENDIFX", 0}}},
    {"IFFY\r\nENDIFS", {{0, 4, "IFFY", 1}, {6, 6, "ENDIFS", 0}}},
    {": IF A=1\r\nBEEP", {{0, 8, "", 0}, {10, 4, "BEEP", 0}}},
    {"GOTO X", {{0, 6, "GOTOX", 0}}},
    {"  GOTO\"a b\"", {{0, 11, "GOTO\"AB\"", 0}}},
    {"DO ÿ é", {{0, 6, "DOŸÉ", 0}}},
};

void ExpectLine(const ProgramLine& line, const ProgramLine& expected) {
  EXPECT_EQ(line.lStartOffset, expected.lStartOffset);
  EXPECT_EQ(line.lLength, expected.lLength);
  EXPECT_EQ(line.sText, expected.sText);
  EXPECT_EQ(line.lTargetLine, expected.lTargetLine);
}

TEST_F(CompilePass, MakesOneRecordALineAndOneMoreThatStaysEmpty) {
  for (const TableRow& row : TableRows) {
    SCOPED_TRACE(row.sText.toStdString());
    EXPECT_TRUE(Compile(row.sText));
    EXPECT_EQ(lLineCount, static_cast<qint32>(row.aLines.size()));
    ASSERT_EQ(LineTable.size(), row.aLines.size() + 1);
    for (size_t i = 0; i < row.aLines.size(); ++i) ExpectLine(LineTable[i], row.aLines[i]);
    ExpectLine(LineTable.back(), {});
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

struct LabelRow {
  QString sText;
  std::vector<LabelEntry> aLabels;
};

const LabelRow LabelRows[] = {
    {"BEEP", {}},
    {"LABEL LOOP", {{"LOOP", 0}}},
    {"BEEP\r\nlabel my loop", {{"MYLOOP", 1}}},
    {"LABELS", {{"S", 0}}},
    {"LABEL : x", {{"", 0}}},
    {"LABEL THEN", {{"", 0}}},
    {"LABEL ATHENS", {{"A", 0}}},
    {"LABEL \"two words\"", {{"\"TWO WORDS\"", 0}}},
    {"LABEL X\r\nBEEP\r\nLABEL X", {{"X", 0}, {"X", 2}}},
    {"LABEL X : note", {{"X", 0}}},
    {"\tLABEL X", {}},
    {"L ABEL X", {}},
    {"LABEL\t", {{"", 0}}},
};

TEST_F(CompilePass, CollectsTheLabelsFromSlotOneOn) {
  for (const LabelRow& row : LabelRows) {
    SCOPED_TRACE(row.sText.toStdString());
    EXPECT_TRUE(Compile(row.sText));
    ASSERT_EQ(iNextLabel, static_cast<qint16>(row.aLabels.size() + 1));
    for (size_t i = 0; i < row.aLabels.size(); ++i) {
      EXPECT_EQ(LabelTable[i + 1].sName, row.aLabels[i].sName);
      EXPECT_EQ(LabelTable[i + 1].lLine, row.aLabels[i].lLine);
    }
  }
}

TEST_F(CompilePass, EmptiesTheLabelsOfTheLastCompile) {
  Compile("LABEL A\r\nLABEL B");
  Compile("BEEP");
  EXPECT_EQ(LabelTable[1].sName, "");
  EXPECT_EQ(LabelTable[2].sName, "");
  EXPECT_EQ(LabelTable[2].lLine, 0);
}

TEST_F(CompilePass, LeavesTheSelectionOnTheLastLineThatItLookedAt) {
  Compile("BEEP\r\nBREAK");
  EXPECT_EQ(SelectionNow(), (Selection{6, 5}));
  Compile("BEEP\r\nBREAK\r\n");
  EXPECT_EQ(SelectionNow(), (Selection{6, 5}));
  Compile("");
  EXPECT_EQ(SelectionNow(), (Selection{0, 0}));
}

TEST_F(CompilePass, ComparesWithTheWordsOfTheTable) {
  KeywordTable[static_cast<size_t>(Keyword::Label)] = "MARKE";
  EXPECT_TRUE(Compile("MARKE X\r\nLABEL"));
  EXPECT_EQ(iNextLabel, 2);
  EXPECT_EQ(LabelTable[1].sName, "X");
}

TEST_F(CompilePass, IsNeededAtTheStartAndNotAfterAGoodCompile) {
  EXPECT_TRUE(bNeedCompile);
  EXPECT_TRUE(CompileProgram());
  EXPECT_FALSE(bNeedCompile);
}

TEST_F(CompilePass, IsNeededAgainAfterAChangedText) {
  Compile("BEEP");
  station.SetProgram("BREAK");
  EXPECT_TRUE(bNeedCompile);
}

TEST_F(CompilePass, StaysNeededAfterAnError) {
  EXPECT_FALSE(Compile("LABEL"));
  EXPECT_TRUE(bNeedCompile);
  EXPECT_FALSE(CompileProgram());
  EXPECT_EQ(station.BoxTexts(), QStringList({English(504), English(504)}));
}

TEST_F(CompilePass, IsNotMadeNeededByItsOwnSelections) {
  Compile("BEEP\r\nBREAK");
  txtProgram.Select(0, 3);
  EXPECT_FALSE(bNeedCompile);
}

TEST_F(CompilePass, IsSkippedWhenTheTextHasNotChanged) {
  Compile("BEEP\r\nBREAK");
  Variable('A') = 7;
  LineTable[0].sText = "KEPT";
  txtProgram.Select(2, 1);
  EXPECT_TRUE(CompileProgram());
  EXPECT_EQ(Variable('A'), 7);
  EXPECT_EQ(LineTable[0].sText, "KEPT");
  EXPECT_EQ(SelectionNow(), (Selection{2, 1}));
}

TEST_F(CompilePass, ClearsAllThirtyVariablesWhenItReallyRuns) {
  iVariables.fill(5);
  Compile("BEEP");
  for (int i = 1; i <= 30; ++i) EXPECT_EQ(iVariables[static_cast<size_t>(i)], 0) << i;
}

TEST_F(CompilePass, PumpsNothing) {
  const qint64 lBefore = station.platform.lNow;
  Compile("BEEP\r\nBREAK");
  EXPECT_EQ(station.platform.lNow, lBefore);
}

}  // namespace
}  // namespace glidetrak
