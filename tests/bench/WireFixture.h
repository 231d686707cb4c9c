#pragma once

// What the tests of the wire share.

#include <stdexcept>
#include <string>

#include "BenchPlace.h"
#include "bench/RigClient.h"

namespace glidetrak::bench {

class WireTest : public BenchPlace {
 protected:
  std::string Refusal() const {
    try {
      const WireServer server(Place());
      return "served";
    } catch (const std::runtime_error& failure) {
      return failure.what();
    }
  }

  bool Answers() const { return AskRig(Place(), "state").rfind("position ", 0) == 0; }
};

}  // namespace glidetrak::bench
