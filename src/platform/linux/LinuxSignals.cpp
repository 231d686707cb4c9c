#include "platform/linux/LinuxSignals.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <utility>

namespace glidetrak {

namespace {

/// A handler may only write; the event loop reads at the other end.
int aSockets[2] = {-1, -1};

void WakeEventLoop(int /*iSignal*/) {
  const char cWake = 1;
  [[maybe_unused]] const ssize_t iWritten = write(aSockets[0], &cWake, sizeof cWake);
}

}  // namespace

void OnTermination(std::function<void()> terminate) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, aSockets) != 0) return;
  auto* pNotifier =
      new QSocketNotifier(aSockets[1], QSocketNotifier::Read, QCoreApplication::instance());
  QObject::connect(pNotifier, &QSocketNotifier::activated, pNotifier,
                   [pNotifier, terminate = std::move(terminate)] {
                     pNotifier->setEnabled(false);
                     terminate();
                   });
  for (const int iSignal : {SIGTERM, SIGHUP, SIGINT}) std::signal(iSignal, WakeEventLoop);
}

}  // namespace glidetrak
