// The model track from a shell: shows its state and presses its buttons wherever it runs, or serves
// it as a HID device until it is told to stop. Exit code 0 when done, 1 when no rig answers or the
// device cannot be made, 2 for a command line that means nothing.

#include <csignal>
#include <cstdio>
#include <ctime>
#include <exception>
#include <string>

#include "bench/ControlSocket.h"
#include "bench/RigCommands.h"
#include "bench/UhidDevice.h"

namespace glidetrak::bench {

namespace {

constexpr int iFailed = 1;
constexpr int iUsage = 2;
constexpr long lLeadCheck = 50'000'000;  ///< ns between two looks at the model's lead

std::string JoinArguments(int iCount, char** aArguments) {
  std::string sLine;
  for (int i = 1; i < iCount; ++i) sLine.append(i == 1 ? "" : " ").append(aArguments[i]);
  return sLine;
}

int ShowUsage() {
  std::fprintf(stderr, "usage: bench-rig COMMAND\n%s  hid                   %s\n",
               RigCommandHelp().c_str(), "be a HID device until interrupted");
  return iUsage;
}

int Command(const std::string& sLine) {
  if (!ParseRigCommand(sLine)) return ShowUsage();
  std::fputs(AskRig(ControlSocketPath(), sLine).c_str(), stdout);
  return 0;
}

/// Blocked before any thread starts, so that they are left for sigtimedwait.
sigset_t BlockEndSignals() {
  sigset_t signals{};
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  return signals;
}

/// The lead of the model is the lead of the device.
void FollowLead(LiveRig& rig, UhidDevice& device) {
  const bool bWanted = rig.With([](TrackModel& model) { return model.Plugged(); });
  bWanted ? device.Plug() : device.Unplug();
}

int ServeHid() {
  const sigset_t endSignals = BlockEndSignals();
  LiveRig rig;
  const ControlSocket socket(rig, ControlSocketPath());
  UhidDevice device(rig);
  const timespec pause{0, lLeadCheck};
  do {
    FollowLead(rig, device);
  } while (sigtimedwait(&endSignals, nullptr, &pause) < 0);
  return 0;
}

int Main(int iCount, char** aArguments) {
  try {
    const std::string sLine = JoinArguments(iCount, aArguments);
    return sLine == "hid" ? ServeHid() : Command(sLine);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "bench-rig: %s\n", failure.what());
    return iFailed;
  }
}

}  // namespace

}  // namespace glidetrak::bench

int main(int iCount, char** aArguments) {
  return glidetrak::bench::Main(iCount, aArguments);
}
