#include <mutex>

#include "bench/EndOnRequest.h"
#include "bench/SystemHandle.h"

namespace glidetrak::bench {

namespace {

std::mutex mutex;
WireServer* pServer =
    nullptr;  ///< under the mutex: the system's events come on threads of their own

void EndServer() {
  const std::lock_guard lock(mutex);
  if (pServer != nullptr) pServer->End();
}

/// Ctrl+C and Ctrl+Break are done with here. Behind the others (the console is closed, the user
/// logs off) the system ends the process as soon as this returns, so it leaves that to the main
/// thread.
BOOL WINAPI TakeEvent(DWORD iEvent) {
  EndServer();
  if (iEvent != CTRL_C_EVENT && iEvent != CTRL_BREAK_EVENT) Sleep(INFINITE);
  return TRUE;
}

void Follow(WireServer* pFollowed) {
  const std::lock_guard lock(mutex);
  pServer = pFollowed;
}

}  // namespace

EndOnRequest::EndOnRequest(WireServer& server) {
  Follow(&server);
  SetConsoleCtrlHandler(TakeEvent, TRUE);
}

/// A second request changes nothing: the handler stays, and has nothing to do.
EndOnRequest::~EndOnRequest() {
  Follow(nullptr);
}

}  // namespace glidetrak::bench
