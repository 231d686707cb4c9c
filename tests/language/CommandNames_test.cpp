// The words of the language and the names that head a statement.

#include "language/CommandNames.h"

#include "authoring/CommandCatalogue.h"
#include "language/Keywords.h"
#include "language/LanguageTest.h"
#include "strings/LanguageFunctions.h"

namespace glidetrak {
namespace {

class CommandNamesTest : public LanguageTest {};

struct NameRow {
  const char* sName;
  bool bIsSensor;
};

const NameRow Names[] = {
    {"AIRPORT_CALL", true}, {"BACKWARD", false},    {"BEEP", false},       {"BREAK", false},
    {"CITY_CALL", true},    {"ENDIF", false},       {"FORWARD", false},    {"GET ", false},
    {"GOTO ", false},       {"HALT", false},        {"IF ", false},        {"LABEL ", false},
    {"LET ", false},        {"LIGHT_SENSOR", true}, {"POWER ", false},     {"PRINT ", false},
    {"SOUND_SENSOR", true}, {"START_BUTTON", true}, {"TIME_GATE_A", true}, {"TIME_GATE_B", true},
    {"TIME_RESET", false},  {"WAIT ", false},
};

TEST_F(CommandNamesTest, StandInTheirOrderWithABlankWhereAnArgumentFollows) {
  ASSERT_EQ(std::size(Names), static_cast<size_t>(iCommandNameCount));
  for (size_t i = 0; i < std::size(Names); ++i) {
    EXPECT_EQ(CommandNameTable[i].sName, Names[i].sName);
    EXPECT_EQ(CommandNameTable[i].bIsSensor, Names[i].bIsSensor) << Names[i].sName;
  }
  EXPECT_EQ(CommandNameTable[iCommandNameCount].sName, "");
}

TEST_F(CommandNamesTest, AreMadeOfTheWordsOfTheTable) {
  KeywordTable[static_cast<size_t>(Keyword::Get)] = "HOLE";
  BuildCommandCatalogue();
  EXPECT_EQ(CommandNameTable[7].sName, "HOLE ");
}

struct WordRow {
  Keyword keyword;
  const char* sWord;
};

const WordRow Words[] = {
    {Keyword::Print, "PRINT"},
    {Keyword::If, "IF"},
    {Keyword::Then, "THEN"},
    {Keyword::EndIf, "ENDIF"},
    {Keyword::On, "ON"},
    {Keyword::Off, "OFF"},
    {Keyword::StartButton, "START_BUTTON"},
    {Keyword::TimeReset, "TIME_RESET"},
    {Keyword::SoundSensor, "SOUND_SENSOR"},
};

TEST_F(CommandNamesTest, AreReadFromTheStoreInEachLanguage) {
  for (const int iLanguage : {iEnglish, iSpanish}) {
    SetUILanguage(static_cast<qint16>(iLanguage));
    KeywordTable.fill("");
    LoadKeywords();
    for (const WordRow& row : Words) EXPECT_EQ(Word(row.keyword), row.sWord) << iLanguage;
  }
}

}  // namespace
}  // namespace glidetrak
