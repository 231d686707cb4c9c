// The pre-set programs, chosen from the list under the editor.

#include <gtest/gtest.h>

#include "RunningStation.h"

namespace glidetrak {

namespace {

void ShowPresets(RunningStation& station) {
  station.Click(placeProgram);
  station.Click(placeShowPresets);
  Wait(300);
}

/// A program of one's own with a change in it, and lesson 2 chosen over it.
void ChooseOverChanges(RunningStation& station) {
  ASSERT_TRUE(station.StartWithChanges());
  ShowPresets(station);
  station.Click(PlaceOfPreset(2));
  ASSERT_TRUE(station.HasWindow("^Load Pre-set Program$"));
}

}  // namespace

TEST(Lessons, TheFirstDriveIsChosenAndDrivesTheRig) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  ShowPresets(station);
  station.Picture("presets");
  station.Click(PlaceOfPreset(6));
  station.Picture("preset-chosen");
  station.Click(placeRun);
  EXPECT_TRUE(station.RigShows("power 6"));
  station.Picture("preset-runs");
  EXPECT_TRUE(station.RigShows("power 0")) << "it halts by itself";
}

TEST(Lessons, ALessonChosenByKeysIsTheDeliveredFileAndHasNoNameOfItsOwn) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("first.gtp", firstText)}));
  ASSERT_TRUE(station.HasWindow("^FIRST.GTP : Glidetrak Control$"));
  ShowPresets(station);
  station.Key("Down");
  station.Key("Down");
  station.Key("Return");
  EXPECT_TRUE(station.HasWindow("^Glidetrak Control$"));
  station.Picture("preset-by-keys");
  EXPECT_EQ(station.SaveText(entrySave, "copy.GTP"),
            station.ReadDelivered("Examples/LESSON03.GTP"));
  EXPECT_EQ(station.Read("first.gtp"), firstText);
}

TEST(Lessons, YesSavesTheChangesThatALessonWouldReplace) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(ChooseOverChanges(station));
  station.Picture("preset-over-changes");
  station.AnswerYes();
  EXPECT_TRUE(station.HasWindow("^Glidetrak Control$"));
  EXPECT_EQ(station.Read("first.gtp"), firstChanged);
  EXPECT_EQ(station.SaveText(entrySave, "copy.GTP"),
            station.ReadDelivered("Examples/LESSON02.GTP"));
}

TEST(Lessons, NoDropsTheChangesThatALessonReplaces) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(ChooseOverChanges(station));
  station.AnswerNo();
  EXPECT_TRUE(station.HasWindow("^Glidetrak Control$"));
  EXPECT_EQ(station.Read("first.gtp"), firstText);
  EXPECT_EQ(station.SaveText(entrySave, "copy.GTP"),
            station.ReadDelivered("Examples/LESSON02.GTP"));
}

TEST(Lessons, AClickBesideTheListChoosesNothing) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("drive.gtp", "POWER 8\r\nWAIT 5000\r\n")}));
  ShowPresets(station);
  station.Click(placeEditor);  // puts the open list away
  station.Click(placeEditor);
  station.Picture("presets-put-away");
  EXPECT_TRUE(station.HasWindow("^DRIVE.GTP : Glidetrak Control$"));
  station.Click(placeRun);
  EXPECT_TRUE(station.RigShows("power 8"));
}

}  // namespace glidetrak
