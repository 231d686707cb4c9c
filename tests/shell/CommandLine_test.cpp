// The command line: switches, values and the file.

#include "shell/CommandLine.h"

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "common/UserPaths.h"
#include "form/frmGlidetrak.h"
#include "station/Station.h"

namespace glidetrak {
namespace {

class CommandLineTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* sPath : {"C:\\A.GTP", "C:\\MY A.GTP", "C:\\DIR\\OUSE.GTP"}) {
      platform.AddFile(sPath, "");
    }
  }

  /// Parses with the state of a fresh process.
  static void Parse(const QString& sCommandLine) {
    sCommandLineFile.clear();
    sLanguageIndex = "0";
    iUILanguage = 0;
    ParseCommandLine(sCommandLine);
  }

  VirtualPlatform platform;
};

struct SwitchRow {
  const char* sCommandLine;
  bool bDebugMode;
  bool bSimStart;
  const char* sFile;
};

const SwitchRow SwitchRows[] = {
    {"", false, false, ""},
    {"/DEBUGMODE", true, false, ""},
    {"/debugmode", true, false, ""},
    {"/SIMSTART", false, true, ""},
    {"/SimStart /DebugMode", true, true, ""},
    {"C:\\A.GTP", false, false, "C:\\A.GTP"},
    {"c:\\a.gtp", false, false, "C:\\A.GTP"},
    {"/DEBUGMODE C:\\A.GTP", true, false, "C:\\A.GTP"},
    {"C:\\A.GTP /DEBUGMODE", true, false, "C:\\A.GTP"},
    {"\"C:\\MY A.GTP\" /DEBUGMODE", true, false, "C:\\MY A.GTP"},
    {"/DEBUGMODE/DEBUGMODE C:\\A.GTP", true, false, "C:\\A.GTP"},
    {"/H C:\\A.GTP", false, false, "C:\\A.GTP"},
    {"C:\\DIR\\/HOUSE.GTP", false, false, "C:\\DIR\\OUSE.GTP"},
    {"/UNITS='1' C:\\A.GTP", false, false, "C:\\A.GTP"},
    {"/LANG='2' C:\\A.GTP", false, false, "C:\\A.GTP"},
    {"/LC=0C0A C:\\A.GTP", false, false, "C:\\A.GTP"},
    {"C:\\A.GTP /LC=0C0A", false, false, "C:\\A.GTP"},
    {"/LANG='2' /LC=0C0A C:\\A.GTP", false, false, ""},
    {"/LANG=2 C:\\A.GTP", false, false, ""},
    {"/NONSENSE", false, false, ""},
};

TEST_F(CommandLineTest, TakesTheSwitchesOutAndLeavesTheFile) {
  for (const SwitchRow& row : SwitchRows) {
    Parse(row.sCommandLine);
    EXPECT_EQ(bDebugMode, row.bDebugMode) << row.sCommandLine;
    EXPECT_EQ(MNUShowDebug.Visible, row.bDebugMode) << row.sCommandLine;
    EXPECT_EQ(bSimStart, row.bSimStart) << row.sCommandLine;
    EXPECT_EQ(sCommandLineFile, row.sFile) << row.sCommandLine;
  }
}

struct LanguageSwitchRow {
  const char* sCommandLine;
  const char* sIndex;
  int iUILanguage;
};

const LanguageSwitchRow LanguageSwitchRows[] = {
    {"", "0", 0},
    {"/LANG='3'", "3", 0},
    {"/LANG=' 3 '", "3", 0},
    {"/LANG=''", "", 0},
    {"/LANG='3", "3", 0},
    {"/LC=0C0A", "2", 3082},
    {"/LC 0C0A", "2", 3082},
    {"/LC:0c0a", "2", 3082},
    {"/LCX0C0A", "2", 3082},
    {"/LC=40C", "3", 1036},
    {"/LC=43F /DEBUGMODE", "6", 1087},
    {"/LC=C0A rest", "2", 3082},
    {"/LC=", "0", 0},
    {"/LC=ZZ", "0", 0},
    {"/LANG='1' /LC=0C0A", "1", 0},
};

TEST_F(CommandLineTest, ReadsTheLanguageSwitches) {
  for (const LanguageSwitchRow& row : LanguageSwitchRows) {
    Parse(row.sCommandLine);
    EXPECT_EQ(sLanguageIndex, row.sIndex) << row.sCommandLine;
    EXPECT_EQ(iUILanguage, row.iUILanguage) << row.sCommandLine;
  }
}

TEST_F(CommandLineTest, ReadsTheUnits) {
  Parse("/UNITS='1'");
  EXPECT_EQ(sUnits, "1");
  Parse("");
  EXPECT_EQ(sUnits, "0");
}

struct ValueRow {
  const char* sText;
  const char* sValue;
  const char* sRawText;
};

const ValueRow ValueRows[] = {
    {"='3'", "3", "='3'"},   {"='3' REST", "3", "='3'"},
    {"  ='3'", "3", "='3'"}, {"=''", "", "=''"},
    {"='", "", "=''"},       {"='A B'", "A B", "='A B'"},
    {"=3", "=3", "='=3'"},   {"3 REST", "3 REST", "='3 REST'"},
    {"", "", "=''"},         {"'3'", "", "=''"},
    {"='3", "3", "='3'"},    {"= '3'", "= ", "='= '"},
};

TEST_F(CommandLineTest, ReadsAValueBetweenItsQuotes) {
  for (const ValueRow& row : ValueRows) {
    QString sValue;
    QString sRawText;
    ParseParameterValue(row.sText, sValue, sRawText);
    EXPECT_EQ(sValue, row.sValue) << row.sText;
    EXPECT_EQ(sRawText, row.sRawText) << row.sText;
  }
}

}  // namespace
}  // namespace glidetrak
