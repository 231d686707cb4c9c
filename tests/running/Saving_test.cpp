// What saving leaves on the disk, and what it must not touch.

#include <gtest/gtest.h>

#include <QDir>

#include "RunningStation.h"

namespace glidetrak {

namespace {

/// Saves under a name that is refused: the dialog gives way to the message, and a key to nothing.
void ExpectRefused(RunningStation& station, const QString& sName) {
  station.ChooseFileEntry(entrySaveAs);
  ASSERT_TRUE(station.HasWindow("^Save Program$"));
  station.GiveName(station.Folder() + '/' + sName);
  Wait(500);
  station.Picture("refused-name");
  ASSERT_TRUE(station.HasWindow("^Save Program$")) << "no message for " << sName.toStdString();
  station.Key("Return");
  ASSERT_TRUE(station.HasNoWindow("^Save Program$")) << "no message for " << sName.toStdString();
}

}  // namespace

TEST(Saving, LeavesANeighbourAloneWhoseNameDiffersInCaseOnly) {
  RunningStation station;
  station.WriteProgram("plan.gtp", firstText);
  station.WriteProgram("Plan.gtp", "BREAK\r\n");
  ASSERT_TRUE(station.Start());
  station.ChooseFileEntry(entryOpen);
  ASSERT_TRUE(station.HasWindow("^Open Program$"));
  station.GiveName(station.Folder() + "/plan.gtp");
  ASSERT_TRUE(station.HasWindow("^PLAN.GTP : Glidetrak Control$"));
  station.TypeAtTop("BEEP\n");
  station.ChooseFileEntry(entrySave);
  Wait(500);
  EXPECT_EQ(station.Read("plan.gtp"), firstChanged);
  EXPECT_EQ(station.Read("Plan.gtp"), QByteArray("BREAK\r\n"));
}

TEST(Saving, OfAFileFromTheCommandLineWritesTheOneThatWasTyped) {
  RunningStation station;
  station.WriteProgram("lessons/plan.gtp", firstText);
  station.WriteProgram("lessons/PLAN.GTP", "BREAK\r\n");
  station.WriteProgram("Lessons/plan.gtp", "BREAK\r\n");
  ASSERT_TRUE(station.Start({"lessons/plan.gtp"}));
  station.Click(placeProgram);
  station.TypeAtTop("BEEP\n");
  station.ChooseFileEntry(entrySave);
  Wait(500);
  EXPECT_EQ(station.Read("lessons/plan.gtp"), firstChanged);
  EXPECT_EQ(station.Read("lessons/PLAN.GTP"), QByteArray("BREAK\r\n"));
  EXPECT_EQ(station.Read("Lessons/plan.gtp"), QByteArray("BREAK\r\n"));
}

TEST(Saving, GoesOnWorkingBehindNamesThatAreRefused) {
  RunningStation station;
  for (const char* sName : {"ab.GTP", "b.GTP", "a/b.GTP"}) station.WriteProgram(sName, "BREAK\r\n");
  ASSERT_TRUE(station.StartWithChanges());
  for (const char* sName : {"homework 3/4", "a\"b", "a\\b"}) {
    ASSERT_NO_FATAL_FAILURE(ExpectRefused(station, sName));
  }
  EXPECT_EQ(station.SaveText(entrySaveAs, "first.gtp"), firstChanged);
  for (const char* sName : {"ab.GTP", "b.GTP", "a/b.GTP"}) {
    EXPECT_EQ(station.Read(sName), QByteArray("BREAK\r\n")) << sName;
  }
}

}  // namespace glidetrak
