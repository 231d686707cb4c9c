#include "bench/ControlSocket.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cstring>
#include <optional>

#include "BenchFolder.h"

namespace glidetrak::bench {
namespace {

using ControlSocketTest = BenchFolder;

std::string FailureOf(const std::string& sPath, const std::string& sLine) {
  try {
    return "answer: " + AskRig(sPath, sLine);
  } catch (const std::runtime_error& failure) {
    return failure.what();
  }
}

/// A connection that sends what it is given and keeps it open.
FileDescriptor Talk(const std::string& sPath, const std::string& sText) {
  FileDescriptor file(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, sPath.c_str(), sPath.size());
  EXPECT_EQ(connect(file.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(send(file.Number(), sText.data(), sText.size(), 0), static_cast<ssize_t>(sText.size()));
  return file;
}

TEST_F(ControlSocketTest, CommandsReachTheModel) {
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  EXPECT_EQ(AskRig(SocketPath(), "place 1000"), "");
  EXPECT_EQ(AskRig(SocketPath(), "state").rfind("position 1000 mm\n", 0), 0u);
  EXPECT_EQ(rig.With([](TrackModel& model) { return model.Position(); }), 1000);
}

TEST_F(ControlSocketTest, TheModelMovesInRealTime) {
  LiveRig rig;
  rig.With([](TrackModel& model) { return model.SetOutput(0x1F); });
  EXPECT_TRUE(WaitFor(
      [&] { return rig.With([](TrackModel& model) { return model.Position() > fCityStation; }); }));
}

TEST_F(ControlSocketTest, RefusesWhatIsNoCommand) {
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  EXPECT_EQ(FailureOf(SocketPath(), "fly"), "the rig refused: no such command");
  EXPECT_EQ(FailureOf(SocketPath(), ""), "the rig refused: no such command");
  EXPECT_EQ(FailureOf(SocketPath(), std::string(255, ' ') + "state"),
            "the rig refused: no such command");
}

TEST_F(ControlSocketTest, LongestLineIsUnderstood) {
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  EXPECT_NE(AskRig(SocketPath(), std::string(250, ' ') + "state"), "");
}

TEST_F(ControlSocketTest, NobodyAnswers) {
  EXPECT_EQ(FailureOf(SocketPath(), "state"), "no rig answers at " + SocketPath());
}

TEST_F(ControlSocketTest, SocketGoesWithItsOwner) {
  LiveRig rig;
  std::optional<ControlSocket> socket;
  socket.emplace(rig, SocketPath());
  EXPECT_TRUE(std::filesystem::exists(SocketPath()));
  socket.reset();
  EXPECT_FALSE(std::filesystem::exists(SocketPath()));
}

TEST_F(ControlSocketTest, SocketIsForItsUserAlone) {
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  struct stat status {};
  ASSERT_EQ(stat(SocketPath().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(ControlSocketTest, SecondHolderGetsNoSocketAndTheFirstKeepsIts) {
  LiveRig first;
  LiveRig second;
  const ControlSocket socket(first, SocketPath());
  EXPECT_THROW(ControlSocket(second, SocketPath()), std::runtime_error);
  AskRig(SocketPath(), "place 700");
  EXPECT_EQ(first.With([](TrackModel& model) { return model.Position(); }), 700);
}

TEST_F(ControlSocketTest, SocketOfADeadProcessIsTakenOver) {
  {
    const FileDescriptor dead(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, SocketPath().c_str(), SocketPath().size());
    ASSERT_EQ(bind(dead.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  }
  ASSERT_TRUE(std::filesystem::exists(SocketPath()));
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  EXPECT_NE(AskRig(SocketPath(), "state"), "");
}

TEST_F(ControlSocketTest, ClientThatSaysNothingDoesNotStopTheNext) {
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  const FileDescriptor silent = Talk(SocketPath(), "");
  FailureOf(SocketPath(), "state");  // may give up in the moment in which its turn comes
  EXPECT_EQ(FailureOf(SocketPath(), "state").rfind("answer: ", 0), 0u);
}

TEST_F(ControlSocketTest, ClientThatHangsUpEarlyDoesNoHarm) {
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  for (int i = 0; i < 20; ++i) Talk(SocketPath(), "state\n");
  EXPECT_NE(AskRig(SocketPath(), "state"), "");
}

TEST_F(ControlSocketTest, PathThatIsTooLongIsRefused) {
  LiveRig rig;
  EXPECT_THROW(ControlSocket(rig, m_folder / std::string(200, 'x')), std::runtime_error);
}

TEST_F(ControlSocketTest, FolderThatIsMissingIsRefused) {
  LiveRig rig;
  EXPECT_THROW(ControlSocket(rig, m_folder / "none" / "rig.socket"), std::system_error);
}

TEST_F(ControlSocketTest, PathComesFromTheEnvironment) {
  EXPECT_EQ(ControlSocketPath(), SocketPath());
  unsetenv("GLIDETRAK_BENCH_SOCKET");
  setenv("XDG_RUNTIME_DIR", m_folder.c_str(), 1);
  EXPECT_EQ(ControlSocketPath(), m_folder / "glidetrak-bench.socket");
}

TEST_F(ControlSocketTest, WithoutARunTimeFolderThereIsAPrivateOne) {
  unsetenv("GLIDETRAK_BENCH_SOCKET");
  unsetenv("XDG_RUNTIME_DIR");
  const std::filesystem::path path = ControlSocketPath();
  struct stat status {};
  ASSERT_EQ(stat(path.parent_path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0700u);
  EXPECT_EQ(status.st_uid, getuid());
}

}  // namespace
}  // namespace glidetrak::bench
