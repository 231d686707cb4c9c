// The last byte of a station that ends by another road than shut-down, on the real HID stack.

#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <csignal>
#include <cstdlib>

#include "StationHid.h"
#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "platform/ProcessEnd.h"

namespace glidetrak {
namespace {

/// A process that drives the rig and then ends by that road; how it ended, as waitpid tells.
int EndOf(void (*leave)()) {
  const pid_t lChild = fork();
  if (lChild != 0) {
    int iStatus = 0;
    waitpid(lChild, &iStatus, 0);
    return iStatus;
  }
  int iArguments = 1;
  char name[] = "station";
  char* aArguments[] = {name, nullptr};
  const QCoreApplication application(iArguments, aArguments);
  WatchProcessEnd({[] {}, StopRigAtEnd, StopRigInCrash});
  if (!CheckHardware()) _exit(99);
  lOutputImage = 0x1F;
  WriteOutputPort();
  leave();
  _exit(98);
}

class LastByteOnUsb : public StationHid {
 protected:
  /// The bytes of the reports that set the output.
  std::vector<int> Bytes() const {
    std::vector<int> aBytes;
    for (const bench::ReportBytes& report : m_device->Counts().aReports) {
      if (report.at(0) == 4) aBytes.push_back(report.at(16));
    }
    return aBytes;
  }
};

TEST_F(LastByteOnUsb, IsZeroBehindACrash) {
  Plug();
  const int iStatus = EndOf([] { raise(SIGSEGV); });
  EXPECT_TRUE(WIFSIGNALED(iStatus) && WTERMSIG(iStatus) == SIGSEGV) << iStatus;
  EXPECT_TRUE(bench::WaitFor([&] { return Bytes() == std::vector<int>{0x1F, 0}; }));
}

TEST_F(LastByteOnUsb, IsZeroBehindAnExit) {
  Plug();
  const int iStatus = EndOf([] { std::exit(1); });
  EXPECT_TRUE(WIFEXITED(iStatus) && WEXITSTATUS(iStatus) == 1) << iStatus;
  EXPECT_TRUE(bench::WaitFor([&] { return Bytes() == std::vector<int>{0x1F, 0}; }));
}

}  // namespace
}  // namespace glidetrak
