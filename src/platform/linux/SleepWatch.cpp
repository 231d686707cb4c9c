#include "platform/linux/SleepWatch.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "platform/Suspend.h"

namespace glidetrak {

namespace {

const char* const sService = "org.freedesktop.login1";
const char* const sPath = "/org/freedesktop/login1";
const char* const sInterface = "org.freedesktop.login1.Manager";

}  // namespace

/// The signal is taken from whoever sends it: to ask who is the login manager would be to wait for
/// an answer. All that a false one can do is to stop the vehicle.
SleepWatch::SleepWatch(QObject* pParent, std::function<void()> suspend)
    : QObject(pParent), m_suspend(std::move(suspend)) {
  QDBusConnection::systemBus().connect(QString(), sPath, sInterface, "PrepareForSleep", this,
                                       SLOT(PrepareForSleep(bool)));
  AskForTime();
}

/// Without a delay of our own the machine may be asleep before the signal is here.
void SleepWatch::AskForTime() {
  QDBusMessage call = QDBusMessage::createMethodCall(sService, sPath, sInterface, "Inhibit");
  call << "sleep"
       << "Glidetrak Control"
       << "The vehicle is stopped first"
       << "delay";
  auto* pReply = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(call), this);
  connect(pReply, &QDBusPendingCallWatcher::finished, this, [this, pReply] {
    const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *pReply;
    if (reply.isValid()) m_delay = reply.value();
    pReply->deleteLater();
  });
}

void SleepWatch::PrepareForSleep(bool bBegins) {
  if (!bBegins) return AskForTime();
  m_suspend();
  m_delay = {};  // closed: the machine may sleep
}

void OnSuspend(std::function<void()> suspend) {
  new SleepWatch(QCoreApplication::instance(), std::move(suspend));
}

}  // namespace glidetrak
