// What PRINT, WAIT and GET make of the text behind them.

#include "language/StatementArguments.h"
#include "language/LanguageTest.h"

namespace glidetrak {
namespace {

class PrintStatement : public LanguageTest {
 protected:
  void SetUp() override {
    LanguageTest::SetUp();
    Variable('T') = -3;
    Variable('W') = 32767;
    Variable('V') = -32768;
  }
};

struct PrintRow {
  QString sText;
  QString sMessage;
};

const PrintRow PrintRows[] = {
    {"", ""},
    {"\"HELLO\"", "HELLO"},
    {"\"\"", ""},
    {"\"A B\"", "A B"},
    {"\"A\"\"B\"", "AB"},
    {"\"A", "A"},
    {"\"T=\",T", "T=\r\n-3"},
    {"\"A\",B", "A\r\n0"},
    {",", "\r\n"},
    {",,", "\r\n\r\n"},
    {"\"A,B\"", "A,B"},
    {"T", "-3"},
    {"W", "32767"},
    {"V", "-32768"},
    {"WORD", "32767000"},
    {"\"A\"T\"B\"", "A-3B"},
    {"5", ""},
    {"5T6", "-3"},
    {"+-*/=()'", ""},
    {"É", ""},
    {"\"É€\"", "É€"},
    {"t", ""},
};

TEST_F(PrintStatement, CopiesWhatIsQuotedAndPrintsTheValuesOfLetters) {
  for (const PrintRow& row : PrintRows) {
    EXPECT_EQ(BuildPrintMessage(row.sText), row.sMessage) << row.sText.toStdString();
  }
}

const PrintRow PrintCommentRows[] = {
    {"\"A;B\"", "A;B"}, {"\"A\";B", "A"},   {"\"A\":B", "A"},      {":\"A\"", ""},
    {"T;T", "-3"},      {"\"A:B\"", "A:B"}, {"\"A\",;B", "A\r\n"},
};

TEST_F(PrintStatement, EndsAtAColonOrSemicolonOutsideQuotes) {
  for (const PrintRow& row : PrintCommentRows) {
    EXPECT_EQ(BuildPrintMessage(row.sText), row.sMessage) << row.sText.toStdString();
  }
}

class WaitStatement : public LanguageTest {};

struct WaitRow {
  QString sText;
  qint32 lMilliseconds;
};

const WaitRow WaitRows[] = {
    {"1", 1},   {"500", 500}, {"32000", 32000},   {"-500", 500},    {"X5Y6", 5},
    {"5.7", 5}, {"+7", 7},    {"007", 7},         {"1000MS", 1000}, {" 40 ", 40},
    {"A1", 1},  {"(3)", 3},   {"0032000", 32000}, {"5X0", 5},
};

TEST_F(WaitStatement, TakesTheFirstRunOfDigits) {
  for (const WaitRow& row : WaitRows) {
    qint32 lMilliseconds = -1;
    EXPECT_TRUE(ParseWaitTime(row.sText, lMilliseconds)) << row.sText.toStdString();
    EXPECT_EQ(lMilliseconds, row.lMilliseconds) << row.sText.toStdString();
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

const char* const WaitsOutOfRange[] = {"0", "32001", "99999", "2147483647", "A", "-", "-0", "0.5"};

TEST_F(WaitStatement, RefusesATimeOutOfRangeAndStoresTheLongest) {
  for (const char* sText : WaitsOutOfRange) {
    station.Forget();
    qint32 lMilliseconds = -1;
    EXPECT_FALSE(ParseWaitTime(sText, lMilliseconds)) << sText;
    EXPECT_EQ(lMilliseconds, 32000) << sText;
    EXPECT_EQ(station.BoxTexts(), QStringList(English(508))) << sText;
    ExpectProgramErrorBoxes(BoxIcon::Information);
  }
}

TEST_F(WaitStatement, RefusesNothingAtAllAndWhatNoNumberHoldsWithoutAMessage) {
  const QString aTexts[] = {"", "   ", "2147483648", "99999999999", QString(400, u'9')};
  for (const QString& sText : aTexts) {
    qint32 lMilliseconds = -1;
    EXPECT_FALSE(ParseWaitTime(sText, lMilliseconds)) << sText.toStdString();
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

class GetStatement : public LanguageTest {
 protected:
  /// Runs the program and presses the key 50 ms after its start.
  void RunAndPress(const QString& sText, const QString& sKey) {
    station.After(50, [sKey] { sKeyPressed = sKey; });
    station.RunProgram(sText);
  }
};

struct KeyRow {
  QString sKey;
  qint16 iValue;
};

const KeyRow KeyRows[] = {
    {"5", 5},   {"9", 9},   {"A", 65},  {"Z", 90},  {"!", 33},
    {"Ÿ", 159}, {"€", 128}, {"²", 178}, {"12", 49}, {"\r", 13},
};

TEST_F(GetStatement, StoresADigitAsItsNumberAndAnyOtherKeyAsItsCode) {
  for (const KeyRow& row : KeyRows) {
    RunAndPress("GET C", row.sKey);
    EXPECT_EQ(Variable('C'), row.iValue) << row.sKey.toStdString();
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

TEST_F(GetStatement, StoresIntoTheSlotsBehindTheLettersToo) {
  for (const char* sSlot : {"[", "\\", "]", "^"}) {
    RunAndPress(QString("GET ") + sSlot, "7");
    EXPECT_EQ(iVariables[static_cast<size_t>(sSlot[0] - 64)], 7) << sSlot;
  }
}

TEST_F(GetStatement, IsOverWithTheKey) {
  const qint64 lStart = station.platform.lNow;
  RunAndPress("GET A", "5");
  EXPECT_EQ(station.platform.lNow - lStart, 50 + 25 + 100);
}

TEST_F(GetStatement, StopsSilentlyBehindTheKeyForASlotThatIsNone) {
  for (const char* sText : {"GET 1\r\nBEEP", "GET @\r\nBEEP", "GET _\r\nBEEP", "GET é\r\nBEEP"}) {
    const qint64 lStart = station.platform.lNow;
    RunAndPress(sText, "5");
    EXPECT_EQ(station.platform.lNow - lStart, 50 + 100) << sText;
    EXPECT_EQ(station.platform.iBeeps, 0) << sText;
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

}  // namespace
}  // namespace glidetrak
