// The station among a window manager's frames, states and close boxes.

#include <gtest/gtest.h>

#include "RunningStation.h"

namespace glidetrak {

namespace {

const char* const sMain = "^Glidetrak Control$";
const QByteArray driveText = "POWER 8\r\nLABEL AGAIN\r\nGOTO AGAIN\r\n";
const char* const sSettings = "machine/Torvane/Glidetrak.conf";

class WindowManager : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(station.StartWindowManager()); }

  void CloseByItsBox() {
    station.PressCloseBox();
    ASSERT_TRUE(station.HasWindow("^Close Software$"));
    station.Key("Return");
    ASSERT_TRUE(station.WaitForEnd());
  }
  int Left() { return station.Geometry(sMain).section(u' ', 0, 0).toInt(); }
  int Top() { return station.Geometry(sMain).section(u' ', 1, 1).toInt(); }
  int Width() { return station.Geometry(sMain).section(u' ', 2, 2).toInt(); }

  RunningStation station;
};

}  // namespace

/// Unlike Exit, which does nothing in a run.
TEST_F(WindowManager, TheCloseBoxStopsARunBeforeItAsks) {
  ASSERT_TRUE(station.Start({station.WriteProgram("drive.gtp", driveText)}));
  station.ClickInWindow(placeProgram);
  station.ClickInWindow(placeRun);
  ASSERT_TRUE(station.RigShows("power 8"));
  station.PressCloseBox();
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
  EXPECT_TRUE(station.RigShows("power 0"));
  station.Picture("closed-in-a-run");
  station.AnswerNo();
  ASSERT_TRUE(station.HasNoWindow("^Close Software$"));
  Wait(500);  // the run ends a little after its power
  EXPECT_TRUE(station.RigShows("power 0")) << "the stopped program stays stopped";
  station.ClickInWindow(placeRun);
  EXPECT_TRUE(station.RigShows("power 8")) << "and can be run again";
  ASSERT_NO_FATAL_FAILURE(CloseByItsBox());
  EXPECT_TRUE(station.EndedByItself());
}

/// In the corner stands the frame, so that the title bar can be reached.
TEST_F(WindowManager, ACleanStartStandsInTheCornerWithItsFrame) {
  ASSERT_TRUE(station.Start());
  station.Picture("framed");
  EXPECT_LT(Left(), 20);
  EXPECT_GT(Top(), 5);
  EXPECT_LT(Top(), 60);
}

TEST_F(WindowManager, AMovedWindowIsFoundWhereItWasHoweverOftenItIsStarted) {
  ASSERT_TRUE(station.Start());
  station.MoveWindow({137, 81});
  const QString sPlace = station.Geometry(sMain);
  for (int i = 0; i < 2; ++i) {
    ASSERT_NO_FATAL_FAILURE(CloseByItsBox());
    ASSERT_TRUE(station.Start());
    EXPECT_EQ(station.Geometry(sMain), sPlace);
  }
}

TEST_F(WindowManager, AMaximisedWindowComesBackSoAndKeepsItsNormalSize) {
  ASSERT_TRUE(station.Start());
  station.MoveWindow({137, 81});
  station.Maximise();
  ASSERT_GT(Width(), 1200);
  ASSERT_NO_FATAL_FAILURE(CloseByItsBox());
  const QByteArray settings = station.Read(sSettings);
  EXPECT_TRUE(settings.contains("State=2")) << settings.toStdString();
  EXPECT_TRUE(settings.contains("Width=14400")) << settings.toStdString();
  ASSERT_TRUE(station.Start());
  EXPECT_GT(Width(), 1200);
  station.Picture("maximised");
  ASSERT_NO_FATAL_FAILURE(CloseByItsBox());
  EXPECT_EQ(station.Read(sSettings), settings);
}

/// The question is there for the user although the window is not.
TEST_F(WindowManager, AMinimisedWindowIsStoredSoAndComesBackNormal) {
  ASSERT_TRUE(station.Start());
  station.Minimise();
  ASSERT_TRUE(station.HasNoWindow(sMain));
  station.PressCloseBox();
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
  station.Picture("minimised-and-asked");
  station.Key("Return");
  ASSERT_TRUE(station.WaitForEnd());
  EXPECT_TRUE(station.Read(sSettings).contains("State=1")) << station.Read(sSettings).toStdString();
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(Width(), 960);
}

TEST_F(WindowManager, ASecondCopyBringsTheMinimisedFirstOneBack) {
  ASSERT_TRUE(station.Start());
  station.Minimise();
  ASSERT_TRUE(station.HasNoWindow(sMain));
  QProcess second;
  ASSERT_TRUE(station.StartSecondCopy(second));
  Wait(1500);
  station.Key("Return");
  ASSERT_TRUE(second.waitForFinished(5000));
  EXPECT_TRUE(station.HasWindow(sMain));
  station.Picture("brought-back");
}

}  // namespace glidetrak
