// The LET and IF statements and the comparison.

#include "language/LetAndIf.h"
#include "language/LanguageTest.h"

namespace glidetrak {
namespace {

class LetStatement : public LanguageTest {};

struct LetRow {
  QString sText;
  char cLetter;
  qint16 iValue;
};

const LetRow LetRows[] = {
    {"A=5", 'A', 5},         {"Z=-32768", 'Z', -32768},
    {"M=32767", 'M', 32767}, {"P=1", 'P', 1},
    {"A=B", 'A', 40},        {"B=B+1", 'B', 41},
    {"A='A'", 'A', 65},      {"A=1000*40/40", 'A', 1000},
    {"V=V", 'V', -32768},
};

TEST_F(LetStatement, StoresTheValueWithAndWithoutItsKeyword) {
  for (const bool bHasKeyword : {true, false}) {
    for (const LetRow& row : LetRows) {
      ClearVariables();
      Variable('B') = 40;
      Variable('V') = -32768;
      EXPECT_TRUE(ExecuteLet(row.sText, bHasKeyword)) << row.sText.toStdString();
      EXPECT_EQ(Variable(row.cLetter), row.iValue) << row.sText.toStdString();
    }
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

/// The texts of the boxes, A staying as it was.
struct LetRefusalRow {
  QString sText;
  QStringList aBoxes;
};

const LetRefusalRow ExpressionRefusals[] = {
    {"A=", {English(519) + "'", English(519) + "'"}},
    {"A=1/0", {English(514), English(514)}},
    {"A=3.5", {English(518), English(518)}},
    {"A='AB'", {English(517), English(517)}},
    {"A=(1+2)", {English(519) + "('", English(519) + "('"}},
    {"A=40000", {English(519) + "4'", English(519) + "4'"}},
    {"A=-V", {English(519) + "V'", English(519) + "V'"}},
    {"A=W*W*W", {English(515), English(515)}},
};

const LetRefusalRow StoreRefusals[] = {
    {"A=1000*1000", {English(511)}},
    {"A=32767+1", {English(511)}},
    {"A=-32768-1", {English(511)}},
    {"A=W*W*2", {English(511)}},
};

template <size_t N>
void ExpectLetRefusals(Station& station, const LetRefusalRow (&aRows)[N], bool bHasKeyword) {
  for (const LetRefusalRow& row : aRows) {
    SCOPED_TRACE(row.sText.toStdString());
    Variable('A') = 12;
    Variable('V') = -32768;
    Variable('W') = 32767;
    station.Forget();
    EXPECT_FALSE(ExecuteLet(row.sText, bHasKeyword));
    EXPECT_EQ(station.BoxTexts(), row.aBoxes);
    EXPECT_EQ(Variable('A'), 12);
  }
}

TEST_F(LetStatement, ShowsEachMessageOfAnExpressionTwice) {
  ExpectLetRefusals(station, ExpressionRefusals, true);
  ExpectLetRefusals(station, ExpressionRefusals, false);
  ExpectProgramErrorBoxes();
}

TEST_F(LetStatement, TellsOnceOfAValueThatNoVariableHolds) {
  ExpectLetRefusals(station, StoreRefusals, true);
  ExpectLetRefusals(station, StoreRefusals, false);
  ExpectProgramErrorBoxes();
}

TEST_F(LetStatement, TellsItsFormatWhenNothingStandsBehindIt) {
  const LetRefusalRow aRows[] = {{"", {English(512)}}, {"   ", {English(512)}}};
  ExpectLetRefusals(station, aRows, true);
  ExpectLetRefusals(station, aRows, false);
}

const char* const NoAssignments[] = {
    "A", "5=A", "=5", "AB=5", "a=5", "A<5", "PB=1", "PB8=ON", "PA0=ON", "[=5", "É=1",
};

TEST_F(LetStatement, TellsItsFormatWithAnExampleForAFormThatItDoesNotKnow) {
  for (const char* sText : NoAssignments) {
    const LetRefusalRow aRows[] = {{sText, {English(512) + "\r\n" + English(513)}}};
    ExpectLetRefusals(station, aRows, true);
    ExpectProgramErrorBoxes();
  }
}

TEST_F(LetStatement, IsUnrecognisedWithoutItsKeywordInAFormThatItDoesNotKnow) {
  for (const char* sText : NoAssignments) {
    const LetRefusalRow aRows[] = {{sText, {English(511)}}};
    ExpectLetRefusals(station, aRows, false);
    ExpectProgramErrorBoxes();
  }
}

class Comparison : public LanguageTest {};

struct CompareRow {
  const char* sOperator;
  bool bLess, bEqual, bGreater;  ///< for a variable below, at and above the result
};

const CompareRow CompareRows[] = {
    {"=", false, true, false}, {"<>", true, false, true}, {"<", true, false, false},
    {">", false, false, true}, {"<=", true, true, false}, {"=<", true, true, false},
    {">=", false, true, true}, {"=>", false, true, true},
};

TEST_F(Comparison, KnowsEightOperators) {
  for (const CompareRow& row : CompareRows) {
    const bool aExpected[] = {row.bLess, row.bEqual, row.bGreater};
    for (int i = 0; i < 3; ++i) {
      lExprResult = 5;
      Variable('A') = static_cast<qint16>(4 + i);
      bool bCondition = !aExpected[i];
      CompareVariable(row.sOperator, 1, bCondition);
      EXPECT_EQ(bCondition, aExpected[i]) << row.sOperator << i;
    }
  }
}

TEST_F(Comparison, LeavesTheConditionAloneForAnyOtherOperator) {
  for (const char* sOperator : {"==", "<<", "><", ">>", "=<>", "<=>", "===", ""}) {
    for (const bool bBefore : {true, false}) {
      bool bCondition = bBefore;
      CompareVariable(sOperator, 1, bCondition);
      EXPECT_EQ(bCondition, bBefore) << sOperator;
    }
  }
}

TEST_F(Comparison, ExtendsTheVariableToThirtyTwoBits) {
  Variable('A') = -1;
  lExprResult = 65535;
  bool bCondition = true;
  CompareVariable("=", 1, bCondition);
  EXPECT_FALSE(bCondition);
  CompareVariable("<", 1, bCondition);
  EXPECT_TRUE(bCondition);
}

class IfStatement : public LanguageTest {
 protected:
  void SetUp() override {
    LanguageTest::SetUp();
    Compile("BEEP\r\nIF A=5\r\nBEEP\r\nENDIF\r\nBEEP");
    lCurrentLine = 1;
    bInIfBlock = false;
    bIfCondition = false;
    Variable('A') = 5;
  }
};

const char* const TrueConditions[] = {"A=5",  "A<>4",        "A<6",   "A>4",    "A<=5",
                                      "A=>5", "A==9",        "A><9",  "A=B",    "A=2+3",
                                      "A>-1", "A<1000*1000", "A<'A'", "A<2+1*2"};

TEST_F(IfStatement, EntersTheBodyWhenTheConditionHolds) {
  Variable('B') = 5;
  for (const char* sText : TrueConditions) {
    bInIfBlock = false;
    bIfCondition = false;
    EXPECT_TRUE(ExecuteIf(sText)) << sText;
    EXPECT_TRUE(bInIfBlock) << sText;
    EXPECT_TRUE(bIfCondition) << sText;
    EXPECT_EQ(lCurrentLine, 1) << sText;
  }
}

const char* const FalseConditions[] = {"A=4",  "A<>5", "A<5",         "A>5",
                                       "A<=4", "A>=6", "A=1000*1000", "A=4+"};

TEST_F(IfStatement, JumpsToTheEndifWhenItDoesNot) {
  for (const char* sText : FalseConditions) {
    lCurrentLine = 1;
    EXPECT_TRUE(ExecuteIf(sText)) << sText;
    EXPECT_FALSE(bInIfBlock) << sText;
    EXPECT_FALSE(bIfCondition) << sText;
    EXPECT_EQ(lCurrentLine, 3) << sText;
  }
}

struct IfRefusalRow {
  QString sText;
  QString sBox;
};

const IfRefusalRow IfRefusals[] = {
    {"", English(503)},       {"A", English(503)},       {"A=", English(503)},
    {"A<=", English(503)},    {"A==", English(503)},     {"5=A", English(503)},
    {"A+1=5", English(503)},  {"AB=5", English(503)},    {"PB0=ON", English(503)},
    {"PA8=ON", English(503)}, {"A=1=2", English(518)},   {"A=(", English(519) + "('"},
    {"A=1/0", English(514)},  {"A=W*W*W", English(515)}, {"A=40000*40000", English(519) + "4'"},
    {"A='AB'", English(517)}, {"A=ON", English(518)},    {"[=0", English(503)},
    {"A!=1", English(503)},   {"'A'=5", English(503)},
};

TEST_F(IfStatement, TellsOnceOfWhatItCannotTest) {
  Variable('W') = 32767;
  for (const IfRefusalRow& row : IfRefusals) {
    bInIfBlock = false;
    station.Forget();
    EXPECT_FALSE(ExecuteIf(row.sText)) << row.sText.toStdString();
    EXPECT_EQ(station.BoxTexts(), QStringList(row.sBox)) << row.sText.toStdString();
    EXPECT_EQ(lCurrentLine, 1);
    ExpectProgramErrorBoxes();
  }
}

struct TestedLampRow {
  const char* sCondition;
  int iBit;
};

const TestedLampRow TestedLamps[] = {
    {"CITY_CALL=ON", 1}, {"SOUND_SENSOR=OFF", 6}, {"PA7=ON", 7}, {"PA0=OFF", 0}};

/// Red whatever the condition asks for; the lamps of the refresh are another red.
TEST_F(IfStatement, LightsTheLampOfATestedInputOnTheDebugPanel) {
  pnlDebug.Visible = true;
  for (const TestedLampRow& row : TestedLamps) {
    for (const bool bSet : {true, false}) {
      lInputImage = bSet ? 1 << row.iBit : 255 & ~(1 << row.iBit);
      ledInput[row.iBit].FillColor = lChosenYellow;
      EXPECT_TRUE(ExecuteIf(row.sCondition)) << row.sCondition;
      EXPECT_EQ(ledInput[row.iBit].FillColor, bSet ? 255 : 0) << row.sCondition << bSet;
      bInIfBlock = false;
    }
  }
}

TEST_F(IfStatement, LeavesTheLampsAloneWhileTheDebugPanelIsHidden) {
  pnlDebug.Visible = false;
  lInputImage = 1 << 1;
  ledInput[1].FillColor = lChosenYellow;
  EXPECT_TRUE(ExecuteIf("CITY_CALL=ON"));
  EXPECT_EQ(ledInput[1].FillColor, lChosenYellow);
}

TEST_F(IfStatement, RefusesASecondLevel) {
  bInIfBlock = true;
  EXPECT_FALSE(ExecuteIf("A=5"));
  EXPECT_EQ(station.BoxTexts(), QStringList(English(502)));
  ExpectProgramErrorBoxes();
}

}  // namespace
}  // namespace glidetrak
