// The emergency stop in the running station, whatever lies between it and the user.

#include <gtest/gtest.h>

#include "RecordedStation.h"

namespace glidetrak {

namespace {

constexpr int iStopped = 0x10;  ///< power 0, direction forward

constexpr Place placeFileMenu{20, 9};

class EmergencyKey : public testing::TestWithParam<const char*> {};

bool Stops(const RecordedStation& station) {
  return WaitUntil([&] { return station.LastByte() == iStopped; });
}

}  // namespace

TEST(Emergency, ActsOnTheFirstPressWhileAMenuIsOpen) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  station.Click(placeFileMenu);
  station.Picture("emergency-menu");
  ASSERT_GT(station.LastByte(), iStopped);
  station.Click(placeEmergency);
  EXPECT_TRUE(Stops(station));
  station.Picture("emergency-menu-gone");
}

TEST(Emergency, ActsOnTheFirstPressWhileAMenuOpenedByKeysIsOpen) {
  RecordedStation station;
  ASSERT_TRUE(station.Drive());
  ASSERT_TRUE(station.CloseStartupBox());
  station.Key("alt+f");
  station.Click(placeEmergency);
  EXPECT_TRUE(Stops(station));
}

/// A traced POWER leaves the motor on.
TEST(Emergency, ActsOnTheFirstPressWhileTheListOfPresetsIsOpen) {
  RecordedStation station;
  ASSERT_TRUE(station.Launch({station.WriteProgram("drive.gtp", "POWER 9\r\nHALT\r\n")}));
  ASSERT_TRUE(station.CloseStartupBox());
  station.Click(placeProgram);
  station.Click(placeTrace);
  ASSERT_TRUE(WaitUntil([&] { return station.LastByte() == 0x19; }));
  station.Click(placeShowPresets);
  station.Picture("emergency-list");
  station.Click(placeEmergency);
  EXPECT_TRUE(Stops(station));
}

/// Each is open over a driving vehicle; the empty title is the start-up box with the keyboard.
TEST_P(EmergencyKey, ReachesTheButtonUnder) {
  const QString sOver = GetParam();
  RecordedStation station;
  ASSERT_TRUE(station.Launch({station.WriteProgram("wrong.gtp", "POWER 9\r\nNONSENSE\r\n")}));
  ASSERT_TRUE(sOver == "start-up box" || station.CloseStartupBox());
  if (sOver == "Control Program Error") {
    station.Click(placeProgram);
    station.Click(placeRun);
  } else {
    station.Drag(placeLeverFoot, placeLeverHigh);
  }
  if (sOver == "menu") station.Key("alt+f");
  if (sOver == "Close Software") station.AskToLeave();
  if (sOver == "Open Program") station.ChooseFileEntry(entryOpen);
  ASSERT_TRUE(sOver.at(0).isLower() || station.HasWindow("^" + sOver + "$"));
  ASSERT_TRUE(WaitUntil([&] { return station.LastByte() > iStopped; }));
  station.Key(sOver.size() % 2 == 0 ? "F12" : "Pause");
  EXPECT_TRUE(Stops(station));
}

INSTANTIATE_TEST_SUITE_P(Emergency, EmergencyKey,
                         testing::Values("start-up box", "bare window", "menu", "Close Software",
                                         "Open Program", "Control Program Error"));

/// Whoever looks at the vehicle clicks into the window behind the box.
TEST(Emergency, TheKeysWorkAfterAClickBehindAnOpenBox) {
  RecordedStation station;
  ASSERT_TRUE(station.StartWindowManager());
  ASSERT_TRUE(station.Launch());
  ASSERT_TRUE(station.CloseStartupBox());
  station.Key("alt+f");
  station.Key("x");
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
  station.Click(placeRigPicture);
  station.Key("F12");
  EXPECT_TRUE(WaitUntil([&] { return station.Bytes().count(iStopped) == 3; }))
      << "start-up writes two of them";
}

}  // namespace glidetrak
