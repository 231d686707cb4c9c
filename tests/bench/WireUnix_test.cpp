// The wire as a Unix socket.

#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include "WireFixture.h"
#include "bench/FileDescriptor.h"

namespace glidetrak::bench {
namespace {

const std::string sHello = Greeting();

class WireUnix : public WireTest {
 protected:
  /// A socket file that a process has left, which was no bench rig.
  void LeaveForeignSocket() const {
    const FileDescriptor dead(socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, Place().c_str(), Place().size());
    ASSERT_EQ(bind(dead.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  }

  const std::filesystem::path m_folder = std::filesystem::path(Place()).parent_path();
};

TEST_F(WireUnix, TheSocketIsForItsUserAloneFromItsFirstMoment) {
  umask(0);
  const WireServer server(Place());
  struct stat status {};
  ASSERT_EQ(stat(Place().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
}

/// As it would be in a folder where everybody may open the socket.
TEST_F(WireUnix, AnotherUserIsNotListenedTo) {
  if (getuid() != 0) GTEST_SKIP() << "only root can become another user";
  const ServedRig rig(Place());
  std::filesystem::permissions(m_folder, std::filesystem::perms::all);
  std::filesystem::permissions(Place(), std::filesystem::perms::all);
  const pid_t process = fork();
  if (process == 0) {
    WireConnection stranger;
    stranger.Allow(std::chrono::seconds(2));
    const bool bStranger = setuid(65534) == 0 && stranger.Connect(Place());
    char cByte = 0;
    stranger.Send(sHello);
    _exit(bStranger && stranger.Receive(&cByte, 1) == 0 ? 0 : 1);
  }
  int iStatus = -1;
  waitpid(process, &iStatus, 0);
  EXPECT_EQ(iStatus, 0);
  EXPECT_TRUE(Answers());
}

TEST_F(WireUnix, TheSocketGoesWithItsServer) {
  {
    const WireServer server(Place());
    EXPECT_TRUE(std::filesystem::exists(Place()));
  }
  EXPECT_FALSE(std::filesystem::exists(Place()));
  EXPECT_EQ(Refusal(), "served") << "and can come back";
}

TEST_F(WireUnix, TheSocketOfAKilledServerIsTakenOver) {
  const pid_t process = fork();
  if (process == 0) {
    const WireServer server(Place());
    _exit(0);  // without a destructor
  }
  waitpid(process, nullptr, 0);
  ASSERT_TRUE(std::filesystem::exists(Place()));
  const ServedRig rig(Place());
  EXPECT_TRUE(Answers());
}

TEST_F(WireUnix, AForeignSocketIsLeftAloneThoughNobodyListens) {
  ASSERT_NO_FATAL_FAILURE(LeaveForeignSocket());
  EXPECT_EQ(Refusal(), Place() + " is in the way: it was not made by a bench rig");
  EXPECT_TRUE(std::filesystem::exists(Place()));
}

TEST_F(WireUnix, AFileInTheSocketsPlaceIsLeftAlone) {
  std::ofstream(Place()) << "a year's work";
  EXPECT_EQ(Refusal(), Place() + " is in the way: it was not made by a bench rig");
  std::string sText;
  std::getline(std::ifstream(Place()), sText);
  EXPECT_EQ(sText, "a year's work");
}

TEST_F(WireUnix, AFileInTheLocksPlaceIsLeftAlone) {
  std::ofstream(Place() + ".lock") << "a year's work";
  EXPECT_EQ(Refusal(), Place() + ".lock is in the way: it is no lock of a bench rig");
  std::string sText;
  std::getline(std::ifstream(Place() + ".lock"), sText);
  EXPECT_EQ(sText, "a year's work");
}

TEST_F(WireUnix, AFileThatTookTheSocketsPlaceMeanwhileIsLeftAlone) {
  {
    const WireServer server(Place());
    std::filesystem::remove(Place());
    std::ofstream(Place()) << "a year's work";
  }
  EXPECT_TRUE(std::filesystem::exists(Place()));
}

TEST_F(WireUnix, APathThatIsTooLongIsRefused) {
  EXPECT_THROW(WireServer(m_folder / std::string(200, 'x')), std::runtime_error);
  EXPECT_TRUE(std::filesystem::is_empty(m_folder));
}

TEST_F(WireUnix, AFolderThatIsMissingIsRefused) {
  EXPECT_THROW(WireServer(m_folder / "none" / "rig.socket"), std::runtime_error);
}

TEST_F(WireUnix, TheNameIsInTheRunTimeFolder) {
  unsetenv("GLIDETRAK_BENCH_SOCKET");
  setenv("XDG_RUNTIME_DIR", m_folder.c_str(), 1);
  EXPECT_EQ(WireName(), m_folder / "glidetrak-bench.socket");
}

TEST_F(WireUnix, WithoutARunTimeFolderThereIsAPrivateOne) {
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
