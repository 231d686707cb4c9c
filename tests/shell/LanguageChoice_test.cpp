// The language of the texts and the folder of the configuration.

#include "shell/StartUpTest.h"

namespace glidetrak {

namespace {

struct ChoiceRow : NamedRow {
  int iUserLanguage;
  const char* sCommandLine;
  const char* sIndex;
  const char* sFolder;  ///< with a configuration in every language's folder
  bool bSpanishTexts;
};

class LanguageChoice : public StartUpTest, public ::testing::WithParamInterface<ChoiceRow> {
 protected:
  void AddConfigurations() {
    for (const char* sCode : {"0409", "0809", "0C0A", "040C", "0816", "0419", "043F"}) {
      platform.AddFile(QString("\\STATION\\Language\\") + sCode + "\\TV_GLIDETRAK.INI", "");
    }
  }
};

TEST_P(LanguageChoice, DecidesIndexFolderAndTexts) {
  AddConfigurations();
  platform.iUserLanguage = GetParam().iUserLanguage;
  Start(GetParam().sCommandLine);
  EXPECT_EQ(sLanguageIndex, GetParam().sIndex);
  EXPECT_EQ(sLanguageFolder, GetParam().sFolder);
  EXPECT_EQ(MNUSAVEPROG.Caption.value() != "Save Control Program", GetParam().bSpanishTexts);
}

TEST_P(LanguageChoice, WithoutAConfigurationThereHasNoFolder) {
  platform.iUserLanguage = GetParam().iUserLanguage;
  Start(GetParam().sCommandLine);
  EXPECT_EQ(sLanguageIndex, GetParam().sIndex);
  EXPECT_EQ(sLanguageFolder, "");
}

INSTANTIATE_TEST_SUITE_P(
    StartUp, LanguageChoice,
    ::testing::Values(
        ChoiceRow{{"UnitedStates"}, 0x0409, "", "0", "", false},
        ChoiceRow{{"OtherEnglish"}, 0x0809, "", "1", "", false},
        ChoiceRow{{"Spanish"}, 0x0C0A, "", "2", "Language\\0C0A\\", true},
        ChoiceRow{{"MexicanSpanish"}, 0x080A, "", "2", "Language\\0C0A\\", true},
        ChoiceRow{{"FrenchHasNoTexts"}, 0x040C, "", "0", "", false},
        ChoiceRow{{"GermanHasNoIndex"}, 0x0407, "", "0", "", false},
        ChoiceRow{{"RussianHasNoTexts"}, 0x0419, "", "0", "", false},
        ChoiceRow{{"CodeOfTheCommandLine"}, 0x0409, "/LC=0C0A", "2", "Language\\0C0A\\", true},
        ChoiceRow{{"CodeBeatsTheSystem"}, 0x0C0A, "/LC=0409", "0", "", false},
        ChoiceRow{{"IndexOfTheCommandLineMovesTheFolderAlone"},
                  0x0409,
                  "/LANG='2'",
                  "2",
                  "Language\\0C0A\\",
                  false},
        ChoiceRow{{"IndexAboveTwoFallsBackInEnglish"}, 0x0409, "/LANG='3'", "0", "", false},
        ChoiceRow{
            {"IndexAboveTwoStandsInSpanish"}, 0x0C0A, "/LANG='3'", "3", "Language\\040C\\", true},
        ChoiceRow{{"IndexSixStandsInSpanish"}, 0x0C0A, "/LANG='6'", "6", "Language\\043F\\", true},
        ChoiceRow{
            {"UnknownIndexMeansUnitedStates"}, 0x0C0A, "/LANG='7'", "7", "Language\\0409\\", true},
        ChoiceRow{{"IndexBetweenTwoAndThree"}, 0x0409, "/LANG='2.5'", "0", "", false},
        ChoiceRow{{"IndexBeyondAnyNumber"}, 0x0409, "/LANG='99999999999'", "0", "", false},
        ChoiceRow{{"IndexBeyondAnyNumberInSpanish"},
                  0x0C0A,
                  "/LANG='99999999999'",
                  "99999999999",
                  "Language\\0409\\",
                  true},
        ChoiceRow{{"IndexBelowNothing"}, 0x0C0A, "/LANG='-99999999999'", "-99999999999", "", true},
        ChoiceRow{{"IndexOneHasNoFolder"}, 0x0C0A, "/LANG='1'", "1", "", true},
        ChoiceRow{{"IndexThatIsNoNumber"}, 0x0409, "/LANG='X'", "X", "", false}),
    RowName());

TEST_F(StartUpTest, StoredLanguageBeatsTheSystemsAndTheUsersTheMachines) {
  platform.aNumbers[static_cast<int>(Scope::Machine)]["Software\\Torvane\\UILanguage"] = 0x0409;
  platform.aNumbers[static_cast<int>(Scope::User)]["Software\\Torvane\\UILanguage"] = 0x0C0A;
  Start();
  EXPECT_EQ(sLanguageIndex, "2");
}

TEST_F(StartUpTest, StoredZeroCountsAsNotStored) {
  platform.iUserLanguage = 0x0C0A;
  platform.aNumbers[static_cast<int>(Scope::User)]["Software\\Torvane\\UILanguage"] = 0;
  Start();
  EXPECT_EQ(sLanguageIndex, "2");
}

}  // namespace

}  // namespace glidetrak
