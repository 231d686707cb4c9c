#include "bench/RigProtocol.h"

#include <gtest/gtest.h>

namespace glidetrak::bench {
namespace {

ReportBytes SetOutput(int iByte) {
  ReportBytes data(19);
  data[0] = 4;
  data[1] = 1;
  data[16] = static_cast<std::uint8_t>(iByte);
  return data;
}

TEST(RigProtocol, SetOutputDrivesTheTrack) {
  Rig rig;
  const ReportBytes answer = AnswerReport(rig, SetOutput(0x1A), 64);
  EXPECT_EQ(rig.Track().Power(), 10);
  EXPECT_TRUE(rig.Track().Forward());
  EXPECT_EQ(answer.size(), 64u);
  EXPECT_EQ(answer[0], 4);
}

TEST(RigProtocol, ReadStateGivesSensorsWithoutBit7) {
  Rig rig;
  rig.Track().Place(fGateA);
  const ReportBytes answer = AnswerReport(rig, {3, 0, 0}, 64);
  EXPECT_EQ(answer.size(), 64u);
  EXPECT_EQ(answer[2], 0x18);
  EXPECT_EQ(answer[3], 0);
}

TEST(RigProtocol, ReadStateGivesTheImpactInTheHighNibble) {
  Rig rig;
  rig.Write(0x1F);
  while (rig.Analog() == 0) rig.Advance(1);
  EXPECT_EQ(AnswerReport(rig, {3}, 64)[3], 0xF0);
}

TEST(RigProtocol, SetOutputGoesToTheRecord) {
  Rig rig;
  AnswerReport(rig, SetOutput(0x1A), 64);
  EXPECT_EQ(rig.Record().Text(), "1: 0 ms 0x1A power 10 forward\n");
}

TEST(RigProtocol, AnAdapterOfASilentRigAnswersNothingButZeroes) {
  Rig rig;
  rig.Track().SetPlugged(false);
  const ReportBytes answer = AnswerReport(rig, {3, 0, 0}, 64);
  ASSERT_EQ(answer.size(), 64u);
  EXPECT_EQ(answer[2], 0);
  EXPECT_EQ(answer[3], 0);
}

TEST(RigProtocol, AnswerHasTheDeclaredLengthButAtLeastFourBytes) {
  Rig rig;
  EXPECT_EQ(AnswerReport(rig, {3}, 20).size(), 20u);
  EXPECT_EQ(AnswerReport(rig, {3}, 0).size(), 4u);
}

TEST(RigProtocol, RefusesWhatIsNoCommand) {
  Rig rig;
  EXPECT_TRUE(AnswerReport(rig, {}, 64).empty());
  EXPECT_TRUE(AnswerReport(rig, {5, 0, 0}, 64).empty());
  EXPECT_TRUE(AnswerReport(rig, ReportBytes(16, 4), 64).empty());
  EXPECT_EQ(rig.Track().Power(), 0);
}

}  // namespace
}  // namespace glidetrak::bench
