// The two kinds of client beside rigs that answer well, badly or not at all.

#include "bench/RigClient.h"

#include <optional>

#include "BenchPlace.h"

namespace glidetrak::bench {
namespace {

/// Says the same to whatever it hears, once; nothing when that is empty.
class Parrot : public Conversation {
 public:
  explicit Parrot(std::string sText) : m_sText(std::move(sText)) {}
  Turn Take(std::string& sReceived, std::string& sAnswer) override {
    if (sReceived.empty() || m_sText.empty()) return Turn::Wait;
    sReceived.clear();
    sAnswer = std::exchange(m_sText, {});
    return Turn::Answer;
  }

 private:
  std::string m_sText;
};

class RigClientTest : public BenchPlace {
 protected:
  void ServeParrot(const std::string& sText) {
    m_parrot.emplace(Place(), [=] { return std::make_unique<Parrot>(sText); });
  }

  std::string Failure(const std::string& sLine = "state") const {
    try {
      return "answer: " + AskRig(Place(), sLine);
    } catch (const std::runtime_error& failure) {
      return failure.what();
    }
  }

  /// ms that it takes.
  template <typename Act>
  static double TimeOf(Act act) {
    const auto start = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
  }

  std::optional<ServedWire> m_parrot;
  RigClient m_client;
};

TEST_F(RigClientTest, CommandsReachTheRig) {
  ServedRig rig(Place());
  EXPECT_EQ(AskRig(Place(), "place 1000"), "");
  EXPECT_EQ(AskRig(Place(), "state").rfind("position 1000 mm\n", 0), 0u);
  EXPECT_EQ(rig.Position(), 1000);
}

TEST_F(RigClientTest, AFullRecordComesWhole) {
  const ServedRig rig(Place());
  for (int i = 0; i < 1500; ++i) ASSERT_EQ(m_client.Exchange(RigAct::WriteByte, i & 0xFF), 0);
  const std::string sLog = AskRig(Place(), "log");
  EXPECT_EQ(sLog.rfind("501: ", 0), 0u);
  EXPECT_NE(sLog.find("\n1500: "), std::string::npos);
}

TEST_F(RigClientTest, ARefusedCommandIsTold) {
  const ServedRig rig(Place());
  EXPECT_EQ(Failure("fly"), "the rig refused: no such command");
  EXPECT_EQ(Failure(std::string(300, ' ') + "state"),
            "the rig refused: a line has at most 255 characters");
}

TEST_F(RigClientTest, NobodyAnswers) {
  EXPECT_EQ(Failure(), "no rig answers at " + Place());
  EXPECT_EQ(m_client.Exchange(RigAct::ReadInputs), std::nullopt);
}

TEST_F(RigClientTest, ARigOfAnotherVersionIsToldAndIsNoAdapter) {
  ServeParrot("glidetrak-bench 2\n\1\1");
  EXPECT_EQ(Failure(),
            "the rig at " + Place() + " speaks version 2 of the wire, and this program version 1");
  EXPECT_EQ(m_client.StartAgain(RigAct::AskAdapter), std::nullopt);
}

TEST_F(RigClientTest, WhatIsNoRigIsToldAndIsNoAdapter) {
  ServeParrot("HTTP/1.1 400 Bad Request\r\n\r\n");
  EXPECT_EQ(Failure(), "what answers at " + Place() + " is no bench rig");
  EXPECT_EQ(m_client.StartAgain(RigAct::AskAdapter), std::nullopt);
}

TEST_F(RigClientTest, AnAnswerThatMakesNoSenseIsNone) {
  for (const char* sAnswer :
       {"ok\n", "ok -1\n", "ok 99999999999999\n", "ok 5 \n", "okay\n", "ok 5\nab"}) {
    ServeParrot(Greeting() + sAnswer);
    EXPECT_EQ(Failure(), "the rig at " + Place() + " does not answer") << sAnswer;
    m_parrot.reset();
  }
}

TEST_F(RigClientTest, AnAnswerToAnotherExchangeIsNone) {
  ServeParrot(Greeting() + "\3\1");
  EXPECT_EQ(m_client.StartAgain(RigAct::ReadInputs), std::nullopt);
}

TEST_F(RigClientTest, ASilentRigCostsAnExchangeItsTimeOnceAndNoMore) {
  ServeParrot("");
  const double fFirst = TimeOf([&] { m_client.Exchange(RigAct::ReadInputs); });
  EXPECT_GE(fFirst, 49);
  EXPECT_LT(fFirst, 1000) << "50, and what a busy machine adds";
  const double fNext = TimeOf([&] {
    for (int i = 0; i < 1000; ++i) m_client.Exchange(RigAct::ReadInputs);
  });
  EXPECT_LT(fNext, 5000) << "a thousand are answered at once";
  EXPECT_GE(TimeOf([&] { m_client.StartAgain(RigAct::AskAdapter); }), 49) << "it asks again";
}

/// The system's queue takes some connections that nobody accepts, and then none.
TEST_F(RigClientTest, AServerThatNeverAcceptsHoldsNobodyForLong) {
  const WireServer stopped(Place());
  std::vector<WireConnection> aQueue;
  for (int i = 0; i < 40; ++i) {
    WireConnection connection;
    if (!connection.Connect(Place())) break;
    aQueue.push_back(std::move(connection));
  }
  ASSERT_LT(aQueue.size(), 40u);
  EXPECT_LT(TimeOf([&] { m_client.StartAgain(RigAct::AskAdapter); }), 1000);
  EXPECT_LT(TimeOf([&] { EXPECT_EQ(Failure(), "no rig answers at " + Place()); }), 4000);
}

TEST_F(RigClientTest, ARigThatWentIsFoundAgainByStartingAgain) {
  std::optional<ServedRig> rig(std::in_place, Place());
  EXPECT_EQ(m_client.Exchange(RigAct::ReadInputs), 0x88);
  rig.reset();
  EXPECT_EQ(m_client.Exchange(RigAct::ReadInputs), std::nullopt);
  rig.emplace(Place());
  EXPECT_EQ(m_client.Exchange(RigAct::ReadInputs), std::nullopt) << "not by itself";
  EXPECT_EQ(m_client.StartAgain(RigAct::AskAdapter), 1);
  EXPECT_EQ(m_client.Exchange(RigAct::ReadInputs), 0x88);
}

TEST_F(RigClientTest, TwoClientsSpeakToOneRig) {
  const ServedRig rig(Place());
  RigClient other;
  EXPECT_EQ(m_client.Exchange(RigAct::WriteByte, 0x18), 0);
  EXPECT_NE(AskRig(Place(), "state").find("power 8\n"), std::string::npos);
  EXPECT_EQ(other.Exchange(RigAct::WriteByte, 0), 0);
  EXPECT_NE(AskRig(Place(), "state").find("power 0\n"), std::string::npos);
}

}  // namespace
}  // namespace glidetrak::bench
