#include "bench/RigService.h"

#include <cstdio>

#include "bench/RigConversation.h"

namespace glidetrak::bench {

void RigService::Serve(const std::function<void()>& afterCommand) {
  // Whoever waits for this line finds the rig there.
  std::printf("serving a rig at %s\n", m_sName.c_str());
  std::fflush(stdout);
  ServeRig(m_rig, m_server, afterCommand);
}

}  // namespace glidetrak::bench
