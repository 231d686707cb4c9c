#include <csignal>

#include "bench/EndOnRequest.h"

namespace glidetrak::bench {

namespace {

constexpr int aSignals[] = {SIGINT, SIGTERM, SIGHUP};

WireServer* pServer = nullptr;

void End(int) {
  pServer->End();
}

}  // namespace

EndOnRequest::EndOnRequest(WireServer& server) {
  pServer = &server;
  for (const int iSignal : aSignals) {
    if (std::signal(iSignal, SIG_IGN) != SIG_IGN) std::signal(iSignal, End);
  }
}

EndOnRequest::~EndOnRequest() {
  for (const int iSignal : aSignals) std::signal(iSignal, SIG_IGN);
}

}  // namespace glidetrak::bench
