// Where the keys go: never to a button that nobody looked at.

#include <gtest/gtest.h>

#include "RunningStation.h"

namespace glidetrak {

namespace {

const QByteArray driveText = "POWER 8\r\nLABEL AGAIN\r\nGOTO AGAIN\r\n";
const QByteArray badText = "BEEP\r\nNONSENSE\r\n";
constexpr int iBandFoot = 254;  ///< the top band's last pixel at the first size
constexpr int iTitleBar = 20;   ///< that the window manager puts above a window

/// A place of the window where it has a title bar.
Place BelowTitleBar(Place place) {
  return {place.iX, place.iY + iTitleBar};
}

/// By keys, so that the mouse moves over nothing.
void ChooseRunEntry(RunningStation& station, Place menu = placeProgramMenu) {
  station.Click(menu);
  station.Key("Down");
  station.Key("Down");
  station.Key("Return");
}

/// Run starts the program and Stop stops it.
void ExpectRunAndStop(RunningStation& station) {
  station.Click(placeRun);
  EXPECT_TRUE(station.RigShows("power 8"));
  station.Click(placeStop);
  EXPECT_TRUE(station.RigShows("power 0"));
}

/// The box of the program's error, on the screen and above the editor.
void ExpectBoxOverBand(RunningStation& station, int iShift) {
  const QString sTitle = "^Control Program Error$";
  ASSERT_TRUE(station.HasWindow(sTitle));
  Wait(300);
  station.Picture(iShift == 0 ? "error-box" : "error-box-framed");
  const QStringList aPlace = station.Geometry(sTitle).split(u' ');
  ASSERT_EQ(aPlace.size(), 4);
  EXPECT_GE(aPlace[0].toInt(), 0);
  EXPECT_GE(aPlace[1].toInt(), iShift);
  EXPECT_LE(aPlace[1].toInt() + aPlace[3].toInt(), iBandFoot + iShift);
}

}  // namespace

TEST(KeyRoad, ABlankBehindThePickerLeavesTheModeAlone) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("drive.gtp", driveText)}));
  station.Click(placeProgram);
  station.Click(placeEditor);
  station.Click(placeCommands);
  station.Click(placePickerClose);
  station.Key("space");
  ExpectRunAndStop(station);
}

TEST(KeyRoad, ABlankBehindAChosenPresetOpensNothing) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.Click(placeProgram);
  station.Click(placeShowPresets);
  station.Key("Return");
  station.Picture("preset-chosen");
  const QString sBand = station.ColourAt(placePickerSelect);
  station.Key("space");
  station.Picture("blank-behind-preset");
  EXPECT_EQ(station.ColourAt(placePickerSelect), sBand) << "no picker";
}

TEST(KeyRoad, TwoBlanksStopAProgramThatTheMenuStartedAndNoMore) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("drive.gtp", driveText)}));
  station.Click(placeProgram);
  station.Click(placeEditor);
  ChooseRunEntry(station);
  ASSERT_TRUE(station.RigShows("power 8"));
  station.Key("space");
  station.Key("space");
  EXPECT_TRUE(station.RigShows("power 0"));
  Wait(1000);
  station.Picture("stopped-by-two-blanks");
  ExpectRunAndStop(station);
}

TEST(KeyRoad, NoPickerOpensInAStoppedTraceStep) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("wait.gtp", "WAIT 4000\r\n" + driveText)}));
  station.Click(placeProgram);
  station.Click(placeTrace);
  station.Click(placeStop);
  station.Click(placeCommands);
  Wait(4000);
  station.Picture("trace-stopped");
  station.Click(placeRun);
  station.Click(placeStop);
  Wait(500);
  EXPECT_TRUE(station.RigShows("power 0"));
  Wait(5000);
  EXPECT_TRUE(station.RigShows("power 0")) << "Stop was in reach";
}

/// The box is clicked when the program runs, and so has the keyboard.
TEST(KeyRoad, TheStartUpBoxKeepsNoKeyFromAProgram) {
  RunningStation station;
  ASSERT_TRUE(station.StartWindowManager());
  const QByteArray text = "GET A\r\nIF A=7\r\n" + driveText + "ENDIF\r\n";
  ASSERT_TRUE(station.Launch({station.WriteProgram("get.gtp", text)}));
  ASSERT_TRUE(station.HasWindow("^ $"));
  Wait(500);
  ChooseRunEntry(station, BelowTitleBar(placeProgramMenu));
  const QStringList aBox = station.Geometry("^ $").split(u' ');
  ASSERT_EQ(aBox.size(), 4);
  station.Click({aBox[0].toInt() + 40, aBox[1].toInt() + 40});
  station.Picture("run-behind-start-up");
  station.Key("7");
  EXPECT_TRUE(station.RigShows("power 8"));
  station.Key("space");
  EXPECT_TRUE(station.RigShows("power 0"));
  EXPECT_TRUE(station.HasWindow("^ $")) << "the box is still there";
}

TEST(KeyRoad, AnErrorLeavesItsLineToBeSeen) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("bad.gtp", badText)}));
  station.Click(placeProgram);
  station.Click(placeRun);
  ExpectBoxOverBand(station, 0);
}

TEST(KeyRoad, AnErrorLeavesItsLineToBeSeenWhereWindowsHaveTitleBars) {
  RunningStation station;
  ASSERT_TRUE(station.StartWindowManager());
  ASSERT_TRUE(station.Start({station.WriteProgram("bad.gtp", badText)}));
  station.Click(BelowTitleBar(placeProgram));
  station.Click(BelowTitleBar(placeRun));
  ExpectBoxOverBand(station, iTitleBar);
}

}  // namespace glidetrak
