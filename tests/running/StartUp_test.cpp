// The first seconds.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "RunningStation.h"

namespace glidetrak {

namespace {

constexpr Place placeMiddle{400, 300};  ///< in the start-up box, and in a message box above it
constexpr int iBoxGone = 7000;          ///< milliseconds behind which no start-up box stands

}  // namespace

TEST(StartUp, TheStartUpBoxHasNoTitleAndGoesByItself) {
  RunningStation station;
  ASSERT_TRUE(station.Launch());
  EXPECT_TRUE(station.HasWindow("^ $"));
  station.Picture("start-up-box");
  Wait(iBoxGone);
  EXPECT_TRUE(station.HasNoWindow("^ $"));
}

TEST(StartUp, AMessageStaysInFrontWhenTheStartUpBoxGoes) {
  RunningStation station;
  ASSERT_TRUE(station.Launch());
  ASSERT_TRUE(station.HasWindow("^ $"));
  Wait(500);
  const QString sStartUpBox = station.ColourAt(placeMiddle);
  station.Rig({"unplug"});
  Wait(1000);
  station.Picture("message-over-start-up");
  const QString sMessage = station.ColourAt(placeMiddle);
  ASSERT_NE(sMessage, sStartUpBox);
  Wait(iBoxGone);
  station.Picture("message-behind-start-up");
  EXPECT_EQ(station.ColourAt(placeMiddle), sMessage);
  station.Key("Return");
  EXPECT_TRUE(station.HasWindow("^Glidetrak Control$"));
  EXPECT_FALSE(station.ShowsColour(placeMiddle, sMessage)) << "the message was answered";
}

TEST(StartUp, AboutStaysWhenItWasOpenedOverTheStartUpBox) {
  RunningStation station;
  ASSERT_TRUE(station.Launch());
  Wait(1500);
  station.Click(placeRigPicture);
  station.Key("alt+h");
  station.Key("Return");
  Wait(iBoxGone);
  station.Picture("about-from-the-start");
  station.Click(placeBackward);
  Wait(500);
  EXPECT_TRUE(station.RigShows("direction forward")) << "the box keeps the window from answering";
}

TEST(StartUp, APipeNamedAsAProgramDoesNotHangIt) {
  RunningStation station;
  const QString sPath = station.Folder() + "/pipe.gtp";
  ASSERT_EQ(mkfifo(sPath.toUtf8().constData(), 0600), 0);
  ASSERT_TRUE(station.Start({sPath}));
  station.Picture("pipe");
  station.Click(placeBackward);
  EXPECT_TRUE(station.RigShows("direction backward"));
}

TEST(StartUp, AFileOfAHundredMegabytesDoesNotHangIt) {
  RunningStation station;
  const QString sPath =
      station.WriteProgram("large.gtp", QByteArray("POWER 8\r\nWAIT 5000\r\n").repeated(4'700'000));
  ASSERT_TRUE(station.Start({sPath}));
  ASSERT_TRUE(station.HasWindow("^LARGE.GTP : Glidetrak Control$"));
  station.Picture("hundred-megabytes");
  station.Click(placeBackward);
  EXPECT_TRUE(station.RigShows("direction backward"));
}

}  // namespace glidetrak
