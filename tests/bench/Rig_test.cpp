#include "bench/Rig.h"

#include <gtest/gtest.h>

#include <sstream>

namespace glidetrak::bench {
namespace {

constexpr int iFullForward = 0x1F;

std::vector<std::string> Lines(const Rig& rig) {
  std::istringstream text(rig.Record().Text());
  std::vector<std::string> aLines;
  for (std::string sLine; std::getline(text, sLine);) aLines.push_back(sLine);
  return aLines;
}

TEST(Rig, AWrittenByteDrivesTheTrack) {
  Rig rig;
  rig.Write(iFullForward);
  EXPECT_EQ(rig.Track().Power(), 15);
  EXPECT_TRUE(rig.Track().Forward());
}

TEST(Rig, AnAdapterOffItsPortIsSilentAndTheTrackWithoutPower) {
  Rig rig;
  rig.Write(iFullForward);
  rig.SetAttached(false);
  EXPECT_EQ(rig.Track().Power(), 0);
  EXPECT_EQ(rig.Inputs(), 0);
  EXPECT_EQ(rig.Sensors(), 0);
  rig.Write(iFullForward);
  rig.SetAttached(true);
  EXPECT_EQ(rig.Track().Power(), 0);
  EXPECT_EQ(rig.Inputs(), 0x88);
}

TEST(Rig, APulledLeadLeavesTheAdapter) {
  Rig rig;
  rig.Track().SetPlugged(false);
  EXPECT_TRUE(rig.Attached());
  EXPECT_EQ(rig.Inputs(), 0);
  EXPECT_EQ(rig.Sensors(), 0);
}

TEST(Rig, AnImpactIsNotFeltThroughAPulledPlug) {
  Rig rig;
  rig.Write(iFullForward);
  while (rig.Track().Analog() == 0) rig.Advance(1);
  EXPECT_GT(rig.Analog(), 0);
  rig.SetAttached(false);
  EXPECT_EQ(rig.Analog(), 0);
  rig.SetAttached(true);
  rig.Track().SetPlugged(false);
  EXPECT_EQ(rig.Analog(), 0);
}

TEST(Rig, TheRecordHoldsEveryByteWithItsTimeAndNumber) {
  Rig rig;
  rig.Advance(1500);
  rig.Write(0x18);
  rig.Write(0xE3);
  EXPECT_EQ(rig.Record().Text(),
            "1: 1500 ms 0x18 power 8 forward\n2: 1500 ms 0xE3 power 3 backward\n");
}

TEST(Rig, TheRecordTakesWhatTheAdapterWasHanded) {
  Rig rig;
  rig.Track().SetPlugged(false);
  rig.Write(0);
  EXPECT_EQ(Lines(rig).size(), 1u) << "the adapter has it";
  rig.SetAttached(false);
  rig.Write(0);
  EXPECT_EQ(Lines(rig).size(), 1u) << "there is nothing that could have it";
}

TEST(Rig, TheRecordKeepsTheLastThousandBytes) {
  Rig rig;
  for (int i = 0; i < 1234; ++i) rig.Write(i % 16);
  const std::vector<std::string> aLines = Lines(rig);
  ASSERT_EQ(aLines.size(), iKeptBytes);
  EXPECT_EQ(aLines.front(), "235: 0 ms 0x0A power 10 backward");
  EXPECT_EQ(aLines.back(), "1234: 0 ms 0x01 power 1 backward");
}

/// A rig that was stopped for years, and goes on, must not count every millisecond of them.
TEST(Rig, ALongTimeIsMadeUpForAtOnceAndComesToTheSameEnd) {
  constexpr std::int64_t lYears = std::int64_t{5} * 365 * 24 * 3600 * 1000;
  Rig rig;
  rig.Track().Press(Button::Start, 60'000);
  rig.Write(iFullForward);
  rig.Advance(lYears);
  rig.Write(0);
  EXPECT_EQ(rig.Track().Position(), fAirportBuffer);
  EXPECT_EQ(rig.Track().Speed(), 0);
  EXPECT_EQ(rig.Inputs(), 0x88);
  EXPECT_EQ(Lines(rig).back(), "2: " + std::to_string(lYears) + " ms 0x00 power 0 backward");
}

TEST(Rig, TheWeakestDriveEndsWithinTheLongestTime) {
  Rig rig;
  rig.Track().Place(0);
  rig.Write(0x13);
  rig.Advance(lLongestAdvance);
  EXPECT_EQ(rig.Track().Position(), fAirportBuffer);
  EXPECT_EQ(rig.Track().Speed(), 0);
  EXPECT_EQ(rig.Analog(), 0);
}

TEST(Rig, TimeDoesNotRunBackwards) {
  Rig rig;
  rig.Advance(100);
  rig.Advance(-50);
  rig.Write(0);
  EXPECT_EQ(Lines(rig).back(), "1: 100 ms 0x00 power 0 backward");
}

}  // namespace
}  // namespace glidetrak::bench
