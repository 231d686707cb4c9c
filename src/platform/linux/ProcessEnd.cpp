#include "platform/ProcessEnd.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace glidetrak {

namespace {

/// Signals whose default is the process's death; the alarm is among them and so must be able to
/// come inside the handler of each.
constexpr int aKillers[] = {SIGSEGV, SIGBUS,  SIGFPE,    SIGILL,  SIGABRT,   SIGSYS,
                            SIGTRAP, SIGXCPU, SIGUSR1,   SIGUSR2, SIGVTALRM, SIGPROF,
                            SIGIO,   SIGPWR,  SIGSTKFLT, SIGALRM};

constexpr unsigned iLongestDeed = 1;  ///< seconds that the deed of a crash may take

/// What the deed of a crash runs on: a stack of its own, as the crash may be one of the stack.
alignas(16) std::array<char, std::size_t{256} * 1024> aCrashStack;

EndDeeds endDeeds{};

/// A handler may only write; the event loop reads at the other end.
int aSockets[2] = {-1, -1};

/// The signal by which the process is dying; 0 while it lives.
volatile std::sig_atomic_t iDyingOf = 0;

void WakeEventLoop(int /*iSignal*/) {
  const int iError = errno;
  const char cWake = 1;
  [[maybe_unused]] const ssize_t iWritten = write(aSockets[0], &cWake, sizeof cWake);
  errno = iError;
}

[[noreturn]] void DieOf(int iSignal) {
  std::signal(iSignal, SIG_DFL);
  sigset_t one;
  sigemptyset(&one);
  sigaddset(&one, iSignal);
  pthread_sigmask(SIG_UNBLOCK, &one, nullptr);
  raise(iSignal);
  _exit(128 + iSignal);  // only where the system spares the process, as it does its very first one
}

/// Called a second time by the alarm, or when the deed itself crashes: then the first signal is
/// due.
void DoCrashDeed(int iSignal) {
  if (iDyingOf != 0) DieOf(iDyingOf);
  iDyingOf = iSignal;
  alarm(iLongestDeed);
  endDeeds.inCrash();
  alarm(0);
  DieOf(iSignal);
}

void ListenForTermination() {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, aSockets) != 0) return;
  auto* pNotifier =
      new QSocketNotifier(aSockets[1], QSocketNotifier::Read, QCoreApplication::instance());
  QObject::connect(pNotifier, &QSocketNotifier::activated, pNotifier, [pNotifier] {
    pNotifier->setEnabled(false);
    endDeeds.terminate();
  });
  for (const int iSignal : {SIGTERM, SIGHUP, SIGINT, SIGQUIT}) std::signal(iSignal, WakeEventLoop);
}

void HandleKillers() {
  stack_t stack{};
  stack.ss_sp = aCrashStack.data();
  stack.ss_size = aCrashStack.size();
  sigaltstack(&stack, nullptr);
  struct sigaction action {};
  action.sa_handler = DoCrashDeed;
  action.sa_flags = SA_ONSTACK | SA_NODEFER;
  sigemptyset(&action.sa_mask);
  for (const int iSignal : aKillers) sigaction(iSignal, &action, nullptr);
}

}  // namespace

void WatchProcessEnd(EndDeeds deeds) {
  endDeeds = std::move(deeds);
  ListenForTermination();
  HandleKillers();
  for (const int iSignal : {SIGPIPE, SIGXFSZ}) std::signal(iSignal, SIG_IGN);
  MoveLastDeedAhead();
}

void MoveLastDeedAhead() {
  std::atexit(DoLastDeed);
}

void DoLastDeed() {
  if (endDeeds.atEnd != nullptr) endDeeds.atEnd();
}

}  // namespace glidetrak
