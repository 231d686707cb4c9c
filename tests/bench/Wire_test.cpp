// The wire under clients of every kind.

#include "bench/Wire.h"

#include <vector>

#include "WireFixture.h"
#include "bench/RigClient.h"

namespace glidetrak::bench {
namespace {

const std::string sHello = Greeting();

TEST_F(WireTest, AClientThatSaysNothingKeepsNobodyWaiting) {
  const ServedRig rig(Place());
  const WireConnection silent = Talk(Place(), "");
  EXPECT_TRUE(Answers());
}

TEST_F(WireTest, HalfALineKeepsNobodyWaiting) {
  const ServedRig rig(Place());
  const WireConnection half = Talk(Place(), sHello + "sta");
  EXPECT_TRUE(Answers());
}

TEST_F(WireTest, AMegabyteWithoutAnEndIsHungUpOn) {
  const ServedRig rig(Place());
  WireConnection talker = Talk(Place(), sHello);
  EXPECT_FALSE(talker.Send(std::string(1 << 20, 'x')));
  EXPECT_TRUE(Answers());
  EXPECT_EQ(Hear(talker, std::chrono::milliseconds(5000)),
            sHello + "error: a line has at most 255 characters\n");
}

/// Each answer is some hundred bytes; the ten thousand would be a megabyte in the server's memory.
TEST_F(WireTest, AClientThatNeverReadsIsNotReadAnyMoreEither) {
  const ServedRig rig(Place());
  WireConnection deaf = Talk(Place(), sHello);
  std::string sMany;
  for (int i = 0; i < 500'000; ++i) sMany += "state\n";
  EXPECT_FALSE(deaf.Send(sMany));
  EXPECT_TRUE(Answers());
}

/// Far more than the system holds for a connection.
TEST_F(WireTest, AClientThatReadsLateGetsAllItsAnswers) {
  const ServedRig rig(Place());
  RigClient library;
  for (size_t i = 0; i < iKeptBytes; ++i) library.Exchange(RigAct::WriteByte, 0x18);
  const size_t iLog = AskRig(Place(), "log").size();
  std::string sMany = sHello;
  for (int i = 0; i < 50; ++i) sMany += "log\n";
  WireConnection late = Talk(Place(), sMany);
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_TRUE(Answers());
  const size_t iExpected = sHello.size() + 50 * (iLog + 4 + std::to_string(iLog).size());
  std::string sAll(iExpected, ' ');
  late.Allow(std::chrono::seconds(10));
  size_t iHave = 0;
  while (iHave < iExpected) {
    const size_t iMore = late.Receive(sAll.data() + iHave, iExpected - iHave);
    if (iMore == 0) break;
    iHave += iMore;
  }
  EXPECT_EQ(iHave, iExpected);
}

TEST_F(WireTest, AMillionExchangesOfOneClientKeepNobodyWaiting) {
  const ServedRig rig(Place());
  WireConnection busy = Talk(Place(), sHello);
  std::thread sender([&] {
    const std::string sReads(1000, '\2');
    for (int i = 0; i < 2000 && busy.Send(sReads); ++i) Hear(busy, std::chrono::milliseconds(0));
  });
  for (int i = 0; i < 20; ++i) EXPECT_TRUE(Answers());
  sender.join();
}

TEST_F(WireTest, WhatWasSentWholeIsCarriedOutWhenItsSenderHasGone) {
  ServedRig rig(Place());
  for (int i = 0; i < 20; ++i) {
    const std::string sPlace = std::to_string(700 + i);
    { const WireConnection gone = Talk(Place(), sHello + "place " + sPlace + "\n"); }
    EXPECT_TRUE(WaitFor([&] { return rig.Position() == 700 + i; })) << i;
  }
}

TEST_F(WireTest, ManySilentClientsDoNotCostTheOneThatSpeaksItsConnection) {
  const ServedRig rig(Place());
  RigClient library;
  ASSERT_EQ(library.StartAgain(RigAct::AskAdapter), 1);
  std::vector<WireConnection> aSilent;
  for (size_t i = 0; i < 3 * iMostClients; ++i) aSilent.push_back(Talk(Place(), sHello));
  EXPECT_TRUE(Answers());
  EXPECT_EQ(library.Exchange(RigAct::ReadInputs), 0x88);
}

TEST_F(WireTest, TheClientThatWasSilentLongestGoesWhenThereAreTooMany) {
  const ServedRig rig(Place());
  WireConnection first = Talk(Place(), sHello);
  EXPECT_EQ(Hear(first, std::chrono::milliseconds(100)), sHello);
  std::vector<WireConnection> aLater;
  for (size_t i = 0; i < iMostClients; ++i) {
    aLater.push_back(Talk(Place(), sHello));
    char cFirst = 0;
    EXPECT_EQ(aLater.back().Receive(&cFirst, 1), 1u);
  }
  char cByte = 0;
  first.Allow(std::chrono::seconds(5));
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(first.Receive(&cByte, 1), 0u);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4))
      << "it was hung up on";
}

TEST_F(WireTest, ASecondServerIsRefusedAndTheFirstServesOn) {
  const ServedRig rig(Place());
  EXPECT_EQ(Refusal(), "another rig is served at " + Place());
  EXPECT_TRUE(Answers());
}

TEST_F(WireTest, APlaceCanBeTakenAgainWhenItsServerHasGone) {
  { const WireServer server(Place()); }
  EXPECT_EQ(Refusal(), "served");
}

TEST_F(WireTest, TheNameComesFromTheEnvironment) {
  EXPECT_EQ(WireName(), Place());
}

}  // namespace
}  // namespace glidetrak::bench
