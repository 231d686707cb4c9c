// Station paths and native ones.

#include "platform/linux/LinuxPaths.h"

#include <gtest/gtest.h>

#include "platform/TemporaryFolder.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

class Paths : public ::testing::Test {
 protected:
  void SetUp() override {
    folder.AddFile("Work/Plan.gtp", "plan");
    folder.AddFile("Work/MY PLAN.GTP");
    folder.AddFile("both.GTP", "small");
    folder.AddFile("BOTH.GTP", "big");
  }

  TemporaryFolder folder;
  LinuxPaths paths;
};

struct PathRow {
  const char* sStation;
  const char* sNative;
};

const PathRow PathRows[] = {
    {"Work\\Plan.gtp", "Work/Plan.gtp"},
    {"WORK\\PLAN.GTP", "Work/Plan.gtp"},
    {"work\\my plan.gtp", "Work/MY PLAN.GTP"},
    {"WORK", "Work"},
    {"BOTH.GTP", "BOTH.GTP"},
    {"Work\\New.gtp", "Work/New.gtp"},
    {"WORK\\New.gtp", "Work/New.gtp"},
    {"Nowhere\\New.gtp", "Nowhere/New.gtp"},
};

TEST_F(Paths, AreFoundAsSpeltAndElseWithoutRegardToCase) {
  for (const PathRow& row : PathRows) {
    EXPECT_EQ(paths.Native(folder.Station(row.sStation)), folder.Native(row.sNative));
  }
}

TEST_F(Paths, KeepTheSpellingByWhichAFileWasFound) {
  paths.Native(folder.Station("WORK\\PLAN.GTP"));
  QFile::remove(folder.Native("Work/Plan.gtp"));
  EXPECT_EQ(paths.Native(folder.Station("Work\\PLAN.gtp")), folder.Native("Work/Plan.gtp"));
}

TEST_F(Paths, AreWrittenWithBackslashes) {
  EXPECT_EQ(LinuxPaths::Station("/home/user/a b.gtp"), "\\home\\user\\a b.gtp");
}

TEST_F(Paths, OfTheCommandLineBecomeStationPathsWhereTheyNameAFile) {
  const QStringList aArguments{"glidetrak", folder.Native("Work/Plan.gtp"),
                               folder.Native("Work/MY PLAN.GTP"), "/DEBUGMODE", "/LANG='2'"};
  EXPECT_EQ(CommandLine(aArguments), folder.Station("Work\\Plan.gtp") + " \"" +
                                         folder.Station("Work\\MY PLAN.GTP") +
                                         "\" /DEBUGMODE /LANG='2'");
}

TEST_F(Paths, OfTheCommandLineThatAreRelativeMeanTheFolderOfTheCommand) {
  QDir::setCurrent(folder.Native("Work"));
  EXPECT_EQ(CommandLine({"glidetrak", "Plan.gtp"}), folder.Station("Work\\Plan.gtp"));
  EXPECT_EQ(CommandLine({"glidetrak", "../both.GTP"}), folder.Station("both.GTP"));
  EXPECT_EQ(CommandLine({"glidetrak", "Nowhere.gtp"}), "Nowhere.gtp");
}

TEST_F(Paths, OfAnEmptyCommandLineAreNone) {
  EXPECT_EQ(CommandLine({"glidetrak"}), "");
}

}  // namespace
}  // namespace glidetrak
