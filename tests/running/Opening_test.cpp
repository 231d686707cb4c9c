// Programs from the disk, through the dialog of the File menu.

#include <gtest/gtest.h>

#include "RunningStation.h"

namespace glidetrak {

namespace {

/// Bytes that a careless reader would change: small letters, a blank line, a lone line feed, a
/// letter beyond ASCII, no line end at the end.
const QByteArray driveText =
    "; Se\xF1"
    "al\r\n\r\nPower 8\nlabel again\r\nGOTO AGAIN";

/// Escape is no answer to a question, while it puts a file dialog away.
bool IsQuestion(RunningStation& station, const QString& sTitle) {
  if (!station.HasWindow(sTitle)) return false;
  station.Key("Escape");
  Wait(500);
  return station.HasWindow(sTitle);
}

}  // namespace

TEST(Opening, AFileFromTheDiskIsTakenByteForByte) {
  RunningStation station;
  station.WriteProgram("drive.gtp", driveText);
  ASSERT_TRUE(station.Start());
  station.ChooseFileEntry(entryOpen);
  ASSERT_TRUE(station.HasWindow("^Open Program$"));
  station.Picture("opening");
  station.GiveName(station.Folder() + "/drive.gtp");
  EXPECT_TRUE(station.HasWindow("^DRIVE.GTP : Glidetrak Control$"));
  station.Picture("opened");
  EXPECT_EQ(station.SaveText(entrySaveAs, "copy.GTP"), driveText);
  EXPECT_TRUE(station.HasWindow("^COPY.GTP : Glidetrak Control$"));
}

TEST(Opening, TurnsThePanelToProgramSoThatTheFileCanRunAtOnce) {
  RunningStation station;
  station.WriteProgram("drive.gtp", "POWER 8\r\nWAIT 5000\r\n");
  ASSERT_TRUE(station.Start());
  station.ChooseFileEntry(entryOpen);
  ASSERT_TRUE(station.HasWindow("^Open Program$"));
  station.GiveName(station.Folder() + "/drive.gtp");
  ASSERT_TRUE(station.HasWindow("^DRIVE.GTP"));
  station.Click(placeRun);
  EXPECT_TRUE(station.RigShows("power 8"));
  station.Picture("opened-runs");
}

TEST(Opening, ATextOfTheEarlierReleaseGetsAFreeNameAndIsNeverWrittenBack) {
  RunningStation station;
  station.WriteProgram("PLAN.TXT", firstText);
  station.WriteProgram("PLAN.GTP", "BEEP\r\n");
  ASSERT_TRUE(station.Start());
  station.ChooseFileEntry(entryOpen);
  ASSERT_TRUE(station.HasWindow("^Open Program$"));
  station.GiveName(station.Folder() + "/PLAN.TXT");
  ASSERT_TRUE(station.HasWindow("^PLAN1.GTP : Glidetrak Control$"));
  station.TypeAtTop("FORWARD\n");
  station.ChooseFileEntry(entrySave);
  ASSERT_TRUE(station.HasWindow("^Save Program$")) << "the new name is not on the disk yet";
  station.Picture("earlier-release");
  station.Key("Return");
  ASSERT_TRUE(station.HasNoWindow("^Save Program$"));
  EXPECT_EQ(station.Read("PLAN1.GTP"), "FORWARD\r\n" + firstText);
  EXPECT_EQ(station.Read("PLAN.TXT"), firstText);
  EXPECT_EQ(station.Read("PLAN.GTP"), QByteArray("BEEP\r\n"));
}

TEST(Opening, ACancelledDialogLeavesTextAndTitle) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("first.gtp", "POWER 8\r\nWAIT 5000\r\n")}));
  station.Click(placeProgram);
  station.ChooseFileEntry(entryOpen);
  ASSERT_TRUE(station.HasWindow("^Open Program$"));
  station.Key("Escape");
  ASSERT_TRUE(station.HasNoWindow("^Open Program$"));
  station.Picture("open-cancelled");
  EXPECT_TRUE(station.HasWindow("^FIRST.GTP : Glidetrak Control$"));
  station.Click(placeRun);
  EXPECT_TRUE(station.RigShows("power 8"));
}

TEST(Opening, YesToTheQuestionAboutChangesSavesThemFirst) {
  RunningStation station;
  station.WriteProgram("drive.gtp", driveText);
  ASSERT_TRUE(station.StartWithChanges());
  station.ChooseFileEntry(entryOpen);
  ASSERT_TRUE(IsQuestion(station, "^Open Program$"));
  station.Picture("changes-before-open");
  station.AnswerYes();
  ASSERT_TRUE(station.HasWindow("^Open Program$")) << "the dialog follows the question";
  station.GiveName(station.Folder() + "/drive.gtp");
  EXPECT_TRUE(station.HasWindow("^DRIVE.GTP : Glidetrak Control$"));
  EXPECT_EQ(station.Read("first.gtp"), firstChanged);
  EXPECT_EQ(station.SaveText(entrySaveAs, "copy.GTP"), driveText);
}

TEST(Opening, NoToTheQuestionKeepsTheFileAndACancelKeepsTheChanges) {
  RunningStation station;
  ASSERT_TRUE(station.StartWithChanges());
  station.ChooseFileEntry(entryOpen);
  ASSERT_TRUE(IsQuestion(station, "^Open Program$"));
  station.AnswerNo();
  ASSERT_TRUE(station.HasWindow("^Open Program$")) << "the dialog follows the question";
  station.Key("Escape");
  ASSERT_TRUE(station.HasNoWindow("^Open Program$"));
  station.Picture("open-cancelled-with-changes");
  EXPECT_TRUE(station.HasWindow("^FIRST.GTP : Glidetrak Control$"));
  EXPECT_EQ(station.Read("first.gtp"), firstText);
  EXPECT_EQ(station.SaveText(entrySaveAs, "copy.GTP"), firstChanged);
}

}  // namespace glidetrak
