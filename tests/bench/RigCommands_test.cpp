#include "bench/RigCommands.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace glidetrak::bench {
namespace {

std::string Do(TrackModel& model, const std::string& sLine) {
  const RigCommand command = ParseRigCommand(sLine);
  return command ? command(model) : "no command";
}

TEST(RigCommands, StateTellsEverything) {
  TrackModel model;
  EXPECT_EQ(Do(model, "state"),
            "position 100 mm\nspeed 0 mm/s\npower 0\ndirection backward\ninputs LIGHT_SENSOR\n"
            "analog 0\nplugged yes\n");
}

TEST(RigCommands, StateOfAVehicleUnderWay) {
  TrackModel model;
  model.Place(500);
  model.SetOutput(0x1F);
  model.Advance(100);
  EXPECT_EQ(Do(model, "state"),
            "position 504 mm\nspeed 75 mm/s\npower 15\ndirection forward\n"
            "inputs LIGHT_SENSOR TIME_GATE_A\nanalog 0\nplugged yes\n");
}

TEST(RigCommands, StateNamesEverySensor) {
  TrackModel model;
  for (const char* sLine : {"press START_BUTTON 9", "press CITY_CALL 9", "press AIRPORT_CALL 9",
                            "sound on", "place 1500"}) {
    EXPECT_EQ(Do(model, sLine), "");
  }
  EXPECT_NE(Do(model, "state")
                .find("inputs START_BUTTON CITY_CALL AIRPORT_CALL LIGHT_SENSOR "
                      "TIME_GATE_B SOUND_SENSOR\n"),
            std::string::npos);
}

TEST(RigCommands, StateWithoutInputsSaysNone) {
  TrackModel model;
  Do(model, "light off");
  EXPECT_NE(Do(model, "state").find("inputs none\n"), std::string::npos);
}

TEST(RigCommands, PressHoldsTheButtonForItsTime) {
  TrackModel model;
  Do(model, "press AIRPORT_CALL 500");
  model.Advance(499);
  EXPECT_EQ(model.Sensors(), 0x0C);
  model.Advance(1);
  EXPECT_EQ(model.Sensors(), 0x08);
}

TEST(RigCommands, LightAndSound) {
  TrackModel model;
  Do(model, "light off");
  EXPECT_EQ(model.Sensors(), 0x00);
  Do(model, "light on");
  Do(model, "sound on");
  EXPECT_EQ(model.Sensors(), 0x48);
  Do(model, "sound off");
  EXPECT_EQ(model.Sensors(), 0x08);
  Do(model, "sound 500");
  model.Advance(499);
  EXPECT_EQ(model.Sensors(), 0x48);
  model.Advance(1);
  EXPECT_EQ(model.Sensors(), 0x08);
}

TEST(RigCommands, PlugAndUnplug) {
  TrackModel model;
  Do(model, "unplug");
  EXPECT_FALSE(model.Plugged());
  EXPECT_NE(Do(model, "state").find("plugged no\n"), std::string::npos);
  Do(model, "plug");
  EXPECT_TRUE(model.Plugged());
}

TEST(RigCommands, PlaceInMillimetres) {
  TrackModel model;
  Do(model, "place 1234");
  EXPECT_EQ(model.Position(), 1234);
}

TEST(RigCommands, BlanksBetweenWordsDoNotCount) {
  TrackModel model;
  Do(model, "  place   700 ");
  EXPECT_EQ(model.Position(), 700);
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
  EXPECT_EQ(std::count(sHelp.begin(), sHelp.end(), '\n'), 7);
}

}  // namespace
}  // namespace glidetrak::bench
