#pragma once

// What the system has for telling a program to end, turned into the end of its server: on Unix the
// signals, on Windows the events of its console. What whoever started us had ignored stays ignored.

#include "bench/Wire.h"

namespace glidetrak::bench {

/// While it lives. There is one at a time.
class EndOnRequest {
 public:
  explicit EndOnRequest(WireServer& server);
  ~EndOnRequest();
  EndOnRequest(const EndOnRequest&) = delete;
  EndOnRequest& operator=(const EndOnRequest&) = delete;
};

}  // namespace glidetrak::bench
