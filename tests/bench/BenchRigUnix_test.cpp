// The program bench-rig with what only Unix has: signals, sockets and disks that are full.

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "BenchRigFixture.h"
#include "bench/RigClient.h"

namespace glidetrak::bench {
namespace {

/// For the shell, where the program is $rig.
const std::string sRig = std::string("rig='") + BENCH_RIG + "'; ";

ProgramResult Shell(const std::string& sCommand) {
  return Program("/bin/sh", {"-c", sCommand}).Finish();
}

class BenchRigUnix : public BenchRig {
 protected:
  const std::filesystem::path m_folder = std::filesystem::path(Place()).parent_path();
};

TEST_F(BenchRigUnix, EndsInOrderBySignalAndTakesItsSocketAlong) {
  for (const int iSignal : {SIGTERM, SIGINT, SIGHUP}) {
    Program rig = Serve();
    kill(rig.Id(), iSignal);
    EXPECT_EQ(rig.Finish().iExitCode, 0) << iSignal;
    EXPECT_FALSE(std::filesystem::exists(Place())) << iSignal;
  }
}

TEST_F(BenchRigUnix, AKilledRigLeavesASocketThatIsTakenOver) {
  { const Program killed = Serve(); }
  ASSERT_TRUE(std::filesystem::exists(Place()));
  const Program next = Serve();
  EXPECT_EQ(Run("place 300").iExitCode, 0);
}

TEST_F(BenchRigUnix, ARigOnAUsbAdapterGivesWayToARigThatIsServed) {
  const ServedRig rig(Place());
  const ProgramResult result = Run("hid");
  EXPECT_EQ(result.iExitCode, 1);
  EXPECT_EQ(result.sText, Refusal());
}

TEST_F(BenchRigUnix, ASignalThatWasIgnoredStaysIgnored) {
  const ProgramResult result =
      Shell(sRig +
            "trap '' INT; $rig serve & id=$!; until $rig state >/dev/null 2>&1; do :; done; "
            "kill -INT $id; sleep 0.3; $rig log && echo alive; kill $id; wait $id; echo $?");
  EXPECT_EQ(result.sText, "serving a rig at " + Place() + "\nalive\n0\n");
}

/// The client runs again before the rig does, with its wait interrupted behind its end.
TEST_F(BenchRigUnix, AMachineThatStoodStillCostsNoConnection) {
  const Program rig = Serve();
  const auto Survives = [&] {
    int aReady[2];
    EXPECT_EQ(pipe(aReady), 0);
    const pid_t client = fork();
    if (client == 0) {
      RigClient library;
      const bool bOpen = library.Exchange(RigAct::ReadInputs) == 0x88;
      rig.Stop();
      EXPECT_EQ(write(aReady[1], "", 1), 1);
      _exit(bOpen && library.Exchange(RigAct::ReadInputs) == 0x88 ? 0 : 1);
    }
    char cReady = 0;
    EXPECT_EQ(read(aReady[0], &cReady, 1), 1);
    std::this_thread::sleep_for(std::chrono::milliseconds(3));
    kill(client, SIGSTOP);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    kill(client, SIGCONT);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    rig.GoOn();
    int iStatus = -1;
    waitpid(client, &iStatus, 0);
    close(aReady[0]);
    close(aReady[1]);
    return iStatus == 0;
  };
  EXPECT_TRUE(WaitFor(Survives)) << "a busy machine may need another try";
}

/// A file system of the test's own, so small that the place of the socket takes the last of it.
class FullDisk : public BenchRigUnix {
 protected:
  static ProgramResult OnDisk(const std::string& sOptions, const std::string& sCommands) {
    return Shell(
        "unshare -m sh -c 'd=$(dirname \"$GLIDETRAK_BENCH_SOCKET\")/disk; mkdir \"$d\"; "
        "mount -t tmpfs -o " +
        sOptions +
        " disk \"$d\" || exit 77; "
        "export GLIDETRAK_BENCH_SOCKET=\"$d/s\"; rig=\"" +
        BENCH_RIG + "\"; " + sCommands + "'");
  }
};

TEST_F(FullDisk, RefusesToServeWhereNoSocketCanBeMade) {
  const ProgramResult result = OnDisk("nr_inodes=2", "\"$rig\" serve; echo $?; ls \"$d\"");
  if (result.iExitCode == 77 || getuid() != 0) GTEST_SKIP() << "only root can mount a disk";
  const std::string sPath = m_folder / "disk" / "s";
  EXPECT_EQ(result.sText,
            "bench-rig: cannot serve " + sPath + ": No space left on device\n1\ns.lock\n");
}

TEST_F(FullDisk, RefusesToServeWhereTheSocketCannotBeNotedAndLeavesNone) {
  const ProgramResult result =
      OnDisk("size=4k", "head -c 9999 /dev/zero >\"$d/full\"; \"$rig\" serve; echo $?; ls \"$d\"");
  if (result.iExitCode == 77 || getuid() != 0) GTEST_SKIP() << "only root can mount a disk";
  const std::string sPath = m_folder / "disk" / "s";
  EXPECT_NE(result.sText.find("bench-rig: cannot write " + sPath +
                              ".lock: No space left on device\n1\nfull\ns.lock\n"),
            std::string::npos)
      << result.sText;
}

TEST_F(FullDisk, ARigThatIsServedNeedsNoRoom) {
  const ProgramResult result =
      OnDisk("size=8k",
             "\"$rig\" serve & id=$!; until \"$rig\" state >/dev/null 2>&1; do :; done; head -c "
             "99999 /dev/zero >\"$d/full\" 2>/dev/null; "
             "\"$rig\" place 300; \"$rig\" state | head -n 1; kill $id; wait $id; echo $?");
  if (result.iExitCode == 77 || getuid() != 0) GTEST_SKIP() << "only root can mount a disk";
  const std::string sPath = m_folder / "disk" / "s";
  EXPECT_EQ(result.sText, "serving a rig at " + sPath + "\nposition 300 mm\n0\n");
}

}  // namespace
}  // namespace glidetrak::bench
