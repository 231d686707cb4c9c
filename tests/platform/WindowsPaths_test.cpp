#include "platform/windows/WindowsPaths.h"

#include <gtest/gtest.h>

#include <QDir>

#include "platform/WindowsFolder.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

struct CommandLineRow {
  const char* sWhole;
  const char* sRest;
};

const CommandLineRow CommandLineRows[] = {
    {"glidetrak.exe", ""},
    {"glidetrak.exe ", ""},
    {"glidetrak.exe /DEBUGMODE", "/DEBUGMODE"},
    {"glidetrak.exe \t /LC=0C0A  A.GTP ", "/LC=0C0A  A.GTP "},
    {"\"C:\\Program Files\\glidetrak.exe\" \"C:\\My programs\\A.GTP\"",
     "\"C:\\My programs\\A.GTP\""},
    {"\"C:\\a b\\glidetrak.exe\"/LANG='2'", ""},
    {"C:\\\"a b\"\\glidetrak.exe x", "x"},
    {"\"C:\\never closed x", ""},
    {"", ""},
};

TEST(CommandLine, IsWhatStandsBehindTheProgramsName) {
  for (const CommandLineRow& row : CommandLineRows) {
    EXPECT_EQ(BehindProgramName(row.sWhole), QString(row.sRest)) << row.sWhole;
  }
}

TEST(CallPath, LeavesAShortPathAlone) {
  EXPECT_EQ(CallPath("C:\\a\\b.GTP"), L"C:\\a\\b.GTP");
  EXPECT_EQ(CallPath("C:\\a\\..\\b.GTP"), L"C:\\b.GTP");
}

TEST(CallPath, OfARelativePathBeginsAtTheRoot) {
  const QString sHere = QDir::toNativeSeparators(QDir::currentPath());
  const QString sWanted = sHere.endsWith(u'\\') ? sHere + "b.GTP" : sHere + "\\b.GTP";
  EXPECT_EQ(QString::fromStdWString(CallPath("b.GTP")), sWanted);
}

TEST(CallPath, OfALongNameIsTheOneWithoutALimit) {
  const QString sName(200, u'x');
  EXPECT_EQ(QString::fromStdWString(CallPath("C:\\" + sName + u'\\' + sName)),
            "\\\\?\\C:\\" + sName + u'\\' + sName);
  EXPECT_EQ(QString::fromStdWString(CallPath("\\\\school\\share\\" + sName + u'\\' + sName)),
            "\\\\?\\UNC\\school\\share\\" + sName + u'\\' + sName);
}

TEST(CallPath, IsNoneForWhatNoFileBears) {
  EXPECT_TRUE(CallPath("").empty());
  EXPECT_TRUE(CallPath(QString("C:\\a") + QChar(u'\0') + "b").empty());
}

TEST(ToolkitPath, HasSlashesAndComesBackWithBackslashes) {
  EXPECT_EQ(ToolkitPath("C:\\a\\b.GTP"), QString("C:/a/b.GTP"));
  EXPECT_EQ(StationPathOf("//school/share/b.GTP"), QString("\\\\school\\share\\b.GTP"));
}

/// The command line comes in upper case.
TEST(ToolkitPath, IsSpeltAsTheDiskSpellsIt) {
  const WindowsFolder folder;
  folder.AddFile("Plan one.gtp", "");
  const QString sFound = ToolkitPath(folder.Path("Plan one.gtp"));
  EXPECT_TRUE(sFound.endsWith("/Plan one.gtp")) << sFound.toStdString();
  EXPECT_EQ(ToolkitPath(folder.Path("Plan one.gtp").toUpper()), sFound);
  EXPECT_EQ(ToolkitPath(folder.Path().toUpper() + "\\NONE.GTP"),
            ToolkitPath(folder.Path()) + "/NONE.GTP");
}

}  // namespace
}  // namespace glidetrak
