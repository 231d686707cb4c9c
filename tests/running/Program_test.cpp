#include <gtest/gtest.h>

#include <csignal>

#include "RunningStation.h"

namespace glidetrak {

namespace {

const QByteArray driveText = "POWER 8\r\nLABEL AGAIN\r\nGOTO AGAIN\r\n";

void ChooseRun(RunningStation& station) {
  station.Click(placeProgram);
  station.Click(placeRun);
}

}  // namespace

TEST(Program, OpensAtItsSmallestSizeInTheCornerOnACleanMachine) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(station.Geometry("Glidetrak Control"), "0 0 960 647");
  station.Picture("clean-start");
}

TEST(Program, RunsTheProgramOfTheCommandLineOnTheRigAndStops) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("drive.gtp", driveText)}));
  EXPECT_TRUE(station.HasWindow("DRIVE.GTP : Glidetrak Control"));
  EXPECT_TRUE(station.RigShows("power 0"));
  ChooseRun(station);
  EXPECT_TRUE(station.RigShows("power 8"));
  station.Picture("driving");
  station.Click(placeStop);
  EXPECT_TRUE(station.RigShows("power 0"));
}

TEST(Program, SpaceStopsAProgramWhateverHasTheFocus) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("drive.gtp", driveText)}));
  ChooseRun(station);
  ASSERT_TRUE(station.RigShows("power 8"));
  station.Key("space");
  EXPECT_TRUE(station.RigShows("power 0"));
}

TEST(Program, GetTakesARealKey) {
  RunningStation station;
  ASSERT_TRUE(station.Start(
      {station.WriteProgram("get.gtp", "GET A\r\nIF A=7\r\nPOWER 5\r\nENDIF\r\nWAIT 3000\r\n")}));
  ChooseRun(station);
  Wait(500);
  station.Key("7");
  EXPECT_TRUE(station.RigShows("power 5"));
}

TEST(Program, TheLeverDrivesAndTheEmergencyStopHoldsIt) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.Drag(placeLeverFoot, placeLeverTop);
  EXPECT_TRUE(station.RigShows("power 15"));
  station.Picture("full-power");
  station.Click(placeEmergency);
  EXPECT_TRUE(station.RigShows("power 0"));
  station.Drag(placeLeverFoot, placeLeverTop);
  EXPECT_TRUE(station.RigShows("power 0")) << "the lever is locked";
  station.Click(placeReset);
  station.Drag(placeLeverFoot, placeLeverTop);
  EXPECT_TRUE(station.RigShows("power 15"));
}

TEST(Program, AnUnpluggedRigIsToldOnceAndFoundAgain) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.Rig({"unplug"});
  Wait(500);
  station.Picture("unplugged");
  station.Key("Return");
  station.Rig({"plug"});
  Wait(5500);
  station.Click(placeBackward);
  EXPECT_TRUE(station.RigShows("direction backward"));
}

TEST(Program, ATypedProgramIsSavedUnderANewName) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.Key("alt+f");
  station.Key("Return");
  station.Click(placeEditor);
  station.Type("PRINT \"A\"\nBEEP");
  station.Picture("typed");
  station.Key("alt+f");
  for (int i = 0; i < 3; ++i) station.Key("Down");
  station.Key("Return");
  ASSERT_TRUE(station.HasWindow("Save Program"));
  station.Type(station.Folder() + "/mine");
  station.Picture("saving");
  station.Key("Return");
  EXPECT_TRUE(station.HasWindow("MINE.GTP : Glidetrak Control"));
  EXPECT_EQ(station.Read("mine.GTP"), "PRINT \"A\"\r\nBEEP");
}

TEST(Program, ClosingAsksAndKeepsTheWindowsPlace) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.Key("alt+f");
  station.Key("x");
  ASSERT_TRUE(station.HasWindow("Close Software"));
  station.Picture("closing");
  station.Key("Return");
  ASSERT_TRUE(station.WaitForEnd());
  const QByteArray settings = station.Read("machine/Torvane/Glidetrak.conf");
  EXPECT_TRUE(settings.contains("Width=14400")) << settings.toStdString();
  EXPECT_TRUE(settings.contains("Left=0")) << settings.toStdString();
}

TEST(Program, NoKeepsTheStationOpen) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.Key("alt+f");
  station.Key("x");
  ASSERT_TRUE(station.HasWindow("Close Software"));
  station.Key("Right");
  station.Key("Return");
  Wait(1000);
  EXPECT_TRUE(station.IsRunning());
}

TEST(Program, ASecondCopyIsToldAndEnds) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  QProcess second;
  ASSERT_TRUE(station.StartSecondCopy(second));
  Wait(1500);
  station.Picture("second-copy");
  EXPECT_EQ(second.state(), QProcess::Running);
  station.Key("Return");
  EXPECT_TRUE(second.waitForFinished(5000));
  EXPECT_TRUE(station.IsRunning());
}

TEST(Program, SpeaksSpanishWhenTold) {
  RunningStation station;
  ASSERT_TRUE(station.Start({"/LC=0C0A"}));
  EXPECT_TRUE(station.HasWindow("Control del sistema Glidetrak"));
  station.Click(placeProgram);
  station.Picture("spanish");
}

TEST(Program, APathMayHoldBlanksAndSwitchesAndAnotherCase) {
  RunningStation station;
  station.WriteProgram("H/My lessons/First One.gtp", driveText);
  ASSERT_TRUE(station.Start({"H/My lessons/First One.gtp"}));
  EXPECT_TRUE(station.HasWindow("FIRST ONE.GTP : Glidetrak Control"));
  ChooseRun(station);
  EXPECT_TRUE(station.RigShows("power 8"));
}

TEST(Program, ATerminationSignalEndsItInOrder) {
  RunningStation station;
  ASSERT_TRUE(station.Start({station.WriteProgram("drive.gtp", driveText)}));
  ChooseRun(station);
  ASSERT_TRUE(station.RigShows("power 8"));
  kill(static_cast<pid_t>(station.Pid()), SIGTERM);
  EXPECT_TRUE(station.WaitForEnd());
  EXPECT_TRUE(station.EndedByItself());
  EXPECT_EQ(station.LastByteWritten(), 0) << "the rig was let go of";
}

}  // namespace glidetrak
