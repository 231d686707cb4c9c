// `bench-rig hid` as a program: the device that it serves, its two plugs, its node, and its end;
// and that the device behind it does not grow.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>
#include <ctime>

#include "HidFile.h"
#include "bench/RigClient.h"

namespace glidetrak::bench {
namespace {

const char* const sSocket = "/tmp/rig.socket";
constexpr uid_t iCaller = 1234;  ///< the user who called sudo

class BenchRigHid : public testing::Test {
 protected:
  BenchRigHid() : m_process(Start()) {}
  ~BenchRigHid() override {
    if (m_process > 0) End();
  }

  static pid_t Start() {
    setenv("GLIDETRAK_BENCH_SOCKET", sSocket, 1);
    setenv("SUDO_UID", std::to_string(iCaller).c_str(), 1);
    const pid_t process = fork();
    if (process != 0) return process;
    execl("/bench-rig", "bench-rig", "hid", nullptr);
    _exit(127);
  }

  /// Asks the program to end; its wait status.
  int End() {
    kill(std::exchange(m_process, 0), SIGTERM);
    int iStatus = -1;
    wait(&iStatus);
    return iStatus;
  }

  pid_t m_process;
};

TEST_F(BenchRigHid, ServesTheModel) {
  ASSERT_TRUE(WaitForDevices(1));
  AskRig(sSocket, "press CITY_CALL 60000");
  HidFile file("/dev/hidraw0");
  ASSERT_TRUE(file.Write({3, 0, 0}));
  ReportBytes answer;
  ASSERT_EQ(file.Read(answer, 5000), 64);
  EXPECT_EQ(answer[2], 0x0A);
}

TEST_F(BenchRigHid, TheAdapterOfTheRigIsTheDevice) {
  ASSERT_TRUE(WaitForDevices(1));
  AskRig(sSocket, "detach");
  EXPECT_TRUE(WaitForDevices(0));
  AskRig(sSocket, "attach");
  EXPECT_TRUE(WaitForDevices(1));
}

TEST_F(BenchRigHid, APulledLeadLeavesTheDeviceAndASilentRig) {
  ASSERT_TRUE(WaitForDevices(1));
  AskRig(sSocket, "unplug");
  HidFile file("/dev/hidraw0");
  ASSERT_TRUE(file.Write({3, 0, 0}));
  ReportBytes answer;
  ASSERT_EQ(file.Read(answer, 5000), 64);
  EXPECT_EQ(answer[2], 0);
}

TEST_F(BenchRigHid, WhatTheDeviceIsToldIsInTheRecord) {
  ASSERT_TRUE(WaitForDevices(1));
  HidFile file("/dev/hidraw0");
  ReportBytes report(19);
  report[0] = 4;
  report[16] = 0x18;
  ASSERT_TRUE(file.Write(report));
  ReportBytes answer;
  ASSERT_EQ(file.Read(answer, 5000), 64);
  EXPECT_NE(AskRig(sSocket, "log").find(" 0x18 power 8 forward\n"), std::string::npos);
}

TEST_F(BenchRigHid, TheNodeIsGivenToWhoCalledSudoEachTimeTheDeviceComes) {
  const auto IsGiven = [] {
    struct stat status {};
    return stat("/dev/hidraw0", &status) == 0 && status.st_uid == iCaller &&
           (status.st_mode & 0777) == 0660;
  };
  EXPECT_TRUE(WaitFor(IsGiven));
  AskRig(sSocket, "detach");
  ASSERT_TRUE(WaitForDevices(0));
  AskRig(sSocket, "attach");
  EXPECT_TRUE(WaitFor(IsGiven));
}

/// Here, since nobody may turn the clock of the machine that tests.
TEST_F(BenchRigHid, AClockThatIsTurnedMovesNothing) {
  ASSERT_TRUE(WaitForDevices(1));
  const auto TurnClock = [](int iDays) {
    timespec time{};
    clock_gettime(CLOCK_REALTIME, &time);
    time.tv_sec += iDays * 24 * 3600;
    return clock_settime(CLOCK_REALTIME, &time) == 0;
  };
  AskRig(sSocket, "press CITY_CALL 60000");
  ASSERT_TRUE(TurnClock(2));
  EXPECT_NE(AskRig(sSocket, "state").find("inputs CITY_CALL LIGHT_SENSOR\n"), std::string::npos);
  ASSERT_TRUE(TurnClock(-2));
  EXPECT_NE(AskRig(sSocket, "state").find("inputs CITY_CALL LIGHT_SENSOR\n"), std::string::npos);
  AskRig(sSocket, "press CITY_CALL 50");
  EXPECT_TRUE(WaitFor([] {
    return AskRig(sSocket, "state").find("inputs LIGHT_SENSOR\n") != std::string::npos;
  })) << "time goes on";
}

TEST_F(BenchRigHid, EndsWhenAskedAndTakesTheDeviceAlong) {
  ASSERT_TRUE(WaitForDevices(1));
  EXPECT_EQ(End(), 0);
  EXPECT_TRUE(WaitForDevices(0));
  EXPECT_THROW(AskRig(sSocket, "state"), std::runtime_error);
}

TEST(UhidDeviceMemory, OnlyTheLastReportsAreKept) {
  LiveRig rig;
  UhidDevice device(rig);
  device.Plug();
  ASSERT_TRUE(WaitForDevices(1));
  HidFile file(ListDevices()[0].sPath);
  ReportBytes answer;
  for (size_t i = 0; i < iKeptReports + 3; ++i) {
    ASSERT_TRUE(file.Write({3, 0, static_cast<std::uint8_t>(i)}));
    ASSERT_EQ(file.Read(answer, 5000), 64);
  }
  const UhidCounts counts = device.Counts();
  EXPECT_EQ(counts.iAnswers, static_cast<int>(iKeptReports) + 3);
  ASSERT_EQ(counts.aReports.size(), iKeptReports);
  EXPECT_EQ(counts.aReports.front()[2], 3);
  EXPECT_EQ(counts.aReports.back()[2], 2) << "258, in a byte";
}

}  // namespace
}  // namespace glidetrak::bench
