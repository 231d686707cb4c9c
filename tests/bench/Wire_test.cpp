// The wire under clients of every kind.

#include "bench/Wire.h"

#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cstring>
#include <fstream>
#include <optional>
#include <vector>

#include "BenchFolder.h"
#include "bench/FileDescriptor.h"
#include "bench/RigClient.h"

namespace glidetrak::bench {
namespace {

const std::string sHello = Greeting();

class WireTest : public BenchFolder {
 protected:
  /// A socket file that a process has left, which was no bench rig.
  void LeaveForeignSocket() const {
    const FileDescriptor dead(socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, SocketPath().c_str(), SocketPath().size());
    ASSERT_EQ(bind(dead.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  }

  std::string Refusal() const {
    try {
      const WireServer server(SocketPath());
      return "served";
    } catch (const std::runtime_error& failure) {
      return failure.what();
    }
  }

  bool Answers() const { return AskRig(SocketPath(), "state").rfind("position ", 0) == 0; }
};

TEST_F(WireTest, AClientThatSaysNothingKeepsNobodyWaiting) {
  const ServedRig rig(SocketPath());
  const WireConnection silent = Talk(SocketPath(), "");
  EXPECT_TRUE(Answers());
}

TEST_F(WireTest, HalfALineKeepsNobodyWaiting) {
  const ServedRig rig(SocketPath());
  const WireConnection half = Talk(SocketPath(), sHello + "sta");
  EXPECT_TRUE(Answers());
}

TEST_F(WireTest, AMegabyteWithoutAnEndIsHungUpOn) {
  const ServedRig rig(SocketPath());
  WireConnection talker = Talk(SocketPath(), sHello);
  EXPECT_FALSE(talker.Send(std::string(1 << 20, 'x')));
  EXPECT_TRUE(Answers());
  EXPECT_EQ(Hear(talker, std::chrono::milliseconds(5000)),
            sHello + "error: a line has at most 255 characters\n");
}

/// Each answer is some hundred bytes; the ten thousand would be a megabyte in the server's memory.
TEST_F(WireTest, AClientThatNeverReadsIsNotReadAnyMoreEither) {
  const ServedRig rig(SocketPath());
  WireConnection deaf = Talk(SocketPath(), sHello);
  std::string sMany;
  for (int i = 0; i < 500'000; ++i) sMany += "state\n";
  EXPECT_FALSE(deaf.Send(sMany));
  EXPECT_TRUE(Answers());
}

/// Far more than the system holds for a connection.
TEST_F(WireTest, AClientThatReadsLateGetsAllItsAnswers) {
  const ServedRig rig(SocketPath());
  RigClient library;
  for (size_t i = 0; i < iKeptBytes; ++i) library.Exchange(RigAct::WriteByte, 0x18);
  const size_t iLog = AskRig(SocketPath(), "log").size();
  std::string sMany = sHello;
  for (int i = 0; i < 50; ++i) sMany += "log\n";
  WireConnection late = Talk(SocketPath(), sMany);
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
  const ServedRig rig(SocketPath());
  WireConnection busy = Talk(SocketPath(), sHello);
  std::thread sender([&] {
    const std::string sReads(1000, '\2');
    for (int i = 0; i < 2000 && busy.Send(sReads); ++i) Hear(busy, std::chrono::milliseconds(0));
  });
  for (int i = 0; i < 20; ++i) EXPECT_TRUE(Answers());
  sender.join();
}

TEST_F(WireTest, WhatWasSentWholeIsCarriedOutWhenItsSenderHasGone) {
  ServedRig rig(SocketPath());
  for (int i = 0; i < 20; ++i) {
    const std::string sPlace = std::to_string(700 + i);
    { const WireConnection gone = Talk(SocketPath(), sHello + "place " + sPlace + "\n"); }
    EXPECT_TRUE(WaitFor([&] { return rig.Position() == 700 + i; })) << i;
  }
}

TEST_F(WireTest, ManySilentClientsDoNotCostTheOneThatSpeaksItsConnection) {
  const ServedRig rig(SocketPath());
  RigClient library;
  ASSERT_EQ(library.StartAgain(RigAct::AskAdapter), 1);
  std::vector<WireConnection> aSilent;
  for (size_t i = 0; i < 3 * iMostClients; ++i) aSilent.push_back(Talk(SocketPath(), sHello));
  EXPECT_TRUE(Answers());
  EXPECT_EQ(library.Exchange(RigAct::ReadInputs), 0x88);
}

TEST_F(WireTest, TheClientThatWasSilentLongestGoesWhenThereAreTooMany) {
  const ServedRig rig(SocketPath());
  WireConnection first = Talk(SocketPath(), sHello);
  EXPECT_EQ(Hear(first, std::chrono::milliseconds(100)), sHello);
  std::vector<WireConnection> aLater;
  for (size_t i = 0; i < iMostClients; ++i) {
    aLater.push_back(Talk(SocketPath(), sHello));
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

TEST_F(WireTest, TheSocketIsForItsUserAloneFromItsFirstMoment) {
  umask(0);
  const WireServer server(SocketPath());
  struct stat status {};
  ASSERT_EQ(stat(SocketPath().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
}

/// As it would be in a folder where everybody may open the socket.
TEST_F(WireTest, AnotherUserIsNotListenedTo) {
  if (getuid() != 0) GTEST_SKIP() << "only root can become another user";
  const ServedRig rig(SocketPath());
  std::filesystem::permissions(m_folder, std::filesystem::perms::all);
  std::filesystem::permissions(SocketPath(), std::filesystem::perms::all);
  const pid_t process = fork();
  if (process == 0) {
    WireConnection stranger;
    stranger.Allow(std::chrono::seconds(2));
    const bool bStranger = setuid(65534) == 0 && stranger.Connect(SocketPath());
    char cByte = 0;
    stranger.Send(sHello);
    _exit(bStranger && stranger.Receive(&cByte, 1) == 0 ? 0 : 1);
  }
  int iStatus = -1;
  waitpid(process, &iStatus, 0);
  EXPECT_EQ(iStatus, 0);
  EXPECT_TRUE(Answers());
}

TEST_F(WireTest, TheSocketGoesWithItsServer) {
  {
    const WireServer server(SocketPath());
    EXPECT_TRUE(std::filesystem::exists(SocketPath()));
  }
  EXPECT_FALSE(std::filesystem::exists(SocketPath()));
  EXPECT_EQ(Refusal(), "served") << "and can come back";
}

TEST_F(WireTest, ASecondServerIsRefusedAndTheFirstServesOn) {
  const ServedRig rig(SocketPath());
  EXPECT_EQ(Refusal(), "another rig is served at " + SocketPath());
  EXPECT_TRUE(Answers());
}

TEST_F(WireTest, TheSocketOfAKilledServerIsTakenOver) {
  const pid_t process = fork();
  if (process == 0) {
    const WireServer server(SocketPath());
    _exit(0);  // without a destructor
  }
  waitpid(process, nullptr, 0);
  ASSERT_TRUE(std::filesystem::exists(SocketPath()));
  const ServedRig rig(SocketPath());
  EXPECT_TRUE(Answers());
}

TEST_F(WireTest, AForeignSocketIsLeftAloneThoughNobodyListens) {
  ASSERT_NO_FATAL_FAILURE(LeaveForeignSocket());
  EXPECT_EQ(Refusal(), SocketPath() + " is in the way: it was not made by a bench rig");
  EXPECT_TRUE(std::filesystem::exists(SocketPath()));
}

TEST_F(WireTest, AFileInTheSocketsPlaceIsLeftAlone) {
  std::ofstream(SocketPath()) << "a year's work";
  EXPECT_EQ(Refusal(), SocketPath() + " is in the way: it was not made by a bench rig");
  std::string sText;
  std::getline(std::ifstream(SocketPath()), sText);
  EXPECT_EQ(sText, "a year's work");
}

TEST_F(WireTest, AFileInTheLocksPlaceIsLeftAlone) {
  std::ofstream(SocketPath() + ".lock") << "a year's work";
  EXPECT_EQ(Refusal(), SocketPath() + ".lock is in the way: it is no lock of a bench rig");
  std::string sText;
  std::getline(std::ifstream(SocketPath() + ".lock"), sText);
  EXPECT_EQ(sText, "a year's work");
}

TEST_F(WireTest, AFileThatTookTheSocketsPlaceMeanwhileIsLeftAlone) {
  {
    const WireServer server(SocketPath());
    std::filesystem::remove(SocketPath());
    std::ofstream(SocketPath()) << "a year's work";
  }
  EXPECT_TRUE(std::filesystem::exists(SocketPath()));
}

TEST_F(WireTest, APathThatIsTooLongIsRefused) {
  EXPECT_THROW(WireServer(m_folder / std::string(200, 'x')), std::runtime_error);
  EXPECT_TRUE(std::filesystem::is_empty(m_folder));
}

TEST_F(WireTest, AFolderThatIsMissingIsRefused) {
  EXPECT_THROW(WireServer(m_folder / "none" / "rig.socket"), std::runtime_error);
}

TEST_F(WireTest, TheNameComesFromTheEnvironment) {
  EXPECT_EQ(WireName(), SocketPath());
  unsetenv("GLIDETRAK_BENCH_SOCKET");
  setenv("XDG_RUNTIME_DIR", m_folder.c_str(), 1);
  EXPECT_EQ(WireName(), m_folder / "glidetrak-bench.socket");
}

TEST_F(WireTest, WithoutARunTimeFolderThereIsAPrivateOne) {
  unsetenv("GLIDETRAK_BENCH_SOCKET");
  unsetenv("XDG_RUNTIME_DIR");
  const std::filesystem::path path = WireName();
  struct stat status {};
  ASSERT_EQ(stat(path.parent_path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0700u);
  EXPECT_EQ(status.st_uid, getuid());
}

}  // namespace
}  // namespace glidetrak::bench
