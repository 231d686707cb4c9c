// The bench rig from a shell: serves one until it is told to end (Ctrl+C or a termination signal),
// or speaks to the one that is served. Exit code 0 when done, 1 when no rig answers or none can be
// served, 2 for a command line that means nothing.

#include <csignal>
#include <cstdio>
#include <exception>
#include <string>

#include "bench/DeviceNode.h"
#include "bench/LiveRig.h"
#include "bench/RigClient.h"
#include "bench/RigCommands.h"
#include "bench/RigConversation.h"
#include "bench/UhidDevice.h"

namespace glidetrak::bench {

namespace {

constexpr int iFailed = 1;
constexpr int iUsage = 2;

std::string JoinArguments(int iCount, char** aArguments) {
  std::string sLine;
  for (int i = 1; i < iCount; ++i) sLine.append(i == 1 ? "" : " ").append(aArguments[i]);
  return sLine;
}

int ShowUsage() {
  std::fprintf(stderr, "usage: bench-rig COMMAND\n%s  %s\n  %s\n", RigCommandHelp().c_str(),
               "serve                 be a rig until interrupted",
               "hid                   be one on a USB adapter too (for root)");
  return iUsage;
}

int Command(const std::string& sLine) {
  if (!ParseRigCommand(sLine)) return ShowUsage();
  std::fputs(AskRig(WireName(), sLine).c_str(), stdout);
  return 0;
}

/// While it lives, the signals that end a process end the server. A signal that whoever started us
/// had ignored stays ignored.
class EndBySignals {
 public:
  explicit EndBySignals(WireServer& server) {
    m_pServer = &server;
    for (const int iSignal : {SIGINT, SIGTERM, SIGHUP}) {
      if (std::signal(iSignal, SIG_IGN) != SIG_IGN) std::signal(iSignal, End);
    }
  }
  ~EndBySignals() {
    for (const int iSignal : {SIGINT, SIGTERM, SIGHUP}) std::signal(iSignal, SIG_IGN);
  }

 private:
  static void End(int) { m_pServer->End(); }

  static inline WireServer* m_pServer = nullptr;
};

/// Whoever waits for this line finds the rig there.
void TellPlace(const std::string& sName) {
  std::printf("serving a rig at %s\n", sName.c_str());
  std::fflush(stdout);
}

int Serve() {
  const std::string sName = WireName();
  LiveRig rig;
  WireServer server(sName);
  const EndBySignals signals(server);
  TellPlace(sName);
  ServeRig(rig, server);
  return 0;
}

/// The adapter of the rig is the device.
void FollowAdapter(LiveRig& rig, UhidDevice& device) {
  const bool bWanted = rig.With([](Rig& present) { return present.Attached(); });
  bWanted ? device.Plug() : device.Unplug();
}

int ServeHid() {
  const std::string sName = WireName();
  LiveRig rig;
  WireServer server(sName);
  const EndBySignals signals(server);
  UhidDevice device(rig, {.iUser = NodeUser()});
  device.Plug();
  TellPlace(sName);
  ServeRig(rig, server, [&] { FollowAdapter(rig, device); });
  return 0;
}

int Main(int iCount, char** aArguments) {
  try {
    const std::string sLine = JoinArguments(iCount, aArguments);
    if (sLine == "serve") return Serve();
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
