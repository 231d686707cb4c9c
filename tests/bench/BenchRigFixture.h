#pragma once

// What the tests of the program bench-rig share.

#include <sstream>
#include <string>

#include "BenchPlace.h"

namespace glidetrak::bench {

class BenchRig : public BenchPlace {
 protected:
  static Program Start(const std::string& sArguments) {
    std::istringstream stream(sArguments);
    std::vector<std::string> aArguments;
    for (std::string sWord; stream >> sWord;) aArguments.push_back(sWord);
    return {BENCH_RIG, aArguments};
  }

  /// To its end, which comes within seconds.
  static ProgramResult Run(const std::string& sArguments) {
    Program program = Start(sArguments);
    if (!WaitFor([&] { return program.HasEnded(); })) program.Kill();
    return program.Finish();
  }

  /// `bench-rig serve`, up to where it can be spoken to.
  Program Serve() const {
    Program rig = Start("serve");
    EXPECT_TRUE(WaitFor([&] { return WireConnection().Connect(Place()); }));
    return rig;
  }

  std::string Refusal() const { return "bench-rig: another rig is served at " + Place() + "\n"; }
};

}  // namespace glidetrak::bench
