// The command picker over the main window.

#include <gtest/gtest.h>

#include "RunningStation.h"

namespace glidetrak {

namespace {

void StartNew(RunningStation& station) {
  ASSERT_TRUE(station.Start());
  station.ChooseFileEntry(entryNew);
  station.Click(placeEditor);
}

}  // namespace

TEST(Picker, CommandsComeByButtonAndByMenuAndTheProgramRuns) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(StartNew(station));
  station.Type("BEEP\n");
  station.Click(placeCommands);
  station.Click(PlaceOfCommand(2));
  station.Picture("picker");
  station.Click(placePickerSelect);
  station.Picture("picked");
  station.Click(placeEditor);
  station.Key("ctrl+End");
  station.Click(placeProgramMenu);
  station.Key("Down");
  station.Key("Return");
  for (int i = 0; i < 14; ++i) station.Key("Down");
  station.Picture("picker-power");
  station.Click(placePickerSelect);
  station.Click(placeEditor);
  station.Key("ctrl+End");
  station.Type("9\nWAIT 6000");
  EXPECT_EQ(station.SaveText(entrySaveAs, "picked.GTP"),
            QByteArray("BEEP\r\nBACKWARD\r\nPOWER 9\r\nWAIT 6000"));
  station.Click(placeRun);
  EXPECT_TRUE(station.RigShows("power 9"));
  EXPECT_TRUE(station.RigShows("direction backward"));
}

TEST(Picker, AnInsertedCommandStandsSelectedAndTheNextTakesItsPlace) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(StartNew(station));
  station.Type("BEEP\n");
  station.Click(placeCommands);
  station.Click(PlaceOfCommand(7));
  station.Click(placePickerSelect);
  station.Click(placeCommands);
  station.Click(PlaceOfCommand(8));
  station.Picture("picker-again");
  station.Click(placePickerSelect);
  EXPECT_EQ(station.SaveText(entrySaveAs, "picked.GTP"), QByteArray("BEEP\r\nGET "));
}

TEST(Picker, ADoubleClickInsertsToo) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(StartNew(station));
  station.Click(placeCommands);
  station.Click(PlaceOfCommand(5));
  station.Click(PlaceOfCommand(5));
  station.Picture("picked-by-double-click");
  EXPECT_EQ(station.SaveText(entrySaveAs, "picked.GTP"), QByteArray("CITY_CALL\r\n"));
}

TEST(Picker, CloseInsertsNothingAndLeavesNoChange) {
  RunningStation station;
  const QByteArray drive = "POWER 8\r\nLABEL AGAIN\r\nGOTO AGAIN\r\n";
  ASSERT_TRUE(station.Start({station.WriteProgram("drive.gtp", drive)}));
  station.Click(placeProgram);
  station.Click(placeEditor);
  station.Click(placeCommands);
  station.Click(PlaceOfCommand(2));
  station.Click(placeRun);
  Wait(1000);
  EXPECT_TRUE(station.RigShows("power 0")) << "no program starts beneath the picker";
  station.Click(placePickerClose);
  station.Picture("picker-closed");
  station.Click(placeRun);
  EXPECT_TRUE(station.RigShows("power 8"));
  station.Click(placeStop);
  ASSERT_TRUE(station.RigShows("power 0"));
  Wait(500);  // the run ends a little after its power
  station.AskToLeave();
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
  station.AnswerYes();
  EXPECT_TRUE(station.WaitForEnd()) << "no change, and so no second question";
  EXPECT_EQ(station.Read("drive.gtp"), drive);
}

}  // namespace glidetrak
