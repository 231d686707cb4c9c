// What becomes of changes at New and at closing.

#include <gtest/gtest.h>

#include "RunningStation.h"

namespace glidetrak {

namespace {

/// Leads to the second question of a close with changes.
void ConfirmClose(RunningStation& station) {
  station.AskToLeave();
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
  station.AnswerYes();
  ASSERT_FALSE(station.WaitForEnd(1500)) << "the changes were not asked about";
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
}

}  // namespace

TEST(Leaving, YesToTheQuestionAboutChangesSavesThemAndEnds) {
  RunningStation station;
  ASSERT_TRUE(station.StartWithChanges());
  ASSERT_NO_FATAL_FAILURE(ConfirmClose(station));
  station.Picture("closing-with-changes");
  station.AnswerYes();
  EXPECT_TRUE(station.WaitForEnd());
  EXPECT_TRUE(station.EndedByItself());
  EXPECT_EQ(station.Read("first.gtp"), firstChanged);
}

TEST(Leaving, NoToTheQuestionAboutChangesDropsThemAndEnds) {
  RunningStation station;
  ASSERT_TRUE(station.StartWithChanges());
  ASSERT_NO_FATAL_FAILURE(ConfirmClose(station));
  station.AnswerNo();
  EXPECT_TRUE(station.WaitForEnd());
  EXPECT_TRUE(station.EndedByItself());
  EXPECT_EQ(station.Read("first.gtp"), firstText);
}

TEST(Leaving, NewAsksAboutChangesAndSavesThemOnYes) {
  RunningStation station;
  ASSERT_TRUE(station.StartWithChanges());
  station.ChooseFileEntry(entryNew);
  ASSERT_TRUE(station.HasWindow("^New Program$"));
  station.Picture("new-with-changes");
  station.AnswerYes();
  EXPECT_TRUE(station.HasWindow("^Glidetrak Control$"));
  EXPECT_EQ(station.Read("first.gtp"), firstChanged);
}

TEST(Leaving, NewDropsTheChangesOnNoAndForgetsTheFile) {
  RunningStation station;
  ASSERT_TRUE(station.StartWithChanges());
  station.ChooseFileEntry(entryNew);
  ASSERT_TRUE(station.HasWindow("^New Program$"));
  station.AnswerNo();
  ASSERT_TRUE(station.HasWindow("^Glidetrak Control$"));
  station.Click(placeEditor);
  station.Type("FORWARD");
  station.ChooseFileEntry(entrySave);
  ASSERT_TRUE(station.HasWindow("^Save Program$")) << "a new program has no file";
  station.Picture("new-is-saved");
  station.GiveName(station.Folder() + "/second");
  EXPECT_TRUE(station.HasWindow("^SECOND.GTP : Glidetrak Control$"));
  EXPECT_EQ(station.Read("second.GTP"), QByteArray("FORWARD"));
  EXPECT_EQ(station.Read("first.gtp"), firstText);
}

}  // namespace glidetrak
