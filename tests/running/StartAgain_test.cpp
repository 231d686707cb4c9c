// What one run of the station leaves for the next.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <array>
#include <csignal>

#include "RunningStation.h"

namespace glidetrak {

namespace {

const char* const sTitle = "Glidetrak Control";
const char* const sMachineFile = "machine/Torvane/Glidetrak.conf";
const char* const sUserFile = "config/Torvane/Glidetrak.conf";

void Leave(RunningStation& station) {
  station.AskToLeave();
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
  station.AnswerYes();
  ASSERT_TRUE(station.WaitForEnd());
}

/// Waits for that many windows of the station, of whatever kind; false after a minute.
bool HasWindows(RunningStation& station, int iWindows) {
  for (int i = 0; i < 120 && station.Geometries(sTitle).size() < iWindows; ++i) Wait(500);
  return station.Geometries(sTitle).size() == iWindows;
}

QByteArray Placement(int iLeft, int iTop) {
  return "[Position]\nLeft=" + QByteArray::number(iLeft) + "\nTop=" + QByteArray::number(iTop) +
         "\nWidth=14400\nHeight=9705\nState=0\n";
}

}  // namespace

TEST(StartAgain, AKilledStationKeepsNobodyOut) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  kill(static_cast<pid_t>(station.Pid()), SIGKILL);
  ASSERT_TRUE(station.WaitForEnd());
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(station.Geometry(sTitle), "0 0 960 647");
  QProcess second;
  ASSERT_TRUE(station.StartSecondCopy(second));
  EXPECT_TRUE(HasWindows(station, 2)) << "its own and the second copy's message";
}

TEST(StartAgain, OfTwentyCopiesStartedAtOnceOneRunsAndTheOthersSaySo) {
  RunningStation station;
  ASSERT_TRUE(station.ServeRig()) << "else the first one tells that there is none";
  std::array<QProcess, 20> aCopies;
  for (QProcess& copy : aCopies) ASSERT_TRUE(station.StartSecondCopy(copy));
  EXPECT_TRUE(HasWindows(station, 20));
  Wait(7000);  // until the start-up box has gone
  station.Picture("twenty-copies");
  const QStringList aGeometries = station.Geometries(sTitle);
  EXPECT_EQ(aGeometries.size(), 20);
  EXPECT_EQ(aGeometries.filter(" 960 647").size(), 1);
  for (QProcess& copy : aCopies) {
    EXPECT_EQ(copy.state(), QProcess::Running);
    copy.kill();
    copy.waitForFinished();
  }
}

TEST(StartAgain, AMovedWindowStandsWhereItWas) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.MoveWindow({137, 61});
  ASSERT_EQ(station.Geometry(sTitle), "137 61 960 647");
  ASSERT_NO_FATAL_FAILURE(Leave(station));
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(station.Geometry(sTitle), "137 61 960 647");
  station.Picture("moved");
}

TEST(StartAgain, ASizedAndMovedWindowKeepsBoth) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.SizeWindow(1100, 720);
  station.MoveWindow({40, 30});
  ASSERT_EQ(station.Geometry(sTitle), "40 30 1100 720");
  ASSERT_NO_FATAL_FAILURE(Leave(station));
  const QByteArray settings = station.Read(sMachineFile);
  for (const char* pLine : {"Left=600", "Top=450", "Width=16500", "Height=10800", "State=0"}) {
    EXPECT_TRUE(settings.split('\n').contains(pLine)) << pLine << " in " << settings.toStdString();
  }
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(station.Geometry(sTitle), "40 30 1100 720");
  station.Picture("sized");
}

TEST(StartAgain, AWindowDraggedTooSmallSnapsBack) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.SizeWindow(700, 400);
  Wait(500);
  EXPECT_EQ(station.Geometry(sTitle), "0 0 960 647");
  station.Picture("snapped-back");
}

TEST(StartAgain, ACancelledCloseWritesNothing) {
  RunningStation station;
  ASSERT_TRUE(station.Start());
  station.MoveWindow({137, 61});
  station.AskToLeave();
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
  station.AnswerNo();
  ASSERT_TRUE(station.HasNoWindow("^Close Software$"));
  Wait(500);
  station.Picture("close-cancelled");
  EXPECT_FALSE(QFile::exists(station.Folder() + '/' + sMachineFile));
  EXPECT_FALSE(QFile::exists(station.Folder() + '/' + sUserFile));
}

TEST(StartAgain, WhereTheMachinesStoreRefusesTheUsersKeepsThePlace) {
  RunningStation station;
  station.WriteProgram("machine/Torvane", "a file where the store's folder would be");
  ASSERT_TRUE(station.Start());
  station.MoveWindow({137, 61});
  ASSERT_NO_FATAL_FAILURE(Leave(station));
  EXPECT_TRUE(station.Read(sUserFile).contains("Left=2055"))
      << station.Read(sUserFile).toStdString();
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(station.Geometry(sTitle), "137 61 960 647");
  station.Picture("user-store");
}

TEST(StartAgain, TheUsersOwnPlaceWinsAndStaysWhenTheMachinesIsWritten) {
  RunningStation station;
  station.WriteProgram(sMachineFile, Placement(3000, 1500));
  station.WriteProgram(sUserFile, Placement(750, 450));
  ASSERT_TRUE(station.Start());
  ASSERT_EQ(station.Geometry(sTitle), "50 30 960 647");
  station.MoveWindow({137, 61});
  ASSERT_NO_FATAL_FAILURE(Leave(station));
  EXPECT_TRUE(station.Read(sMachineFile).contains("Left=2055"));
  EXPECT_EQ(station.Read(sUserFile), Placement(750, 450));
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(station.Geometry(sTitle), "50 30 960 647");
  station.Picture("users-place");
}

TEST(StartAgain, AWindowOfAMonitorThatIsGoneIsCentredWhereItIsOff) {
  RunningStation station;
  station.WriteProgram(sMachineFile, Placement(30000, 300));
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(station.Geometry(sTitle), "160 20 960 647");
  station.Picture("monitor-gone");
}

}  // namespace glidetrak
