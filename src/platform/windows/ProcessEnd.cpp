#include "platform/ProcessEnd.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QMetaObject>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <utility>

#include "platform/windows/Api.h"

namespace glidetrak {

namespace {

constexpr DWORD lLongestDeed = 1000;  ///< milliseconds that the deed of a crash may take

/// Milliseconds that an orderly end may take once the console closes; the system waits for 5 s.
constexpr DWORD lLongestEnd = 4000;

/// Bytes of stack that a handler finds left when the crash was one of the stack.
constexpr ULONG lSpareStack = 64 * 1024;

constexpr UINT iAborted = 3;  ///< exit status of a program that gave itself up

EndDeeds endDeeds{};
std::atomic_flag bToldToEnd;
std::atomic_flag bCrashed;
HANDLE crashBegins = nullptr;
HANDLE crashDeedDone = nullptr;

/// Waits for a crash from the first, on a stack of its own, and does the deed of it.
DWORD WINAPI CrashThread(void*) {
  WaitForSingleObject(crashBegins, INFINITE);
  endDeeds.inCrash();
  SetEvent(crashDeedDone);
  return 0;
}

void PrepareForCrash() {
  crashBegins = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  crashDeedDone = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  const HANDLE thread = CreateThread(nullptr, 0, CrashThread, nullptr, 0, nullptr);
  if (thread != nullptr) CloseHandle(thread);
  ULONG lStack = lSpareStack;
  SetThreadStackGuarantee(&lStack);
}

/// Also when several threads crash, and when the deed itself does.
void DoCrashDeed() {
  if (!bCrashed.test_and_set()) SetEvent(crashBegins);
  WaitForSingleObject(crashDeedDone, lLongestDeed);
}

LONG WINAPI OnException(EXCEPTION_POINTERS*) {
  DoCrashDeed();
  return EXCEPTION_CONTINUE_SEARCH;
}

/// The run-time library would show a box of its own and wait for it to be answered.
void OnAbort(int /*iSignal*/) {
  DoCrashDeed();
  TerminateProcess(GetCurrentProcess(), iAborted);
}

void Terminate() {
  if (bToldToEnd.test_and_set()) return;
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [] { endDeeds.terminate(); }, Qt::QueuedConnection);
}

/// Runs in a thread of the system's own. When the console closes the process is ended as soon as
/// this returns, so that it stays as long as the system allows.
BOOL WINAPI OnConsole(DWORD lEvent) {
  Terminate();
  if (lEvent == CTRL_C_EVENT || lEvent == CTRL_BREAK_EVENT) return TRUE;
  Sleep(lLongestEnd);
  DoLastDeed();
  return TRUE;
}

/// The process is ended as soon as it has answered the message that its user's session is over.
class SessionOverFilter : public QAbstractNativeEventFilter {
 public:
  bool nativeEventFilter(const QByteArray&, void* pMessage, qintptr*) override {
    const auto* pTold = static_cast<const MSG*>(pMessage);
    if (pTold->message == WM_ENDSESSION && pTold->wParam != FALSE) DoLastDeed();
    return false;
  }
};

}  // namespace

void WatchProcessEnd(EndDeeds deeds) {
  endDeeds = std::move(deeds);
  PrepareForCrash();
  SetUnhandledExceptionFilter(OnException);
  std::signal(SIGABRT, OnAbort);
  SetConsoleCtrlHandler(OnConsole, TRUE);
  QCoreApplication::instance()->installNativeEventFilter(new SessionOverFilter);
  MoveLastDeedAhead();
}

void MoveLastDeedAhead() {
  std::atexit(DoLastDeed);
}

void DoLastDeed() {
  if (endDeeds.atEnd != nullptr) endDeeds.atEnd();
}

}  // namespace glidetrak
