// From a language code to the texts and to the configuration's folder.

#include <gtest/gtest.h>

#include "station/Print.h"
#include "strings/LanguageFunctions.h"
#include "strings/ResourceStrings.h"
#include "strings/ResourceText.h"
#include "virtual/VirtualPlatform.h"

namespace glidetrak {
namespace {

const char* const sUILanguageValue = "Software\\Torvane\\UILanguage";

class LanguageChoice : public ::testing::Test {
 protected:
  void SetUp() override { iUILanguage = 0; }

  void Store(Scope scope, qint32 lLanguage) {
    platform.aNumbers[static_cast<int>(scope)][sUILanguageValue] = lLanguage;
  }

  VirtualPlatform platform;
};

struct MappingRow {
  int iLanguage;
  int iTexts;
  int iIndex;
};

const MappingRow MappingRows[] = {
    {1033, 1033, 0},  // English, United States
    {2057, 1033, 1},  // English, United Kingdom
    {3081, 1033, 1},  // English, Australia
    {9, 1033, 1},     // English without a region
    {3082, 3082, 2},  // Spanish, Spain
    {1034, 3082, 2},  // Spanish, traditional sort
    {2058, 3082, 2},  // Spanish, Mexico
    {10, 3082, 2},    // Spanish without a region
    {1036, 1033, 3},  // French has an index and no texts
    {3084, 1033, 3},  // French, Canada
    {1031, 1031, 0},  // German has a code for texts and no index
    {3079, 1031, 0},  // German, Austria
    {2070, 2070, 4},  // Portuguese, Portugal
    {1046, 2070, 4},  // Portuguese, Brazil
    {1049, 1049, 5},  // Russian
    {1087, 1087, 6},  // Kazakh
    {1040, 1033, 0},  // Italian
    {1041, 1033, 0},  // Japanese
    {63, 1087, 6},    // the low 10 bits decide
    {64 * 1024 - 1, 1033, 0},
};

TEST_F(LanguageChoice, PicksTheTextsByThePrimaryLanguage) {
  for (const MappingRow& row : MappingRows) {
    SetUILanguage(static_cast<qint16>(row.iLanguage));
    EXPECT_EQ(GetCurrentLanguage(), row.iTexts) << row.iLanguage;
  }
}

TEST_F(LanguageChoice, PicksTheIndexByThePrimaryLanguage) {
  for (const MappingRow& row : MappingRows) {
    EXPECT_EQ(LanguageIndexFromCode(row.iLanguage), row.iIndex) << row.iLanguage;
  }
}

struct IndexRow {
  int iIndex;
  int iLanguage;
  const char* sFolder;
};

const IndexRow IndexRows[] = {
    {0, 1033, "0409"},  {1, 2057, "0809"},     {2, 3082, "0C0A"}, {3, 1036, "040C"},
    {4, 2070, "0816"},  {5, 1049, "0419"},     {6, 1087, "043F"}, {7, 1033, "0409"},
    {99, 1033, "0409"}, {32767, 1033, "0409"},
};

TEST_F(LanguageChoice, TurnsAnIndexIntoItsCode) {
  for (const IndexRow& row : IndexRows) {
    EXPECT_EQ(LanguageCodeFromIndex(row.iIndex), row.iLanguage) << row.iIndex;
  }
}

TEST_F(LanguageChoice, TurnsAnIndexIntoAFolderOfFourDigits) {
  for (const IndexRow& row : IndexRows) {
    EXPECT_EQ(LanguageFolderCode(row.iIndex), row.sFolder) << row.iIndex;
  }
}

TEST_F(LanguageChoice, FallsBackFromKazakhToRussianAlone) {
  EXPECT_EQ(GetFallbackLanguage(1087), 1049);
  for (const int iLanguage : {1033, 3082, 2070, 1031, 1049}) {
    EXPECT_EQ(GetFallbackLanguage(iLanguage), iLanguage);
  }
}

struct SystemRow {
  qint32 lUser;     ///< stored in the user's scope, -1 for none
  qint32 lMachine;  ///< stored in the machine's scope, -1 for none
  int iDefault;
  int iExpected;
};

constexpr qint32 lNone = -1;

const SystemRow SystemRows[] = {
    {3082, 1049, 1036, 3082},   {lNone, 1049, 1036, 1049}, {0, 1049, 1036, 1049},
    {lNone, lNone, 1036, 1036}, {0, 0, 1036, 1036},        {3082, 0, 1036, 3082},
    {lNone, 0, 1036, 1036},     {1087, lNone, 1033, 1087},
};

TEST_F(LanguageChoice, AsksTheUserThenTheMachineThenTheSystemAndTakesZeroForAbsent) {
  for (const SystemRow& row : SystemRows) {
    platform.aNumbers[0].clear();
    platform.aNumbers[1].clear();
    if (row.lUser != lNone) Store(Scope::User, row.lUser);
    if (row.lMachine != lNone) Store(Scope::Machine, row.lMachine);
    platform.iUserLanguage = row.iDefault;
    EXPECT_EQ(GetSystemLanguage(), row.iExpected) << row.lUser << ' ' << row.lMachine;
  }
}

TEST_F(LanguageChoice, DoesNotDecideByAskingTheSystem) {
  Store(Scope::User, 3082);
  GetSystemLanguage();
  EXPECT_EQ(iUILanguage, 0);
}

TEST_F(LanguageChoice, GivesTheDefaultForANumberThatIsNotStored) {
  EXPECT_EQ(ReadRegistryNumber(Scope::User, "Software\\Torvane", "Nothing", 17), 17);
  platform.aNumbers[1]["Software\\Torvane\\Level"] = -5;
  EXPECT_EQ(ReadRegistryNumber(Scope::Machine, "Software\\Torvane", "Level", 17), -5);
  EXPECT_EQ(ReadRegistryNumber(Scope::User, "Software\\Torvane", "Level", 17), 17);
}

TEST_F(LanguageChoice, DecidesOnceAndForAll) {
  Store(Scope::User, 3082);
  EXPECT_EQ(LoadText(idMenuExit), "&Cerrar");
  Store(Scope::User, 1033);
  EXPECT_EQ(iUILanguage, 3082);
  EXPECT_EQ(LoadText(idMenuExit), "&Cerrar");
}

TEST_F(LanguageChoice, KeepsAMappedCodeForTheRestOfTheProcess) {
  platform.iUserLanguage = 2058;
  GetCurrentLanguage();
  EXPECT_EQ(iUILanguage, 3082);
}

TEST_F(LanguageChoice, PutsTheCommandLinesLanguageAheadOfTheSystems) {
  Store(Scope::User, 3082);
  SetUILanguage(1033);
  EXPECT_EQ(LoadText(idMenuExit), "E&xit");
}

TEST_F(LanguageChoice, LeavesTheCommandLinesCodeAsItWasGiven) {
  SetUILanguage(2058);
  EXPECT_EQ(LoadText(idMenuExit), "&Cerrar");
  EXPECT_EQ(iUILanguage, 2058);
}

struct FallbackRow {
  int iLanguage;
  const char* sMarker;  ///< text 10: "1" in English, "2" in Spanish
};

const FallbackRow FallbackRows[] = {
    {1033, "1"}, {2057, "1"}, {3082, "2"}, {2058, "2"}, {1036, "1"},
    {1031, "1"}, {2070, "1"}, {1049, "1"}, {1087, "1"}, {1041, "1"},
};

TEST_F(LanguageChoice, ShowsEnglishWhereThereIsNoTable) {
  for (const FallbackRow& row : FallbackRows) {
    SetUILanguage(static_cast<qint16>(row.iLanguage));
    EXPECT_EQ(LoadText(idLanguageMark), row.sMarker) << row.iLanguage;
  }
}

TEST_F(LanguageChoice, HasNoTextForAnUnknownIdInAnyLanguage) {
  for (const FallbackRow& row : FallbackRows) {
    SetUILanguage(static_cast<qint16>(row.iLanguage));
    for (const int iId : {0, 5, 263, 999, -1})
      EXPECT_EQ(LoadText(static_cast<TextId>(iId)), "") << iId;
  }
}

/// A machine whose settings store and whose own language cannot be read.
class BrokenPlatform : public VirtualPlatform {
 public:
  std::optional<qint32> ReadRegistryNumber(Scope, const QString&, const QString&) override {
    throw RuntimeError(Fault::PlatformCall);
  }
};

TEST(LoadText, NeverFails) {
  BrokenPlatform platform;
  iUILanguage = 0;
  QString sText = "old";
  EXPECT_NO_THROW(sText = LoadText(idProgramName));
  EXPECT_EQ(sText, "");
}

struct TokenRow {
  TextId id;
  std::vector<Token> aTokens;
  QString sExpected;
};

const TokenRow TokenRows[] = {
    {idMenuExit, {}, "E&xit"},
    {idMenuExit, {{"&", ""}}, "Exit"},
    {idUnableToCommunicate, {{"Hardware", "rig"}}, "Unable to communicate with the rig."},
    {idMenuExit, {{"x", "y"}, {"y", "z"}}, "E&zit"},
    {idMenuExit, {{"q", "z"}}, "E&xit"},
    {idControlPanel, {{"N", "n"}}, "COnTROL PAnEL"},
    {idNoText, {{"x", "y"}}, ""},
};

TEST_F(LanguageChoice, ReplacesEachTokenInTurnAndEverywhere) {
  for (const TokenRow& row : TokenRows) {
    EXPECT_EQ(ReplaceTokens(row.id, row.aTokens), row.sExpected) << row.id;
  }
}

}  // namespace
}  // namespace glidetrak
