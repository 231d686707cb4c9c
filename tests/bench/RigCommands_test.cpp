#include "bench/RigCommands.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace glidetrak::bench {
namespace {

std::string Do(Rig& rig, const std::string& sLine) {
  const RigCommand command = ParseRigCommand(sLine);
  return command ? command(rig) : "no command";
}

TEST(RigCommands, StateTellsEverything) {
  Rig rig;
  EXPECT_EQ(Do(rig, "state"),
            "position 100 mm\nspeed 0 mm/s\npower 0\ndirection backward\ninputs LIGHT_SENSOR\n"
            "analog 0\nplugged yes\nattached yes\n");
}

TEST(RigCommands, StateOfAVehicleUnderWay) {
  Rig rig;
  rig.Track().Place(500);
  rig.Write(0x1F);
  rig.Advance(100);
  EXPECT_EQ(Do(rig, "state"),
            "position 504 mm\nspeed 75 mm/s\npower 15\ndirection forward\n"
            "inputs LIGHT_SENSOR TIME_GATE_A\nanalog 0\nplugged yes\nattached yes\n");
}

TEST(RigCommands, StateNamesEverySensor) {
  Rig rig;
  for (const char* sLine : {"press START_BUTTON 9", "press CITY_CALL 9", "press AIRPORT_CALL 9",
                            "sound on", "place 1500"}) {
    EXPECT_EQ(Do(rig, sLine), "");
  }
  EXPECT_NE(Do(rig, "state")
                .find("inputs START_BUTTON CITY_CALL AIRPORT_CALL LIGHT_SENSOR "
                      "TIME_GATE_B SOUND_SENSOR\n"),
            std::string::npos);
}

TEST(RigCommands, StateWithoutInputsSaysNone) {
  Rig rig;
  Do(rig, "light off");
  EXPECT_NE(Do(rig, "state").find("inputs none\n"), std::string::npos);
}

TEST(RigCommands, PressHoldsTheButtonForItsTime) {
  Rig rig;
  Do(rig, "press AIRPORT_CALL 500");
  rig.Advance(499);
  EXPECT_EQ(rig.Sensors(), 0x0C);
  rig.Advance(1);
  EXPECT_EQ(rig.Sensors(), 0x08);
}

TEST(RigCommands, LightAndSound) {
  Rig rig;
  Do(rig, "light off");
  EXPECT_EQ(rig.Sensors(), 0x00);
  Do(rig, "light on");
  Do(rig, "sound on");
  EXPECT_EQ(rig.Sensors(), 0x48);
  Do(rig, "sound off");
  EXPECT_EQ(rig.Sensors(), 0x08);
  Do(rig, "sound 500");
  rig.Advance(499);
  EXPECT_EQ(rig.Sensors(), 0x48);
  rig.Advance(1);
  EXPECT_EQ(rig.Sensors(), 0x08);
}

TEST(RigCommands, PlugAndUnplug) {
  Rig rig;
  Do(rig, "unplug");
  EXPECT_FALSE(rig.Track().Plugged());
  EXPECT_NE(Do(rig, "state").find("plugged no\n"), std::string::npos);
  Do(rig, "plug");
  EXPECT_TRUE(rig.Track().Plugged());
}

TEST(RigCommands, DetachAndAttach) {
  Rig rig;
  EXPECT_EQ(Do(rig, "detach"), "");
  EXPECT_FALSE(rig.Attached());
  EXPECT_NE(Do(rig, "state").find("plugged yes\nattached no\n"), std::string::npos);
  EXPECT_EQ(Do(rig, "attach"), "");
  EXPECT_TRUE(rig.Attached());
}

TEST(RigCommands, LogTellsWhatWasWritten) {
  Rig rig;
  EXPECT_EQ(Do(rig, "log"), "");
  rig.Write(0x18);
  rig.Advance(250);
  rig.Write(0);
  EXPECT_EQ(Do(rig, "log"), "1: 0 ms 0x18 power 8 forward\n2: 250 ms 0x00 power 0 backward\n");
}

TEST(RigCommands, PlaceInMillimetres) {
  Rig rig;
  Do(rig, "place 1234");
  EXPECT_EQ(rig.Track().Position(), 1234);
}

TEST(RigCommands, BlanksBetweenWordsDoNotCount) {
  Rig rig;
  Do(rig, "  place   700 ");
  EXPECT_EQ(rig.Track().Position(), 700);
}

TEST(RigCommands, RefusesWhatIsNoCommand) {
  const char* aLines[] = {"",
                          " ",
                          "stat",
                          "STATE",
                          "state now",
                          "press",
                          "press START_BUTTON",
                          "press LIGHT_SENSOR 500",
                          "press START_BUTTON 0",
                          "press START_BUTTON 60001",
                          "press START_BUTTON 5x",
                          "press START_BUTTON -5",
                          "press 500 START_BUTTON",
                          "light",
                          "light 500",
                          "light bright",
                          "sound",
                          "sound loud",
                          "sound 0",
                          "plug in",
                          "unplug it",
                          "detach it",
                          "attach 1",
                          "log 5",
                          "place",
                          "place -1",
                          "place 2001",
                          "place 12.5",
                          "place 99999999999",
                          "hid"};
  for (const char* sLine : aLines) EXPECT_FALSE(ParseRigCommand(sLine)) << sLine;
}

TEST(RigCommands, HelpHasALineForEachCommand) {
  const std::string sHelp = RigCommandHelp();
  EXPECT_EQ(std::count(sHelp.begin(), sHelp.end(), '\n'), 10);
}

}  // namespace
}  // namespace glidetrak::bench
