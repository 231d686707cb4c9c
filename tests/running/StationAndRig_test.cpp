// The station and a rig that goes its own ways: what the rig was handed, and what the station makes
// of a rig that goes and comes.

#include <gtest/gtest.h>

#include <csignal>

#include "RunningStation.h"

namespace glidetrak {

namespace {

const QByteArray driveText = "FORWARD\r\nPOWER 8\r\nLABEL AGAIN\r\nGOTO AGAIN\r\n";
constexpr int iForward8 = 0x18;
constexpr int iForward = 0x10;
constexpr int iJourney = 5000;   ///< milliseconds that power 8 takes to the buffer, nearly
constexpr int iFindTime = 6000;  ///< milliseconds in which a rig that is back is found
constexpr int iLoseTime = 1500;  ///< milliseconds in which a rig that went is told

/// Starts the station with a program that drives, and drives.
void StartDriving(RunningStation& station) {
  ASSERT_TRUE(station.Start({station.WriteProgram("drive.gtp", driveText)}));
  station.Click(placeProgram);
  station.Click(placeRun);
  ASSERT_TRUE(station.RigShows("power 8"));
}

/// Answers the message of the lost rig, and ends the program that was running.
void AnswerLostRig(RunningStation& station, const QString& sPicture) {
  Wait(iLoseTime);
  station.Picture(sPicture);
  station.Key("Return");
  station.Click(placeStop);
}

/// The rig obeys.
void ExpectLink(RunningStation& station) {
  Wait(iFindTime);
  station.Click(placeRun);
  EXPECT_TRUE(station.RigShows("power 8"));
}

/// How often ./test starts the station in a row; tests/running/starts asks for more.
int Starts() {
  const int iWanted = qEnvironmentVariableIntValue("GLIDETRAK_STARTS");
  return iWanted > 0 ? iWanted : 10;
}

/// A way out of the station that leaves the rig's process alone; a signal by its number.
struct WayOut {
  const char* sName;
  int iSignal = 0;
};

void PrintTo(const WayOut& way, std::ostream* pStream) {
  *pStream << way.sName;
}

void LeaveBy(RunningStation& station, const WayOut& way) {
  if (way.iSignal != 0) {
    kill(static_cast<pid_t>(station.Pid()), way.iSignal);
  } else if (QString(way.sName) == "TheDisplaysEnd") {
    station.KillDisplay();
  } else {
    station.KillWindow();
  }
}

class EveryWayOut : public testing::TestWithParam<WayOut> {};

/// Waits until the rig was handed that as its last byte.
bool IsHanded(RunningStation& station, int iByte) {
  for (int i = 0; i < 100 && station.LastByteWritten() != iByte; ++i) Wait(50);
  return station.LastByteWritten() == iByte;
}

}  // namespace

TEST(StationAndRig, AKilledStationLeavesTheVehicleDrivingAndTheNextBeginsWithAZero) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(StartDriving(station));
  station.Kill();
  Wait(iJourney);
  EXPECT_TRUE(station.RigShows("position 1940 mm")) << "it drives into the buffer";
  EXPECT_TRUE(station.RigShows("power 8")) << "and against it";
  const QList<int> aBefore = station.BytesWritten();
  ASSERT_EQ(station.LastByteWritten(), iForward8);
  ASSERT_TRUE(station.Start());
  const QList<int> aAfter = station.BytesWritten();
  ASSERT_GT(aAfter.size(), aBefore.size());
  EXPECT_EQ(aAfter[aBefore.size()], 0);
  EXPECT_TRUE(station.RigShows("power 0"));
}

TEST(StationAndRig, ASecondCopyStopsTheVehicleBeforeItIsRefused) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(StartDriving(station));
  QProcess second;
  ASSERT_TRUE(station.StartSecondCopy(second));
  EXPECT_TRUE(station.RigShows("power 0"));
  EXPECT_EQ(station.LastByteWritten(), 0);
  Wait(1000);
  EXPECT_EQ(second.state(), QProcess::Running);
  station.Key("Return");
  EXPECT_TRUE(second.waitForFinished(5000));
  EXPECT_EQ(station.LastByteWritten(), 0) << "its end writes nothing that drives";
}

TEST(StationAndRig, AKilledRigThatIsServedAgainIsFoundInTheSameRun) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(StartDriving(station));
  station.KillRig();
  AnswerLostRig(station, "rig-killed");
  ASSERT_TRUE(station.IsRunning());
  ASSERT_TRUE(station.ServeRig());
  ExpectLink(station);
  EXPECT_EQ(station.BytesWritten().value(0, -1), 0) << "the zero of the link check";
}

TEST(StationAndRig, AStoppedRigIsToldAndFoundAgainWhenItGoesOn) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(StartDriving(station));
  kill(static_cast<pid_t>(station.RigPid()), SIGSTOP);
  AnswerLostRig(station, "rig-stopped");
  Wait(iFindTime);
  ASSERT_TRUE(station.IsRunning());
  kill(static_cast<pid_t>(station.RigPid()), SIGCONT);
  ExpectLink(station);
}

TEST(StationAndRig, AnAdapterOffItsPortIsToldOnceAndFoundAgain) {
  RunningStation station;
  ASSERT_NO_FATAL_FAILURE(StartDriving(station));
  station.Rig({"detach"});
  AnswerLostRig(station, "adapter-detached");
  station.Rig({"attach"});
  ExpectLink(station);
}

TEST_P(EveryWayOut, EndsInAZeroOnTheRigsRecord) {
  RunningStation station;
  ASSERT_TRUE(station.Launch());
  station.Drag(placeLeverFoot, placeLeverHigh);
  ASSERT_TRUE(WaitUntil([&] { return station.LastByteWritten() > iForward; }));
  LeaveBy(station, GetParam());
  EXPECT_TRUE(station.WaitForEnd());
  const QList<int> aBytes = station.BytesWritten();
  EXPECT_EQ(aBytes.last(), 0);
  EXPECT_GT(aBytes[aBytes.size() - 2], iForward) << "one zero and no second one";
  EXPECT_TRUE(station.RigShows("power 0"));
}

INSTANTIATE_TEST_SUITE_P(Rows, EveryWayOut,
                         testing::Values(WayOut{"TheDisplaysEnd"}, WayOut{"TheWindowsEnd"},
                                         WayOut{"Terminate", SIGTERM}, WayOut{"HangUp", SIGHUP},
                                         WayOut{"Interrupt", SIGINT}, WayOut{"Quit", SIGQUIT},
                                         WayOut{"Crash", SIGSEGV}, WayOut{"Abort", SIGABRT}),
                         [](const auto& info) { return info.param.sName; });

TEST(StationAndRig, StartsAndEndsInARowLeaveItStopped) {
  RunningStation station;
  for (int i = 0; i < Starts(); ++i) {
    ASSERT_TRUE(station.Launch()) << "start " << i;
    ASSERT_TRUE(IsHanded(station, iForward)) << "start " << i << ": the panel's direction";
    kill(static_cast<pid_t>(station.Pid()), SIGTERM);
    ASSERT_TRUE(station.WaitForEnd()) << "end " << i;
    ASSERT_TRUE(station.EndedByItself()) << "end " << i;
    ASSERT_EQ(station.LastByteWritten(), 0) << "end " << i;
  }
}

}  // namespace glidetrak
