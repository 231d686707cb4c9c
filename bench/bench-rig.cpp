// The bench rig from a shell: serves one until it is told to end (Ctrl+C, a termination signal or
// the end of its console), or speaks to the one that is served. Exit code 0 when done, 1 when no
// rig answers or none can be served, 2 for a command line that means nothing.

#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "bench/Neighbour.h"
#include "bench/RigClient.h"
#include "bench/RigCommands.h"
#include "bench/RigService.h"

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
  std::fprintf(stderr, "usage: bench-rig COMMAND\n%s  %s\n  %s\n  %s\n", RigCommandHelp().c_str(),
               "serve                 be a rig until interrupted",
               "run PROGRAM [WORD...] be one as long as a program of this folder runs",
               "hid                   be one on a USB adapter too (on Linux, for root)");
  return iUsage;
}

int Command(const std::string& sLine) {
  if (!ParseRigCommand(sLine)) return ShowUsage();
  std::fputs(AskRig(WireName(), sLine).c_str(), stdout);
  return 0;
}

int Serve() {
  RigService().Serve();
  return 0;
}

/// A rig that is served already stays, and is the program's.
std::optional<RigService> ServeUnlessServed() {
  try {
    return std::optional<RigService>(std::in_place);
  } catch (const std::exception&) {
    return {};
  }
}

/// Told to end itself, it is no rig any more and still waits for the program.
int RunBeside(int iCount, char** aArguments) {
  std::optional<RigService> service = ServeUnlessServed();
  Neighbour program(aArguments[2], {aArguments + 3, aArguments + iCount});
  if (!service) return program.Wait();
  int iCode = 0;
  std::thread waiting([&] {
    iCode = program.Wait();
    service->End();
  });
  service->Serve();
  waiting.join();
  return iCode;
}

int ServeHid() {
  RigService::ServeOnHid();
  return 0;
}

int Main(int iCount, char** aArguments) {
  try {
    if (iCount > 2 && std::string(aArguments[1]) == "run") return RunBeside(iCount, aArguments);
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
