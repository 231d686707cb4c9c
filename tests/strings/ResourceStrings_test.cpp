// The two tables of the numbered string store.

#include "strings/ResourceStrings.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <vector>

#include "common/UnicodeFunctions.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

/// Beyond every id of the store.
constexpr int iLastTried = 1000;

std::vector<int> IdsOf(int iLanguage) {
  std::vector<int> aIds;
  for (int i = -1; i <= iLastTried; ++i) {
    if (!LoadTextFor(i, iLanguage).isEmpty()) aIds.push_back(i);
  }
  return aIds;
}

struct IdRange {
  int iFirst, iLast;
};

const IdRange IdRanges[] = {
    {10, 10},   {50, 50},   {54, 56},   {60, 62},   {70, 72},   {75, 75},   {77, 78},
    {80, 80},   {84, 84},   {200, 213}, {220, 222}, {224, 233}, {240, 250}, {254, 256},
    {260, 261}, {264, 268}, {280, 281}, {300, 305}, {310, 313}, {324, 324}, {400, 423},
    {425, 475}, {500, 522}, {600, 624}, {800, 807}, {850, 853},
};

TEST(StringStore, HoldsExactlyItsIdsInBothLanguages) {
  std::vector<int> aExpected;
  for (const IdRange& range : IdRanges) {
    for (int i = range.iFirst; i <= range.iLast; ++i) aExpected.push_back(i);
  }
  EXPECT_EQ(aExpected.size(), 212U);
  EXPECT_EQ(IdsOf(iEnglish), aExpected);
  EXPECT_EQ(IdsOf(iSpanish), aExpected);
}

struct StringRow {
  int iId;
  QString sText;
};

const StringRow EnglishRows[] = {
    {10, "1"},
    {50, "This Application is already running."},
    {54, "Data In:  "},
    {55, "Data Out: "},
    {56, "Time:     "},
    {61, "Are you sure you wish to continue?"},
    {72, "Unable to communicate with the Hardware."},
    {80, "Glidetrak Control"},
    {84, "Checking for Hardware. Please Wait ..."},
    {204,
     "Unable to locate or open file.  Please ensure you have access to the area you are "
     "selecting."},
    {221, " [Version 1]"},
    {225, "This is the list of pre-set example programs designed for the "},
    {226, "Commands..."},
    {240, "&File"},
    {245, "E&xit"},
    {266, "Format: "},
    {280, "Glidetrak interface detected"},
    {281, "Glidetrak interface not detected"},
    {324, "Version: "},
    {401, "PRINT \"[message]\""},
    {418, "IF [expression] ....... ENDIF"},
    {419, "IF LIGHT_SENSOR=OFF "},
    {420, "   PRINT \"Night time\" "},
    {431, "Sends a Beep to the computer's speaker."},
    {500, "Control Program Error"},
    {501, "IF Statement: Nested IF statements are not permitted."},
    {502, "The IF command must be terminated by the ENDIF command."},
    {503, "IF Statement: This is not a valid IF command Expression."},
    {504, "LABEL command must include a name parameter"},
    {505, "The Label '"},
    {506, "' does not exist"},
    {507, "PRINT command messages should be contained between a pair of \" characters"},
    {508, "The WAIT command Expression (time in milliseconds) must be between 1 and 32000."},
    {511, "Unrecognized Command or expression"},
    {512, "Invalid LET command Expression: The Format should be 'LET [Variable] = [value]'"},
    {513, "    e.g.  LET PB6 = ON"},
    {514, "Division by Zero is not permitted."},
    {515, "The Result of an equation must be between -32768 and 32767."},
    {516, "There is an error in the equation."},
    {517, "Incorrect format. The format should be '<character>'"},
    {518, "You can only use variables a-z, integer numbers and math symbols +,-,* and /"},
    {519, "Unrecognized character or symbol '"},
    {520, "An error has been encountered while running your program."},
    {521, "An error has been encountered while compiling your program."},
    {522, "Invalid GET command Expression: The Format should be 'GET [Variable]'"},
    {804, "CONTROL PANEL"},
    {853, "Backward"},
};

TEST(StringStore, HoldsTheEnglishTexts) {
  for (const StringRow& row : EnglishRows) EXPECT_EQ(LoadTextFor(row.iId, iEnglish), row.sText);
}

const StringRow SpanishRows[] = {
    {10, "2"},
    {50, "Esta aplicación está ya abierta."},
    {80, "Control del sistema Glidetrak"},
    {227, "Ej. secuencial"},
    {245, "&Cerrar"},
    {255, "Show Debug"},
    {802, "APAGADA"},
};

TEST(StringStore, HoldsTheSpanishTexts) {
  for (const StringRow& row : SpanishRows) EXPECT_EQ(LoadTextFor(row.iId, iSpanish), row.sText);
}

const char* const Keywords[] = {
    "PRINT",        "BREAK",       "LABEL",        "GOTO",       "LET",
    "IF",           "THEN",        "ENDIF",        "WAIT",       "GET",
    "BEEP",         "POWER",       "HALT",         "FORWARD",    "BACKWARD",
    "ON",           "OFF",         "START_BUTTON", "CITY_CALL",  "AIRPORT_CALL",
    "LIGHT_SENSOR", "TIME_GATE_A", "TIME_GATE_B",  "TIME_RESET", "SOUND_SENSOR",
};

TEST(StringStore, HoldsTheSameKeywordsInBothLanguages) {
  int iId = 600;
  for (const char* sWord : Keywords) {
    EXPECT_EQ(LoadTextFor(iId, iEnglish), sWord);
    EXPECT_EQ(LoadTextFor(iId, iSpanish), sWord);
    ++iId;
  }
  EXPECT_EQ(iId, 625);
}

/// Rows that show nothing but a keyword, or an example line of the language.
TEST(StringStore, KeepsTheSyntaxRowsInEnglish) {
  for (const int iId : {404, 406, 407, 421, 423, 432, 433, 438, 439, 441, 442,
                        444, 445, 447, 451, 455, 459, 462, 466, 470, 471, 473}) {
    EXPECT_EQ(LoadTextFor(iId, iSpanish), LoadTextFor(iId, iEnglish)) << iId;
  }
}

TEST(StringStore, TranslatesTheRest) {
  int iSame = 0;
  for (const int iId : IdsOf(iEnglish)) {
    if (LoadTextFor(iId, iSpanish) == LoadTextFor(iId, iEnglish)) ++iSame;
  }
  EXPECT_LT(iSame, 70);
}

QString LeadingBlanks(const QString& sText) {
  return sText.left(sText.indexOf(TrimBlanks(sText)));
}

QString TrailingBlanks(const QString& sText) {
  return sText.mid(LeadingBlanks(sText).size() + TrimBlanks(sText).size());
}

/// The three titles of the debug text, padded so that the values behind them stand in one column.
bool IsPaddedTitle(int iId) {
  return iId >= 54 && iId <= 56;
}

TEST(StringStore, KeepsBlanksAtBothEndsInBothLanguages) {
  for (const int iId : IdsOf(iEnglish)) {
    if (IsPaddedTitle(iId)) continue;
    const QString sEnglish = LoadTextFor(iId, iEnglish);
    const QString sSpanish = LoadTextFor(iId, iSpanish);
    EXPECT_EQ(LeadingBlanks(sSpanish), LeadingBlanks(sEnglish)) << iId;
    EXPECT_EQ(TrailingBlanks(sSpanish), TrailingBlanks(sEnglish)) << iId;
  }
}

TEST(StringStore, PadsTheDebugTitlesToOneWidth) {
  for (const int iLanguage : {iEnglish, iSpanish}) {
    for (const int iId : {54, 55, 56}) EXPECT_EQ(LoadTextFor(iId, iLanguage).size(), 10) << iId;
  }
}

/// How often the pattern stands in the text of that id.
qsizetype Count(int iId, int iLanguage, const QString& sPattern) {
  return LoadTextFor(iId, iLanguage).count(QRegularExpression(sPattern));
}

/// Double quotes, an access key, placeholders, and single quotes that enclose or join something
/// (not the apostrophe inside a word).
const char* const Marks[] = {"\"", "&", "\\[[^\\]]+\\]", "<[^>]+>", "(?<!\\w)'|'(?!\\w)"};

TEST(StringStore, KeepsQuotesAndPlaceholdersInBothLanguages) {
  for (const int iId : IdsOf(iEnglish)) {
    for (const char* sMark : Marks) {
      EXPECT_EQ(Count(iId, iSpanish, sMark), Count(iId, iEnglish, sMark)) << iId << ' ' << sMark;
    }
  }
}

TEST(StringStore, StaysWithinTheCodePage) {
  for (const int iId : IdsOf(iSpanish)) {
    const QString sText = LoadTextFor(iId, iSpanish);
    EXPECT_EQ(FromCodePage(ToCodePage(sText)), sText) << iId;
  }
}

TEST(StringStore, HasNoTextForAnyOtherId) {
  for (const int iId : {-32768, -1, 0, 1, 2, 3, 5, 9, 11, 263, 424, 523, 599, 625, 854, 32767}) {
    EXPECT_EQ(LoadTextFor(iId, iEnglish), "") << iId;
    EXPECT_EQ(LoadDefaultText(iId), "") << iId;
  }
}

TEST(StringStore, HasNoTextInAnyOtherLanguage) {
  for (const int iLanguage : {0, 1031, 1036, 1049, 1087, 2057, 2070, 1034, -1}) {
    EXPECT_EQ(LoadTextFor(80, iLanguage), "") << iLanguage;
  }
}

TEST(StringStore, GivesADefaultRowInTheFirstLanguageThatHasOne) {
  EXPECT_EQ(LoadDefaultText(80), "Glidetrak Control");
}

}  // namespace
}  // namespace glidetrak
