// The program bench-rig with what only Windows has.

#include "BenchRigFixture.h"
#include "BenchSystemWindows.h"

namespace glidetrak::bench {
namespace {

TEST_F(BenchRig, ARigOnAUsbAdapterIsNotOfferedHere) {
  const ProgramResult result = Run("hid");
  EXPECT_EQ(result.iExitCode, 1);
  EXPECT_EQ(result.sText, "bench-rig: a rig on a USB adapter is offered on Linux alone\n");
}

TEST_F(BenchRig, EndsInOrderByEveryEventOfItsConsole) {
  for (const DWORD iEvent :
       {CTRL_C_EVENT, CTRL_BREAK_EVENT, CTRL_CLOSE_EVENT, CTRL_LOGOFF_EVENT, CTRL_SHUTDOWN_EVENT}) {
    Program rig = Serve();
    SendConsoleEvent(rig, iEvent);
    ASSERT_TRUE(WaitFor([&] { return rig.HasEnded(); })) << iEvent;
    EXPECT_EQ(rig.Finish().iExitCode, 0) << iEvent;
  }
}

}  // namespace
}  // namespace glidetrak::bench
