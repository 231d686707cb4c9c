// The command line's switches and its file.

#include "shell/CommandLine.h"

#include "shell/StartUpTest.h"
#include "strings/LanguageFunctions.h"

namespace glidetrak {

namespace {

TEST_F(StartUpTest, DebugModeAndSimStartInAnyCaseAndPlace) {
  const struct {
    const char* sText;
    bool bDebug, bSim;
  } rows[] = {
      {"", false, false},
      {"/DEBUGMODE", true, false},
      {"/debugmode", true, false},
      {"/SIMSTART", false, true},
      {"/simstart/DebugMode", true, true},
      {"x/DEBUGMODEx", true, false},
      {"/DEBUG", false, false},
      {"DEBUGMODE", false, false},
  };
  for (const auto& row : rows) {
    MNUShowDebug.Visible = !row.bDebug;
    ParseCommandLine(row.sText);
    EXPECT_EQ(bDebugMode, row.bDebug) << row.sText;
    EXPECT_EQ(bSimStart, row.bSim) << row.sText;
    EXPECT_EQ(MNUShowDebug.Visible, row.bDebug) << row.sText;
  }
}

struct LanguageRow {
  const char* sText;
  const char* sIndex;
  int iOverride;
};

void ExpectLanguage(const LanguageRow& row) {
  sLanguageIndex = "9";
  iUILanguage = 0;
  ParseCommandLine(row.sText);
  EXPECT_EQ(sLanguageIndex, row.sIndex) << row.sText;
  EXPECT_EQ(iUILanguage, row.iOverride) << row.sText;
}

TEST_F(StartUpTest, LangTakesAnIndexInQuotes) {
  const LanguageRow rows[] = {
      {"/LANG='3'", "3", 0},
      {"/lang='2'", "2", 0},
      {"/LANG=' 2 '", "2", 0},
      {"/LANG ='3'", "3", 0},
      {"/LANG='3", "3", 0},
      {"/LANG3", "3", 0},
      {"/LANG=''", "", 0},
      {"/LANG='X'", "X", 0},
      {"/LANG", "", 0},
      {"/LANG=3", "=3", 0},
      {"/LANG=3 \\A.GTP", "=3 \\A.GTP", 0},
      {"/LANG='2' /LC=0C0A", "2", 0},
      {"/LC=0C0A /LANG='2'", "2", 0},
  };
  for (const LanguageRow& row : rows) ExpectLanguage(row);
}

TEST_F(StartUpTest, LcTakesACodeBehindOneSeparatorOfWhateverKind) {
  const LanguageRow rows[] = {
      {"/LC=0C0A", "2", 3082},
      {"/LC 0C0A", "2", 3082},
      {"/LC:0c0a", "2", 3082},
      {"/LCX0C0A", "2", 3082},
      {"/LC0C0A", "2", 3082},
      {"/LC=C0A", "2", 3082},
      {"/LC=0C0A REST", "2", 3082},
      {"/LC=0409", "0", 1033},
      {"/LC=0809", "1", 2057},
      {"/LC=040C", "3", 1036},
      {"/LC=0816", "4", 2070},
      {"/LC=0419", "5", 1049},
      {"/LC=043F", "6", 1087},
      {"/LC=0407", "0", 1031},
      {"/LC=FFFF", "0", -1},
      {"/LC=", "0", 0},
      {"/LC", "0", 0},
      {"/LC==0C0A", "0", 0},
  };
  for (const LanguageRow& row : rows) ExpectLanguage(row);
}

TEST_F(StartUpTest, CodeOfMoreThanSixteenBitsIsPassedOver) {
  for (const char* sText : {"/LC=10C0A", "/LC=10000", "/LC=123456789", "/LC=1234567890ABCDEF01"}) {
    ExpectLanguage({sText, "9", 0});
  }
}

TEST_F(StartUpTest, WithoutALanguageSwitchTheIndexStands) {
  ExpectLanguage({"/DEBUGMODE", "9", 0});
}

TEST_F(StartUpTest, UnitsStartAtZeroAndTakeAValue) {
  const struct {
    const char* sText;
    const char* sUnits;
  } rows[] = {{"", "0"}, {"/UNITS='1'", "1"}, {"/units=' mm '", "MM"}, {"/UNITS=''", ""}};
  for (const auto& row : rows) {
    ParseCommandLine(row.sText);
    EXPECT_EQ(sUnits, row.sUnits) << row.sText;
  }
}

struct FileRow {
  QString sText;
  const char* sFile;
};

class FileArgument : public StartUpTest {
 protected:
  void SetUp() override {
    for (const char* sPath : {"\\H\\A.GTP", "\\H\\A B.GTP", "\\XY\\A.GTP", "\\X/HY\\A.GTP"}) {
      platform.AddFile(sPath, "HALT");
    }
  }

  void Expect(const FileRow& row) {
    sCommandLineFile.clear();
    ParseCommandLine(row.sText);
    EXPECT_EQ(sCommandLineFile, row.sFile) << row.sText.toStdString();
  }
};

TEST_F(FileArgument, IsWhatTheSwitchesLeave) {
  const FileRow rows[] = {
      {"\\H\\A.GTP", "\\H\\A.GTP"},
      {"\\h\\a.gtp", "\\H\\A.GTP"},
      {"  \\H\\A.GTP  ", "\\H\\A.GTP"},
      {"\"\\H\\A.GTP\"", "\\H\\A.GTP"},
      {"\"\\H\\A B.GTP\"", "\\H\\A B.GTP"},
      {"\\H\\A B.GTP", "\\H\\A B.GTP"},
      {"/DEBUGMODE \\H\\A.GTP", "\\H\\A.GTP"},
      {"\\H\\A.GTP /DEBUGMODE", "\\H\\A.GTP"},
      {"\\H\\/SIMSTARTA.GTP", "\\H\\A.GTP"},
      {"/H \\H\\A.GTP", "\\H\\A.GTP"},
      {"/LANG='2' \\H\\A.GTP", "\\H\\A.GTP"},
      {"\\H\\A.GTP /LANG='2'", "\\H\\A.GTP"},
      {"/LC=0C0A \\H\\A.GTP", "\\H\\A.GTP"},
      {"/LC 0C0A \\H\\A.GTP", "\\H\\A.GTP"},
      {"\\H\\A.GTP /LC=0C0A", "\\H\\A.GTP"},
      {"/UNITS='1' \\H\\A.GTP", "\\H\\A.GTP"},
      {"/DEBUGMODE /LANG='2' /UNITS='1' \\H\\A.GTP", "\\H\\A.GTP"},
  };
  for (const FileRow& row : rows) Expect(row);
}

TEST_F(FileArgument, LosesSlashHWhereverItStands) {
  Expect({"\\X/HY\\A.GTP", "\\XY\\A.GTP"});
}

TEST_F(FileArgument, IsDroppedWithWhatCannotBeCut) {
  for (const char* sText :
       {"/LANG=2 \\H\\A.GTP", "/LANG ='2' \\H\\A.GTP", "/LANG='2' /LC=0C0A \\H\\A.GTP",
        "/UNITS=1 \\H\\A.GTP", "/HELP \\H\\A.GTP", "\\H\\NOTHING.GTP", "\\H\\A.TXT", "/DEBUGMODE",
        "\\H\\A.GTP \\XY\\A.GTP"}) {
    Expect({sText, ""});
  }
}

TEST_F(StartUpTest, ParameterIsItsValueAndTheTextToCut) {
  const struct {
    const char* sText;
    const char* sValue;
    const char* sRaw;
  } rows[] = {
      {"='3'", "3", "='3'"},
      {"  ='3' REST", "3", "='3'"},
      {"='3", "3", "='3'"},
      {"3", "3", "='3'"},
      {"''", "", "=''"},
      {"='' X", "", "=''"},
      {"=' 3 '", " 3 ", "=' 3 '"},
      {"3'4'5", "3", "='3'"},
      {"=3 REST", "=3 REST", "='=3 REST'"},
      {"", "", "=''"},
      {"='A B' C", "A B", "='A B'"},
      {"= '3'", "= ", "='= '"},
  };
  for (const auto& row : rows) {
    QString sValue = "old", sRaw = "old";
    ParseParameterValue(row.sText, sValue, sRaw);
    EXPECT_EQ(sValue, row.sValue) << row.sText;
    EXPECT_EQ(sRaw, row.sRaw) << row.sText;
  }
}

}  // namespace

}  // namespace glidetrak
