// The program bench-rig as a person at the bench meets it.

#include <spawn.h>

#include <csignal>
#include <fstream>
#include <vector>

#include "BenchFolder.h"
#include "bench/RigClient.h"

namespace glidetrak::bench {
namespace {

/// For the shell, where the program is $rig.
const std::string sRig = std::string("rig='") + BENCH_RIG + "'; ";

/// `bench-rig serve`, up to where it can be spoken to.
class RigProcess {
 public:
  explicit RigProcess(const std::string& sPath) {
    char* aArguments[] = {const_cast<char*>("bench-rig"), const_cast<char*>("serve"), nullptr};
    posix_spawn(&m_process, BENCH_RIG, nullptr, nullptr, aArguments, environ);
    EXPECT_TRUE(WaitFor([&] { return WireConnection().Connect(sPath); }));
  }
  ~RigProcess() { End(SIGKILL); }
  RigProcess(const RigProcess&) = delete;
  RigProcess& operator=(const RigProcess&) = delete;

  void Signal(int iSignal) const { kill(m_process, iSignal); }

  /// Its wait status.
  int End(int iSignal) {
    if (m_process == 0) return -1;
    Signal(iSignal);
    int iStatus = -1;
    waitpid(std::exchange(m_process, 0), &iStatus, 0);
    return iStatus;
  }

 private:
  pid_t m_process = 0;
};

class BenchRig : public BenchFolder {
 protected:
  static ShellResult Run(const std::string& sArguments) {
    return Shell(std::string("'") + BENCH_RIG + "' " + sArguments);
  }

  std::string Refusal() const {
    return "bench-rig: another rig is served at " + SocketPath() + "\n";
  }
};

TEST_F(BenchRig, ShowsTheState) {
  const RigProcess rig(SocketPath());
  const ShellResult result = Run("state");
  EXPECT_EQ(result.iExitCode, 0);
  EXPECT_EQ(result.sText,
            "position 100 mm\nspeed 0 mm/s\npower 0\ndirection backward\ninputs LIGHT_SENSOR\n"
            "analog 0\nplugged yes\nattached yes\n");
}

TEST_F(BenchRig, ActsSilently) {
  ServedRig rig(SocketPath());
  const ShellResult result = Run("press START_BUTTON 60000");
  EXPECT_EQ(result.iExitCode, 0);
  EXPECT_EQ(result.sText, "");
  EXPECT_EQ(rig.Sensors(), 0x09);
}

TEST_F(BenchRig, SaysThatNoRigAnswers) {
  const ShellResult result = Run("state");
  EXPECT_EQ(result.iExitCode, 1);
  EXPECT_EQ(result.sText, "bench-rig: no rig answers at " + SocketPath() + "\n");
}

TEST_F(BenchRig, ShowsItsUsage) {
  for (const char* sArguments : {"", "fly", "press", "place 5000", "hid now", "serve it"}) {
    const ShellResult result = Run(sArguments);
    EXPECT_EQ(result.iExitCode, 2) << sArguments;
    EXPECT_EQ(result.sText.rfind("usage: bench-rig COMMAND\n", 0), 0u) << sArguments;
  }
}

TEST_F(BenchRig, GivesWayToARigThatIsServed) {
  const ServedRig rig(SocketPath());
  for (const char* sForm : {"serve", "hid"}) {
    const ShellResult result = Run(sForm);
    EXPECT_EQ(result.iExitCode, 1) << sForm;
    EXPECT_EQ(result.sText, Refusal()) << sForm;
  }
}

TEST_F(BenchRig, SaysWhereItServesOnceItDoes) {
  const ShellResult result = Shell(std::string("timeout -s TERM 1 '") + BENCH_RIG + "' serve");
  EXPECT_EQ(result.sText, "serving a rig at " + SocketPath() + "\n");
}

TEST_F(BenchRig, EndsInOrderBySignalAndTakesItsSocketAlong) {
  for (const int iSignal : {SIGTERM, SIGINT, SIGHUP}) {
    RigProcess rig(SocketPath());
    EXPECT_EQ(rig.End(iSignal), 0) << iSignal;
    EXPECT_FALSE(std::filesystem::exists(SocketPath())) << iSignal;
  }
}

TEST_F(BenchRig, ASignalThatWasIgnoredStaysIgnored) {
  const ShellResult result =
      Shell(sRig +
            "trap '' INT; $rig serve & id=$!; until $rig state >/dev/null 2>&1; do :; done; "
            "kill -INT $id; sleep 0.3; $rig log && echo alive; kill $id; wait $id; echo $?");
  EXPECT_EQ(result.sText, "serving a rig at " + SocketPath() + "\nalive\n0\n");
}

TEST_F(BenchRig, StartersAtOnceEndAsOneRigAndOneMessageEach) {
  const ShellResult result =
      Shell(sRig + "cd '" + m_folder.string() +
            "'; for i in 1 2 3 4 5 6 7 8; do "
            "($rig serve & echo $! >>ids; wait $!; echo >>ended) & done; "
            "until [ \"$(cat ended 2>/dev/null | wc -l)\" = 7 ]; do sleep 0.1; done; "
            "kill $(cat ids) 2>/dev/null; wait");
  std::string sRest = result.sText;
  const auto Remove = [&](const std::string& sLine) {
    int iCount = 0;
    for (size_t i = 0; (i = sRest.find(sLine)) != std::string::npos; ++iCount) {
      sRest.erase(i, sLine.size());
    }
    return iCount;
  };
  EXPECT_EQ(Remove("serving a rig at " + SocketPath() + "\n"), 1);
  EXPECT_EQ(Remove(Refusal()), 7);
  EXPECT_EQ(sRest, "");
}

TEST_F(BenchRig, AKilledRigLeavesItsPlaceToTheNext) {
  { RigProcess killed(SocketPath()); }
  ASSERT_TRUE(std::filesystem::exists(SocketPath()));
  const RigProcess next(SocketPath());
  EXPECT_EQ(Run("place 300").iExitCode, 0);
}

/// Long enough for the tenth command to hang where connecting has no limit.
TEST_F(BenchRig, AStoppedRigIsToldByEveryCommandAndGoesOnWhenItIsContinued) {
  const RigProcess rig(SocketPath());
  rig.Signal(SIGSTOP);
  std::string sMany;
  for (int i = 0; i < 30; ++i) sMany += "'" + std::string(BENCH_RIG) + "' state & ";
  const ShellResult result = Shell(sMany + "wait");
  const std::string sWord = "bench-rig: ";
  int iTold = 0;
  for (size_t i = 0; (i = result.sText.find(sWord, i)) != std::string::npos; ++i) ++iTold;
  EXPECT_EQ(iTold, 30) << result.sText;
  const ShellResult second = Run("serve");
  EXPECT_EQ(second.sText, Refusal()) << "it is stopped, and there";
  rig.Signal(SIGCONT);
  EXPECT_TRUE(WaitFor([&] { return Run("place 300").iExitCode == 0; }));
}

TEST_F(BenchRig, TheVehicleMovesOnWhileItsRigIsStopped) {
  const RigProcess rig(SocketPath());
  RigClient client;
  ASSERT_EQ(client.Exchange(RigAct::WriteByte, 0x1F), 0);
  rig.Signal(SIGSTOP);
  std::this_thread::sleep_for(std::chrono::milliseconds(1500));
  rig.Signal(SIGCONT);
  int iPosition = 0;
  ASSERT_EQ(std::sscanf(AskRig(SocketPath(), "state").c_str(), "position %d", &iPosition), 1);
  EXPECT_GT(iPosition, 400) << "1.5 s of full power";
}

TEST_F(BenchRig, AByteThatOnlyTheWireHeldIsNeverCarriedOutBehindALaterOne) {
  const RigProcess rig(SocketPath());
  RigClient client;
  ASSERT_EQ(client.StartAgain(RigAct::AskAdapter), 1);
  rig.Signal(SIGSTOP);
  EXPECT_EQ(client.Exchange(RigAct::WriteByte, 0x1F), std::nullopt);
  rig.Signal(SIGCONT);
  ASSERT_TRUE(WaitFor([&] { return client.StartAgain(RigAct::AskAdapter) == 1; }));
  ASSERT_EQ(client.Exchange(RigAct::WriteByte, 0), 0);
  const std::string sLog = AskRig(SocketPath(), "log");
  EXPECT_NE(sLog.find(" 0x1F power 15 forward\n2: "), std::string::npos) << sLog;
  EXPECT_NE(sLog.find(" 0x00 power 0 backward\n"), std::string::npos) << sLog;
}

/// The client runs again before the rig does, with its wait interrupted behind its end.
TEST_F(BenchRig, AMachineThatStoodStillCostsNoConnection) {
  const RigProcess rig(SocketPath());
  const auto Survives = [&] {
    int aReady[2];
    EXPECT_EQ(pipe(aReady), 0);
    const pid_t client = fork();
    if (client == 0) {
      RigClient library;
      const bool bOpen = library.Exchange(RigAct::ReadInputs) == 0x88;
      rig.Signal(SIGSTOP);
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
    rig.Signal(SIGCONT);
    int iStatus = -1;
    waitpid(client, &iStatus, 0);
    close(aReady[0]);
    close(aReady[1]);
    return iStatus == 0;
  };
  EXPECT_TRUE(WaitFor(Survives)) << "a busy machine may need another try";
}

/// A file system of the test's own, so small that the place of the socket takes the last of it.
class FullDisk : public BenchRig {
 protected:
  static ShellResult OnDisk(const std::string& sOptions, const std::string& sCommands) {
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
  const ShellResult result = OnDisk("nr_inodes=2", "\"$rig\" serve; echo $?; ls \"$d\"");
  if (result.iExitCode == 77 || getuid() != 0) GTEST_SKIP() << "only root can mount a disk";
  const std::string sPath = m_folder / "disk" / "s";
  EXPECT_EQ(result.sText,
            "bench-rig: cannot serve " + sPath + ": No space left on device\n1\ns.lock\n");
}

TEST_F(FullDisk, RefusesToServeWhereTheSocketCannotBeNotedAndLeavesNone) {
  const ShellResult result =
      OnDisk("size=4k", "head -c 9999 /dev/zero >\"$d/full\"; \"$rig\" serve; echo $?; ls \"$d\"");
  if (result.iExitCode == 77 || getuid() != 0) GTEST_SKIP() << "only root can mount a disk";
  const std::string sPath = m_folder / "disk" / "s";
  EXPECT_NE(result.sText.find("bench-rig: cannot write " + sPath +
                              ".lock: No space left on device\n1\nfull\ns.lock\n"),
            std::string::npos)
      << result.sText;
}

TEST_F(FullDisk, ARigThatIsServedNeedsNoRoom) {
  const ShellResult result =
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
