// Names and paths of Control Programs.

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "platform/Platform.h"
#include "programs/ProgramFiles.h"
#include "station/Station.h"

namespace glidetrak {
namespace {

class PathNames : public ::testing::Test {
 protected:
  void SetUp() override {
    station.Start();
    for (const char* sPath : {"C:\\A.GTP", "C:\\MY A.GTP", "C:\\A.GTPX", "C:\\A.TXT"}) {
      station.platform.AddFile(sPath, "");
    }
    station.platform.AddFile("C:\\FOLDER.GTP", "", attrFolder);
    station.platform.AddFile("C:\\LOCKED.GTP", "", attrReadOnly);
    station.platform.AddFile("C:\\LOCKED FOLDER", "", attrFolder | attrReadOnly);
  }

  Station station;
};

struct PathRow {
  QString sText;
  QString sExpected;
};

const PathRow ArgumentRows[] = {
    {"C:\\A.GTP", "C:\\A.GTP"},           {"\"C:\\MY A.GTP\"", "C:\\MY A.GTP"},
    {"C:\\MY A.GTP", "C:\\MY A.GTP"},     {"\"C:\\\"A\".GTP", "C:\\A.GTP"},
    {"c:\\a.gtp", "c:\\a.gtp"},           {"C:\\A.GTPX", "C:\\A.GTPX"},
    {"C:\\LOCKED.GTP", "C:\\LOCKED.GTP"},
};

TEST_F(PathNames, AreTakenFromTheCommandLineWithoutTheirQuotes) {
  for (const PathRow& row : ArgumentRows) {
    EXPECT_EQ(ResolveFileArgument(row.sText), row.sExpected) << row.sText.toStdString();
  }
}

TEST_F(PathNames, OfFourThousandCharactersAreTakenWhole) {
  const QString sPath = "C:\\" + QString(3993, u'X') + ".GTP";
  EXPECT_EQ(ResolveFileArgument(sPath), "");
  station.platform.AddFile(sPath, "");
  EXPECT_EQ(ResolveFileArgument(sPath), sPath);
}

const char* const ArgumentsRefused[] = {
    "",     "C:\\B.GTP",  "C:\\A.TXT", "C:\\FOLDER.GTP", "A.GTP", "C:\\A.GTP C:\\A.GTP",
    "\"\"", "C:\\A.GTP ", "GTP",       ".GTP",
};

TEST_F(PathNames, AreDroppedFromTheCommandLineWhenTheyNameNoControlProgram) {
  for (const char* sText : ArgumentsRefused) EXPECT_EQ(ResolveFileArgument(sText), "") << sText;
  EXPECT_TRUE(station.BoxTexts().empty());
}

TEST_F(PathNames, ExistForWhatIsThereAndIsNoFolder) {
  EXPECT_TRUE(FileExists("C:\\A.GTP"));
  EXPECT_TRUE(FileExists("c:\\a.gtp"));
  EXPECT_TRUE(FileExists("C:\\LOCKED.GTP"));
  for (const char* sPath : {"C:\\FOLDER.GTP", "C:\\LOCKED FOLDER", "C:\\B.GTP", "", "C:\\"}) {
    EXPECT_FALSE(FileExists(sPath)) << sPath;
  }
}

const PathRow FreeRows[] = {
    {"C:\\B.TXT", "C:\\B.GTP"},
    {"C:\\PLAN.TXT", "C:\\PLAN3.GTP"},
    {"C:\\FOLDER.TXT", "C:\\FOLDER.GTP"},
    {"C:\\A.GTP", "C:\\A1.GTP"},
    {"C:\\PLAN", "C:\\.GTP"},
    {"C:\\long.html", "C:\\long..GTP"},
    {".TXT", ".GTP"},
    {"ABCD", ".GTP"},
};

TEST_F(PathNames, AreReplacedByTheFirstThatIsFree) {
  for (const char* sTaken : {"C:\\PLAN.GTP", "C:\\PLAN1.GTP", "C:\\PLAN2.GTP", "C:\\PLAN4.GTP"}) {
    station.platform.AddFile(sTaken, "");
  }
  for (const PathRow& row : FreeRows) {
    EXPECT_EQ(sGetNextFreeRTPFile(row.sText), row.sExpected) << row.sText.toStdString();
  }
}

TEST_F(PathNames, AreReplacedByARandomOneWhenTheyAreTooShort) {
  const QRegularExpression expected("^[1-9][0-9]{3}\\.GTP$");
  for (const char* sPath : {"", "A", "ABC"}) {
    const QString sName = sGetNextFreeRTPFile(sPath);
    EXPECT_TRUE(expected.match(sName).hasMatch()) << sName.toStdString();
  }
}

const PathRow FolderRows[] = {
    {"C:\\Work\\A.GTP", "C:\\Work\\"},
    {"C:\\A.GTP", "C:\\"},
    {"C:\\Work\\", "C:\\Work\\"},
    {"C:A.GTP", "C:\\"},
    {"\\A.GTP", "\\"},
    {"AB", "AB\\"},
    {"A", "A\\"},
    {"A.GTP", "A.\\"},
    {"", "\\"},
    {QString("C:\\Work") + QChar(0) + "A.GTP" + QChar(0) + "B.GTP", "C:\\Work\\"},
    {QString("C:\\Work\\") + QChar(0) + "A.GTP", "C:\\Work\\"},
};

TEST_F(PathNames, LieInTheFolderAheadOfTheLastBackslash) {
  for (const PathRow& row : FolderRows) {
    EXPECT_EQ(GetFolderOfPath(row.sText), row.sExpected) << row.sText.toStdString();
  }
}

TEST_F(PathNames, TellWhetherTheFileIsReadOnly) {
  EXPECT_EQ(IsFileReadOnly("C:\\A.GTP"), 0);
  EXPECT_TRUE(station.BoxTexts().empty());
  EXPECT_EQ(IsFileReadOnly("C:\\LOCKED.GTP"), 1);
  EXPECT_EQ(station.BoxTexts(), QStringList(English(209)));
  EXPECT_EQ(IsFileReadOnly("C:\\B.GTP"), 2);
  EXPECT_EQ(station.BoxTexts().size(), 1);
}

TEST_F(PathNames, TellOfAReadOnlyFileUnderTheTitleOfSaving) {
  IsFileReadOnly("C:\\LOCKED.GTP");
  ASSERT_EQ(station.platform.aBoxes.size(), 1U);
  EXPECT_EQ(station.platform.aBoxes[0].sTitle, "Save Program");
  EXPECT_EQ(station.platform.aBoxes[0].icon, BoxIcon::Exclamation);
}

}  // namespace
}  // namespace glidetrak
