// What the switches of the command line do to the running station.

#include <gtest/gtest.h>

#include "RunningStation.h"

namespace glidetrak {

namespace {

const char* const sLampRed = "#DF0000";
const char* const sDark = "#000000";

void ChooseFirstHelpEntry(RunningStation& station) {
  station.Key("alt+h");
  station.Key("Return");
}

/// The text of a lesson as the station took it from its data folder.
QByteArray SaveLesson(RunningStation& station, int iNumber, const QString& sMenuKeys = "alt+f",
                      const QString& sDialog = "^Save Program$") {
  station.Click(placeProgram);
  station.Click(placeShowPresets);
  Wait(300);
  station.Click(PlaceOfPreset(iNumber));
  station.ChooseFileEntry(entrySave, sMenuKeys);
  if (!station.HasWindow(sDialog)) return "(no dialog)";
  station.GiveName(station.Folder() + "/copy");
  if (!station.HasNoWindow(sDialog)) return "(the dialog stays)";
  return station.Read("copy.GTP");
}

}  // namespace

TEST(Switches, DebugModeOpensThePanelAndItsLampsFollowTheRig) {
  RunningStation station;
  ASSERT_TRUE(station.Start({"/debugmode"}));
  ChooseFirstHelpEntry(station);
  EXPECT_TRUE(station.ShowsColour(PlaceOfOutputLamp(4), sLampRed)) << "forward";
  EXPECT_TRUE(station.ShowsColour(PlaceOfOutputLamp(0), sDark));
  station.Picture("debug-panel");
  station.Click(placeBackward);
  EXPECT_TRUE(station.ShowsColour(PlaceOfOutputLamp(4), sDark)) << "backward";
  station.Drag(placeLeverFoot, placeLeverTop);
  ASSERT_TRUE(station.RigShows("power 15"));
  EXPECT_TRUE(station.ShowsColour(PlaceOfOutputLamp(0), sLampRed));
  EXPECT_TRUE(station.ShowsColour(PlaceOfInputLamp(1), sDark));
  station.Rig({"press", "CITY_CALL", "8000"});
  EXPECT_TRUE(station.ShowsColour(PlaceOfInputLamp(1), sLampRed));
  station.Picture("debug-panel-full-power");
}

TEST(Switches, TheCrossClosesTheDebugPanel) {
  RunningStation station;
  ASSERT_TRUE(station.Start({"/DEBUGMODE"}));
  const QString sBeneath = station.ColourAt(PlaceOfOutputLamp(4));
  ASSERT_NE(sBeneath, sLampRed);
  ChooseFirstHelpEntry(station);
  ASSERT_TRUE(station.ShowsColour(PlaceOfOutputLamp(4), sLampRed));
  station.Click(placeDebugClose);
  EXPECT_TRUE(station.ShowsColour(PlaceOfOutputLamp(4), sBeneath));
  station.Picture("debug-panel-closed");
}

TEST(Switches, WithoutDebugModeTheMenuLeadsToTheAboutBoxAlone) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  const QString sBeneath = station.ColourAt(PlaceOfOutputLamp(4));
  ASSERT_FALSE(sBeneath.isEmpty());
  ChooseFirstHelpEntry(station);
  Wait(1000);
  station.Picture("no-debug-mode");
  EXPECT_EQ(station.ColourAt(PlaceOfOutputLamp(4)), sBeneath);
  station.Click(placeBackward);
  Wait(1000);
  EXPECT_TRUE(station.RigShows("direction forward")) << "the box keeps the window from answering";
}

TEST(Switches, TheLanguageIndexTakesTheLessonsAndLeavesTheTexts) {
  RunningStation station;
  ASSERT_TRUE(station.Start({"/LANG='2'"}));
  EXPECT_TRUE(station.HasWindow("^Glidetrak Control$"));
  EXPECT_EQ(SaveLesson(station, 6), station.ReadDelivered("Language/0C0A/Examples/LESSON06.GTP"));
  station.Picture("language-index");
}

TEST(Switches, TheLanguageCodeTakesTheTextsAndTheLessons) {
  RunningStation station;
  ASSERT_TRUE(station.Start({"/LC=0C0A"}));
  EXPECT_TRUE(station.HasWindow("^Control del sistema Glidetrak$"));
  EXPECT_EQ(SaveLesson(station, 6, "alt+a", "^Guardar programa$"),
            station.ReadDelivered("Language/0C0A/Examples/LESSON06.GTP"));
  station.Picture("language-code");
}

TEST(Switches, BesideALanguageIndexTheLanguageCodeIsNotLookedAt) {
  RunningStation station;
  ASSERT_TRUE(station.Start({"/LANG='1'", "/LC=0C0A"}));
  EXPECT_TRUE(station.HasWindow("^Glidetrak Control$"));
  EXPECT_EQ(SaveLesson(station, 6), station.ReadDelivered("Examples/LESSON06.GTP"));
}

TEST(Switches, AFileStandsBesideSwitches) {
  RunningStation station;
  const QString sPath = station.WriteProgram("drive.gtp", "POWER 8\r\nWAIT 5000\r\n");
  ASSERT_TRUE(station.Start({"/DEBUGMODE", "/LANG='2'", sPath}));
  ASSERT_TRUE(station.HasWindow("^DRIVE.GTP : Glidetrak Control$"));
  ChooseFirstHelpEntry(station);
  station.Click(placeProgram);
  station.Click(placeRun);
  EXPECT_TRUE(station.ShowsColour(PlaceOfOutputLamp(3), sLampRed)) << "power 8";
  station.Picture("switches-and-file");
}

}  // namespace glidetrak
