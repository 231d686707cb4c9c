// What a server says to the bytes of one client.

#include "bench/RigConversation.h"

#include <gtest/gtest.h>

#include "bench/WireProtocol.h"

namespace glidetrak::bench {
namespace {

const std::string sHello = "glidetrak-bench 1\n";

std::string Bytes(std::initializer_list<int> aBytes) {
  return {aBytes.begin(), aBytes.end()};
}

/// A good command of that many characters.
std::string PlaceLine(size_t iLength) {
  std::string sLine = "place 700";
  sLine.insert(0, iLength - sLine.size(), ' ');
  return sLine + "\n";
}

class RigConversationTest : public testing::Test {
 protected:
  /// Takes all whole messages; what is answered to them.
  std::string Say(const std::string& sBytes) {
    std::string sAnswer;
    m_sReceived += sBytes;
    do {
      m_turn = m_conversation.Take(m_sReceived, sAnswer);
    } while (m_turn == Turn::Answer);
    return sAnswer;
  }

  int Power() {
    return m_rig.With([](TrackModel& model) { return model.Power(); });
  }

  LiveRig m_rig;
  int m_iCommands = 0;
  RigConversation m_conversation{m_rig, [this] { ++m_iCommands; }};
  std::string m_sReceived;
  Turn m_turn = Turn::Wait;
};

TEST_F(RigConversationTest, AGreetingIsAnsweredByTheSame) {
  EXPECT_EQ(Greeting(), sHello);
  EXPECT_EQ(Say(sHello), sHello);
  EXPECT_EQ(m_turn, Turn::Wait);
}

TEST_F(RigConversationTest, ExchangesAreAnswered) {
  Say(sHello);
  EXPECT_EQ(Say(Bytes({1, 0})), Bytes({1, 1}));
  EXPECT_EQ(Say(Bytes({2, 0})), Bytes({2, 0x88}));
  EXPECT_EQ(Say(Bytes({3, 0})), Bytes({3, 0}));
  EXPECT_EQ(Say(Bytes({4, 0x18})), Bytes({4, 0}));
  EXPECT_EQ(Power(), 8);
}

TEST_F(RigConversationTest, AnAdapterOffItsPortIsNone) {
  Say(sHello + "detach\n");
  EXPECT_EQ(Say(Bytes({1, 0})), Bytes({1, 0}));
}

TEST_F(RigConversationTest, APulledLeadLeavesTheAdapterAndASilentRig) {
  Say(sHello + "unplug\n");
  EXPECT_EQ(Say(Bytes({1, 0})), Bytes({1, 1}));
  EXPECT_EQ(Say(Bytes({2, 0})), Bytes({2, 0}));
}

TEST_F(RigConversationTest, CommandsAreAnsweredWithTheLengthOfTheirText) {
  Say(sHello);
  EXPECT_EQ(Say("place 1000\n"), "ok 0\n");
  const std::string sState = Say("state\n");
  const std::string sFirst = "ok " + std::to_string(sState.size() - 7) + "\n";
  EXPECT_EQ(sState.rfind(sFirst + "position 1000 mm\n", 0), 0u) << sState;
  EXPECT_EQ(Say("fly\n"), "error: no such command\n");
  EXPECT_EQ(Say("\n"), "error: no such command\n");
  EXPECT_EQ(m_turn, Turn::Wait) << "a slip of the hand ends nothing";
  EXPECT_EQ(m_iCommands, 2);
}

TEST_F(RigConversationTest, SeveralMessagesInOnePieceAreAnsweredInTheirOrder) {
  EXPECT_EQ(Say(sHello + Bytes({4, 0x12, 4, 0x17}) + "place 700\n" + Bytes({1, 0})),
            sHello + Bytes({4, 0, 4, 0}) + "ok 0\n" + Bytes({1, 1}));
  EXPECT_EQ(Power(), 7);
}

TEST_F(RigConversationTest, AMessageMayComeByteByByte) {
  std::string sAnswer;
  for (const char cByte : sHello + Bytes({4, 0x15})) sAnswer += Say(std::string(1, cByte));
  EXPECT_EQ(sAnswer, sHello + Bytes({4, 0}));
  EXPECT_EQ(Power(), 5);
}

TEST_F(RigConversationTest, AnotherVersionIsToldThisOneAndHungUpOn) {
  EXPECT_EQ(Say("glidetrak-bench 2\n" + Bytes({4, 0x15})), sHello);
  EXPECT_EQ(m_turn, Turn::HangUp);
  EXPECT_EQ(Power(), 0);
}

TEST_F(RigConversationTest, NothingIsCarriedOutBeforeTheGreeting) {
  EXPECT_EQ(Say(Bytes({4, 0x15}) + "\n"), sHello);
  EXPECT_EQ(m_turn, Turn::HangUp);
  EXPECT_EQ(Power(), 0);
}

TEST_F(RigConversationTest, TheLongestLineIsUnderstood) {
  Say(sHello);
  EXPECT_EQ(Say(PlaceLine(255)), "ok 0\n");
}

TEST_F(RigConversationTest, ALongerLineIsHungUpOn) {
  Say(sHello);
  EXPECT_EQ(Say(PlaceLine(256)), "error: a line has at most 255 characters\n");
  EXPECT_EQ(m_turn, Turn::HangUp);
}

TEST_F(RigConversationTest, ALineWithoutAnEndIsHungUpOn) {
  Say(sHello);
  EXPECT_EQ(Say(std::string(255, 'x')), "");
  EXPECT_EQ(m_turn, Turn::Wait);
  EXPECT_EQ(Say("x"), "error: a line has at most 255 characters\n");
  EXPECT_EQ(m_turn, Turn::HangUp);
}

TEST_F(RigConversationTest, BytesOfNoMessageAreHeldAsALine) {
  Say(sHello);
  EXPECT_EQ(Say(Bytes({5, 0, 0})), "");
  EXPECT_EQ(Say("\n"), "error: no such command\n");
}

}  // namespace
}  // namespace glidetrak::bench
