// `bench-rig hid` as a program: the device that it serves, its lead, and its end.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>

#include "HidFile.h"
#include "bench/RigClient.h"

namespace glidetrak::bench {
namespace {

const char* const sSocket = "/tmp/rig.socket";

class BenchRigHid : public testing::Test {
 protected:
  BenchRigHid() : m_process(Start()) {}
  ~BenchRigHid() override {
    if (m_process > 0) End();
  }

  static pid_t Start() {
    setenv("GLIDETRAK_BENCH_SOCKET", sSocket, 1);
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

TEST_F(BenchRigHid, LeadOfTheModelIsTheLeadOfTheDevice) {
  ASSERT_TRUE(WaitForDevices(1));
  AskRig(sSocket, "unplug");
  EXPECT_TRUE(WaitForDevices(0));
  AskRig(sSocket, "plug");
  EXPECT_TRUE(WaitForDevices(1));
}

TEST_F(BenchRigHid, EndsWhenAskedAndTakesTheDeviceAlong) {
  ASSERT_TRUE(WaitForDevices(1));
  EXPECT_EQ(End(), 0);
  EXPECT_TRUE(WaitForDevices(0));
  EXPECT_THROW(AskRig(sSocket, "state"), std::runtime_error);
}

}  // namespace
}  // namespace glidetrak::bench
