// Station paths and native ones.

#include "platform/linux/LinuxPaths.h"

#include "platform/FoldCase.h"
#include "platform/NativeFolder.h"
#include "platform/linux/LinuxMachine.h"
#include "shell/CommandLine.h"

namespace glidetrak {

namespace {

class LinuxPathsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder.AddFile("Examples/Trip One.gtp");
    folder.AddFile("same.GTP");
    folder.AddFile("SAME.GTP");
    folder.AddFile("H/a.gtp", "HALT");
    ASSERT_TRUE(QDir::setCurrent(folder.Path()));
  }

  /// The native path of a name in the folder, shown from the folder on.
  QString Native(const QString& sName) {
    const QString sNative = paths.Native(folder.StationPath(sName));
    EXPECT_TRUE(sNative.startsWith(folder.Path()));
    return sNative.mid(folder.Path().size() + 1);
  }

  NativeFolder folder;
  LinuxPaths paths;
};

TEST_F(LinuxPathsTest, BackslashesBecomeSlashesAndBack) {
  EXPECT_EQ(paths.Native("\\no\\such\\Place"), "/no/such/Place");
  EXPECT_EQ(LinuxPaths::Station("/no/such/Place"), "\\no\\such\\Place");
}

TEST_F(LinuxPathsTest, NamesAreFoundWithoutRegardToCase) {
  EXPECT_EQ(Native("Examples\\Trip One.gtp"), "Examples/Trip One.gtp");
  EXPECT_EQ(Native("EXAMPLES\\TRIP ONE.GTP"), "Examples/Trip One.gtp");
  EXPECT_EQ(Native("examples\\trip one.GTP"), "Examples/Trip One.gtp");
}

TEST_F(LinuxPathsTest, PathThatIsUpperCaseAsAWholeIsFound) {
  EXPECT_EQ(paths.Native(folder.StationPath("H\\a.gtp").toUpper()), folder.Path("H/a.gtp"));
}

TEST_F(LinuxPathsTest, ExactSpellingWins) {
  EXPECT_EQ(LinuxPaths().Native(folder.StationPath("same.GTP")), folder.Path("same.GTP"));
  EXPECT_EQ(LinuxPaths().Native(folder.StationPath("SAME.GTP")), folder.Path("SAME.GTP"));
}

TEST_F(LinuxPathsTest, ExactSpellingWinsOverOneThatWasFoundBefore) {
  for (const char* sName : {"same.GTP", "SAME.GTP", "same.GTP"}) {
    EXPECT_EQ(Native(sName), sName);
  }
}

TEST_F(LinuxPathsTest, NamesThatDifferInMoreThanCaseAreTwo) {
  for (const char* sName : {"strasse.gtp", "straße.gtp", "ışık.gtp", "isik.gtp", "Поезд.gtp"}) {
    folder.AddFile(sName);
  }
  for (const char* sName : {"strasse.gtp", "straße.gtp", "ışık.gtp", "isik.gtp", "Поезд.gtp"}) {
    EXPECT_EQ(Native(sName), sName);
  }
  EXPECT_EQ(Native("поезд.GTP"), "Поезд.gtp");
  EXPECT_EQ(Native("STRAßE.GTP"), "straße.gtp");
}

TEST_F(LinuxPathsTest, NewNameBesideOneThatWasFoundIsANewFile) {
  folder.AddFile("strasse.gtp");
  EXPECT_EQ(Native("strasse.gtp"), "strasse.gtp");
  EXPECT_EQ(Native("straße.gtp"), "straße.gtp");
}

TEST_F(LinuxPathsTest, PathOfFourThousandCharactersIsFound) {
  QString sPath;
  while (sPath.size() < 3700) sPath += "Folder of a name that is rather long/";
  folder.AddFile(sPath + "A.gtp", "HALT");
  EXPECT_EQ(Native(sPath + "A.gtp"), sPath + "A.gtp");
  EXPECT_EQ(Native(sPath.toUpper() + "a.GTP"), sPath + "A.gtp");
  EXPECT_EQ(paths.Native(QString(4000, u'x')), QString(4000, u'x'));
}

TEST_F(LinuxPathsTest, WhatIsNowhereStaysAsSpeltBehindWhatIs) {
  EXPECT_EQ(Native("EXAMPLES\\New.gtp"), "Examples/New.gtp");
  EXPECT_EQ(Native("Nothing\\New.gtp"), "Nothing/New.gtp");
}

TEST_F(LinuxPathsTest, RelativePathsAreLookedUpInTheCurrentFolder) {
  EXPECT_EQ(paths.Native("EXAMPLES\\TRIP ONE.GTP"), "Examples/Trip One.gtp");
  EXPECT_EQ(paths.Native("h\\A.gtp"), "H/a.gtp");
}

TEST_F(LinuxPathsTest, FileKeepsItsSpellingAfterItWasDeleted) {
  EXPECT_EQ(Native("EXAMPLES\\TRIP ONE.GTP"), "Examples/Trip One.gtp");
  QFile::remove(folder.Path("Examples/Trip One.gtp"));
  EXPECT_EQ(Native("EXAMPLES\\TRIP ONE.GTP"), "Examples/Trip One.gtp");
}

TEST_F(LinuxPathsTest, DeletedFileIsNeverANeighbourOfAnotherCase) {
  EXPECT_EQ(Native("same.GTP"), "same.GTP");
  QFile::remove(folder.Path("same.GTP"));
  EXPECT_EQ(Native("same.GTP"), "same.GTP");
}

TEST_F(LinuxPathsTest, FileFoundInAnotherCaseStaysThatFileBesideANewOne) {
  EXPECT_EQ(Native("H\\A.GTP"), "H/a.gtp");
  folder.AddFile("H/A.GTP");
  EXPECT_EQ(Native("H\\A.GTP"), "H/a.gtp");
}

TEST_F(LinuxPathsTest, FileThatTheUserChoosesIsMeantWhateverTheCommandLineNamed) {
  aNamedFiles.insert(FoldCase("SAME.GTP"), "same.GTP");  // as from a folder without small letters
  EXPECT_EQ(paths.Native("SAME.GTP"), "same.GTP");
  EXPECT_EQ(paths.Given("SAME.GTP"), "SAME.GTP");
  EXPECT_EQ(paths.Native("SAME.GTP"), "SAME.GTP");
}

TEST_F(LinuxPathsTest, QuotesAndBackslashesOfNativeNamesComeBack) {
  const QString sNative = "/a \"b\"/c\\d";
  const QString sStation = LinuxPaths::Station(sNative);
  EXPECT_FALSE(sStation.contains(u'"'));
  EXPECT_EQ(sStation.count(u'\\'), 2);
  EXPECT_EQ(paths.Native(sStation), sNative);
}

TEST_F(LinuxPathsTest, NameIsNoneWithAQuoteOrABackslash) {
  for (const char* sNative : {"/a/b.gtp", "/a \"b\"/c.gtp", "/a\\b/c.gtp", "a", ""}) {
    EXPECT_TRUE(LinuxPaths::IsName(LinuxPaths::Station(sNative))) << sNative;
  }
  for (const char* sNative : {"/a/b\".gtp", "/a/\\b.gtp", "\"a\""}) {
    EXPECT_FALSE(LinuxPaths::IsName(LinuxPaths::Station(sNative))) << sNative;
  }
  EXPECT_FALSE(LinuxPaths::IsName("\\a\\b\".gtp"));
}

TEST_F(LinuxPathsTest, EmptyPathIsNoPath) {
  EXPECT_EQ(paths.Native(""), "");
}

TEST_F(LinuxPathsTest, CommandLineNamesFilesFromTheRoot) {
  const QString sFile = LinuxPaths::Station(QDir::currentPath()) + "\\H\\a.gtp";
  for (const QString& sArgument :
       {folder.Path("H/a.gtp"), QString("H/a.gtp"), QString("./H/../H/a.gtp")}) {
    EXPECT_EQ(CommandLineText({"glidetrak", sArgument}), sFile) << sArgument.toStdString();
  }
}

TEST_F(LinuxPathsTest, CommandLineQuotesFilesWithBlanks) {
  const QString sFile = LinuxPaths::Station(QDir::currentPath()) + "\\Examples\\Trip One.gtp";
  EXPECT_EQ(CommandLineText({"glidetrak", "Examples/Trip One.gtp"}), '"' + sFile + '"');
}

TEST_F(LinuxPathsTest, CommandLineLeavesEverythingElseAsItIs) {
  EXPECT_EQ(CommandLineText({"glidetrak"}), "");
  EXPECT_EQ(CommandLineText({"glidetrak", "/DEBUGMODE", "/LANG='2'", "nothing.gtp"}),
            "/DEBUGMODE /LANG='2' nothing.gtp");
  EXPECT_EQ(CommandLineText({"same.GTP"}), "");
}

/// What start-up makes of an argument, as a native path from the folder on; "" for none.
QString Opened(const QString& sArgument) {
  LinuxMachine machine;
  pMachine = &machine;
  sCommandLineFile.clear();
  ParseCommandLine(CommandLineText({"glidetrak", sArgument}));
  const QString sNative =
      sCommandLineFile.isEmpty() ? QString() : machine.NativePath(sCommandLineFile);
  pMachine = nullptr;
  return sNative.mid(QDir::currentPath().size() + 1);
}

TEST_F(LinuxPathsTest, ArgumentIsTheFileThatWasTypedAmongNeighboursOfAnotherCase) {
  for (const char* sName : {"lessons/y.gtp", "Lessons/z.gtp", "x/Y.gtp", "x/y.gtp", "x/Y.GTP"}) {
    folder.AddFile(sName);
  }
  for (const char* sName : {"lessons/y.gtp", "Lessons/z.gtp", "x/Y.gtp", "x/y.gtp", "x/Y.GTP",
                            "same.GTP", "SAME.GTP"}) {
    EXPECT_EQ(Opened(sName), sName);
  }
}

TEST_F(LinuxPathsTest, ArgumentWithAQuoteOrABackslashInItsNameIsNoOtherFile) {
  for (const char* sName : {"h\"i.gtp", "h\\i.gtp", "hi.gtp", "h/i.gtp"}) folder.AddFile(sName);
  EXPECT_EQ(Opened("h\"i.gtp"), "");
  EXPECT_EQ(Opened("h\\i.gtp"), "");
}

TEST_F(LinuxPathsTest, ArgumentInAFolderWithAQuoteAndABackslashIsFound) {
  for (const char* sName : {"my \"own\"/a.gtp", "my own/a.gtp", "b\\c/a.gtp", "b/c/a.gtp"}) {
    folder.AddFile(sName);
  }
  for (const char* sName : {"my \"own\"/a.gtp", "my own/a.gtp", "b\\c/a.gtp", "b/c/a.gtp"}) {
    EXPECT_EQ(Opened(sName), sName);
  }
}

TEST_F(LinuxPathsTest, FileInAFolderOfTheSwitchesNameIsFoundThroughTheCommandLine) {
  LinuxMachine machine;
  pMachine = &machine;
  for (const char* sName : {"H/a.gtp", "Examples/Trip One.gtp"}) {
    ParseCommandLine(CommandLineText({"glidetrak", "/DEBUGMODE", sName}));
    EXPECT_FALSE(sCommandLineFile.isEmpty()) << sName;
    EXPECT_EQ(machine.NativePath(sCommandLineFile), QDir::currentPath() + '/' + sName);
  }
  pMachine = nullptr;
}

}  // namespace

}  // namespace glidetrak
