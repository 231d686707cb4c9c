// The program bench-rig as a person at the bench meets it.

#include "BenchFolder.h"
#include "bench/ControlSocket.h"

namespace glidetrak::bench {
namespace {

class BenchRig : public BenchFolder {
 protected:
  static ShellResult Run(const std::string& sArguments) {
    return Shell(std::string("'") + BENCH_RIG + "' " + sArguments);
  }
};

TEST_F(BenchRig, ShowsTheState) {
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  const ShellResult result = Run("state");
  EXPECT_EQ(result.iExitCode, 0);
  EXPECT_EQ(result.sText,
            "position 100 mm\nspeed 0 mm/s\npower 0\ndirection backward\ninputs LIGHT_SENSOR\n"
            "analog 0\nplugged yes\n");
}

TEST_F(BenchRig, ActsSilently) {
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  const ShellResult result = Run("press START_BUTTON 60000");
  EXPECT_EQ(result.iExitCode, 0);
  EXPECT_EQ(result.sText, "");
  EXPECT_EQ(rig.With([](TrackModel& model) { return model.Sensors(); }), 0x09);
}

TEST_F(BenchRig, SaysThatNoRigAnswers) {
  const ShellResult result = Run("state");
  EXPECT_EQ(result.iExitCode, 1);
  EXPECT_EQ(result.sText, "bench-rig: no rig answers at " + SocketPath() + "\n");
}

TEST_F(BenchRig, ShowsItsUsage) {
  for (const char* sArguments : {"", "fly", "press", "place 5000", "hid now"}) {
    const ShellResult result = Run(sArguments);
    EXPECT_EQ(result.iExitCode, 2) << sArguments;
    EXPECT_EQ(result.sText.rfind("usage: bench-rig COMMAND\n", 0), 0u) << sArguments;
  }
}

TEST_F(BenchRig, HidGivesWayToARigThatIsServed) {
  LiveRig rig;
  const ControlSocket socket(rig, SocketPath());
  const ShellResult result = Run("hid");
  EXPECT_EQ(result.iExitCode, 1);
  EXPECT_EQ(result.sText, "bench-rig: another rig serves " + SocketPath() + "\n");
}

}  // namespace
}  // namespace glidetrak::bench
