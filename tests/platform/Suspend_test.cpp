// The login manager's word that the machine is about to sleep, on a bus of the test's own.

#include "platform/Suspend.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

namespace glidetrak {
namespace {

const char* const sPath = "/org/freedesktop/login1";
const char* const sInterface = "org.freedesktop.login1.Manager";

template <class Condition>
bool WaitUntil(Condition condition) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < 5000) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    if (condition()) return true;
  }
  return false;
}

/// Gives out delays and knows whether the last one is still held.
class LoginManager : public QDBusVirtualObject {
 public:
  explicit LoginManager(const QString& sAddress)
      : m_bus(QDBusConnection::connectToBus(sAddress, "login manager")) {
    m_bus.registerService("org.freedesktop.login1");
    m_bus.registerVirtualObject(sPath, this);
  }
  ~LoginManager() override { close(m_iHeld); }

  QString introspect(const QString&) const override { return {}; }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (message.member() != "Inhibit") return false;
    m_arguments = message.arguments();
    int aEnds[2];
    EXPECT_EQ(pipe2(aEnds, O_CLOEXEC | O_NONBLOCK), 0);
    m_iHeld = aEnds[0];
    const QDBusUnixFileDescriptor delay(aEnds[1]);
    close(aEnds[1]);
    bus.send(message.createReply(QVariant::fromValue(delay)));
    return true;
  }

  void Announce(bool bSleep) {
    m_bus.send(QDBusMessage::createSignal(sPath, sInterface, "PrepareForSleep") << bSleep);
  }

  /// The arguments of the delay asked for since the last call of this; none when none was.
  QVariantList TakeRequest() { return std::exchange(m_arguments, {}); }

  /// The station has closed its end.
  bool IsDelayGiven() const {
    char c;
    return read(m_iHeld, &c, 1) == 0;
  }

 private:
  QDBusConnection m_bus;
  QVariantList m_arguments;
  int m_iHeld = -1;
};

TEST(Suspend, IsHeardEachTimeAndHeldUpUntilItWasAnswered) {
  int iArguments = 1;
  char name[] = "suspend";
  char* aArguments[] = {name, nullptr};
  QCoreApplication application(iArguments, aArguments);
  const QTemporaryDir folder;
  QProcess bus;
  bus.start("dbus-daemon", {"--session", "--nofork", "--print-address", "--address",
                            "unix:path=" + folder.path() + "/bus"});
  ASSERT_TRUE(bus.waitForReadyRead(5000));
  const QByteArray address = bus.readLine().trimmed();
  qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
  LoginManager manager(QString::fromLatin1(address));

  int iSuspends = 0;
  bool bHeldInside = false;
  OnSuspend([&] {
    ++iSuspends;
    bHeldInside = !manager.IsDelayGiven();
  });
  QVariantList aRequest;
  for (int iSleep = 1; iSleep <= 2; ++iSleep) {
    ASSERT_TRUE(WaitUntil([&] { return !(aRequest = manager.TakeRequest()).isEmpty(); }));
    ASSERT_EQ(aRequest.size(), 4);
    EXPECT_EQ(aRequest[0], "sleep");
    EXPECT_EQ(aRequest[3], "delay");
    WaitUntil([&] { return !manager.IsDelayGiven(); });
    manager.Announce(true);
    EXPECT_TRUE(WaitUntil([&] { return manager.IsDelayGiven(); }));
    EXPECT_EQ(iSuspends, iSleep);
    EXPECT_TRUE(bHeldInside);
    manager.Announce(false);
  }
  bus.terminate();
  bus.waitForFinished();
}

}  // namespace
}  // namespace glidetrak
