// The left-to-right scan of an expression.

#include "language/LanguageTest.h"

namespace glidetrak {
namespace {

constexpr qint32 lSmallest = std::numeric_limits<qint32>::min();

class Expressions : public LanguageTest {
 protected:
  void SetUp() override {
    LanguageTest::SetUp();
    Variable('A') = 7;
    Variable('B') = -3;
    Variable('V') = -32768;
    Variable('W') = 32767;
    Variable('Z') = 100;
  }
};

struct ValueRow {
  QString sText;
  qint32 lValue;
};

const ValueRow ArithmeticRows[] = {
    {"0", 0},
    {"5", 5},
    {"007", 7},
    {"32767", 32767},
    {"-32768", -32768},
    {"1+2", 3},
    {"5-3", 2},
    {"3-5", -2},
    {"2*3", 6},
    {"7/2", 3},
    {"-7/2", -3},
    {"7/-2", -3},
    {"-7/-2", 3},
    {"0/5", 0},
    {"1/2", 0},
    {"1000*1000", 1000000},
    {"32767+1", 32768},
    {"-32768-1", -32769},
    {"-5+2", -3},
    {"10-2-3", 5},
    {"100/10/5", 2},
    {"300*300/300", 300},
    {"-32768/-1", 32768},
};

const ValueRow SignRows[] = {
    {"-5", -5},    {"--3", 3},    {"---3", -3},  {"5--3", 8},  {"5---3", 2},  {"5+-3", 2},
    {"5*-3", -15}, {"5*--3", 15}, {"-5*-3", 15}, {"1+--2", 3}, {"5-*3", -15}, {"-2*3", -6},
};

const ValueRow OrderRows[] = {
    {"2+3*4", 20}, {"1+2+3*4", 24}, {"10-4/2", 3}, {"2*3/4", 1},
    {"2/3*4", 0},  {"100/7*7", 98}, {"2-3*4", -4},
};

const ValueRow StickyRows[] = {
    {"2*3+4", 24},    {"2*3-4", -24}, {"10/2+3", 1},     {"10/2-3", -1},  {"2*3+4+5", 120},
    {"5*/2", 2},      {"5/*2", 10},   {"20/2*3+4", 120}, {"1+2*3-1", -9}, {"5**3", 15},
    {"2*3+4*5", 120}, {"2*6/4+3", 1}, {"9/3*2+5", 30},
};

const ValueRow LooseRows[] = {
    {"5+", 5}, {"5-", 5}, {"5*", 5}, {"5/", 5},   {"-", 0},   {"--", 0},    {"*", 0},
    {"/", 0},  {"*5", 0}, {"/5", 0}, {"*5+3", 0}, {"-*5", 0}, {"1+2*-", 3},
};

const ValueRow VariableRows[] = {
    {"A", 7},
    {"B", -3},
    {"C", 0},
    {"-A", -7},
    {"-B", 3},
    {"A+B", 4},
    {"A-B", 10},
    {"A*B", -21},
    {"Z/A", 14},
    {"A*B+Z", -2100},
    {"V", -32768},
    {"--V", -32768},
    {"W*W", 1073676289},
    {"A+1", 8},
    {"A*A*A", 343},
    {"-W", -32767},
};

const ValueRow LiteralRows[] = {
    {"'A'", 65},    {"'Z'", 90},    {"'5'", 53},    {"' '", 32},   {"'''", 39},   {"'\"'", 34},
    {"'É'", 201},   {"'é'", 201},   {"'ÿ'", 159},   {"'€'", 128},  {"'a'", 65},   {"'A''B'", 131},
    {"-'A'", -65},  {"5'B'", 5},    {"5+'A'", 70},  {"5*'A'", 70}, {"5/'A'", 70}, {"'A'-1", 64},
    {"'A'*2", 130}, {"'A'5", 70},   {"5-'A'", -60}, {"A+'A'", 72}, {"*'A'", 65},  {"5'B'+2", 7},
    {"-'A'1", -66}, {"'C'-'A'", 2},
};

const ValueRow WideRows[] = {
    {"32767*32767*2", 2147352578},       {"20522*151*693", 2147483646},
    {"20522*151*693+1", 2147483646},     {"-32768*-32768*-2", lSmallest},
    {"-32768*-32768*-2/2", -1073741824}, {"-32768*-32768*-2/1", lSmallest},
};

template <size_t N>
void ExpectValues(const ValueRow (&aRows)[N]) {
  for (const ValueRow& row : aRows) {
    lExprResult = 4711;
    EXPECT_TRUE(EvaluateExpression(row.sText)) << row.sText.toStdString();
    EXPECT_EQ(lExprResult, row.lValue) << row.sText.toStdString();
  }
}

TEST_F(Expressions, AddMultiplyAndCutTowardsZero) {
  ExpectValues(ArithmeticRows);
}

TEST_F(Expressions, StackSigns) {
  ExpectValues(SignRows);
}

TEST_F(Expressions, HaveNoPrecedence) {
  ExpectValues(OrderRows);
}

TEST_F(Expressions, KeepTheLastStarOrSlashInForce) {
  ExpectValues(StickyRows);
}

TEST_F(Expressions, TakeALooseOperatorWithoutHarm) {
  ExpectValues(LooseRows);
}

TEST_F(Expressions, ReadVariables) {
  ExpectValues(VariableRows);
}

TEST_F(Expressions, AddCharacterLiteralsPastTheOperator) {
  ExpectValues(LiteralRows);
}

TEST_F(Expressions, CarryValuesOfThirtyTwoBits) {
  ExpectValues(WideRows);
}

TEST_F(Expressions, ShowNothingWhenTheyEndWell) {
  ExpectValues(ArithmeticRows);
  EXPECT_TRUE(station.BoxTexts().empty());
}

/// The message is 519 with the character when there is one; lValue is what the accumulator keeps.
struct RefusalRow {
  QString sText;
  int iMessage;
  QString sCharacter;
  qint32 lValue;
};

const RefusalRow CharacterRefusals[] = {
    {"", 519, "", 0},     {"(1+2)", 519, "(", 0},  {"1+(", 519, "(", 1}, {"1+#", 519, "#", 1},
    {"=5", 519, "=", 0},  {" ", 519, " ", 0},      {"[", 519, "[", 0},   {"@", 519, "@", 0},
    {"_A", 519, "_", 0},  {"É", 519, "É", 0},      {"a", 519, "a", 0},   {".5", 519, ".", 0},
    {"2*%", 519, "%", 2}, {"\"A\"", 519, "\"", 0}, {"²", 519, "²", 0},
};

const RefusalRow OperatorRefusals[] = {
    {"3B", 518, "", 3},  {"B3", 518, "", -3},  {"AB", 518, "", 7},  {"3.5", 518, "", 3},
    {"5(2", 518, "", 5}, {"1+2A", 518, "", 3}, {"1=1", 518, "", 1}, {"ON", 518, "", 0},
    {"3 4", 518, "", 3}, {"5)", 518, "", 5},
};

const RefusalRow LiteralRefusals[] = {
    {"'AB'", 517, "", 65}, {"'A", 517, "", 65}, {"''", 517, "", 39}, {"1+'AB", 517, "", 66},
    {"'", 519, "", 0},     {"1+'", 519, "", 1}, {"5'", 519, "", 5},
};

const RefusalRow SixteenBitRefusals[] = {
    {"40000", 519, "4", 0},
    {"32768", 519, "3", 0},
    {"-32769", 519, "3", 0},
    {"--32768", 519, "3", 0},
    {"1+99999", 519, "9", 1},
    {"5*65536", 519, "6", 5},
    {"99999999999999999999", 519, "9", 0},
    {"-V", 519, "V", 0},
    {"1+-V", 519, "V", 1},
    {"40000*40000", 519, "4", 0},
};

const RefusalRow OperandRefusals[] = {
    {"1/0", 514, "", 1},
    {"/0", 514, "", 0},
    {"A/C", 514, "", 7},
    {"8/2+0", 514, "", 4},
    {"1/0+(", 514, "", 1},
    {"32767*32767*32767", 515, "", 1073676289},
    {"W*W*-W", 515, "", 1073676289},
    {"-32768*256*-256", 515, "", -8388608},
    {"-32768*-32768*-2/-1", 515, "", lSmallest},
    {"-32768*-32768*2", 515, "", 1073741824},
};

template <size_t N>
void ExpectRefusals(Station& station, const RefusalRow (&aRows)[N]) {
  for (const RefusalRow& row : aRows) {
    SCOPED_TRACE(row.sText.toStdString());
    station.Forget();
    EXPECT_FALSE(EvaluateExpression(row.sText));
    const bool bNamesIt = row.iMessage == 519;
    const QString sText = English(row.iMessage) + (bNamesIt ? row.sCharacter + "'" : "");
    EXPECT_EQ(station.BoxTexts(), QStringList(sText));
    EXPECT_EQ(lExprResult, row.lValue);
  }
}

TEST_F(Expressions, RefuseACharacterThatIsNoOperand) {
  ExpectRefusals(station, CharacterRefusals);
  ExpectProgramErrorBoxes();
}

TEST_F(Expressions, RefuseAnythingButAnOperatorBehindAnOperand) {
  ExpectRefusals(station, OperatorRefusals);
  ExpectProgramErrorBoxes();
}

TEST_F(Expressions, RefuseALiteralThatIsNotClosed) {
  ExpectRefusals(station, LiteralRefusals);
  ExpectProgramErrorBoxes();
}

TEST_F(Expressions, RefuseAnOperandBeyondSixteenBitsWithItsFirstCharacter) {
  ExpectRefusals(station, SixteenBitRefusals);
  ExpectProgramErrorBoxes();
}

TEST_F(Expressions, RefuseWhatTheOperationRefusesAndKeepTheValueBeforeIt) {
  ExpectRefusals(station, OperandRefusals);
  ExpectProgramErrorBoxes();
}

TEST_F(Expressions, RefuseALiteralThatOverflowsTheAccumulatorWithItsCharacter) {
  const RefusalRow aRows[] = {{"20522*151*693*'A'", 519, "A", 2147483646}};
  ExpectRefusals(station, aRows);
}

}  // namespace
}  // namespace glidetrak
