#pragma once

#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <functional>

namespace glidetrak {

/// Hears from the login manager that the machine is about to sleep, and holds the sleep up until
/// the station has answered. Where there is no system bus or no login manager nothing is heard.
class SleepWatch : public QObject {
  Q_OBJECT

 public:
  SleepWatch(QObject* pParent, std::function<void()> suspend);

 private Q_SLOTS:
  void PrepareForSleep(bool bBegins);

 private:
  void AskForTime();

  std::function<void()> m_suspend;
  QDBusUnixFileDescriptor m_delay;  ///< while it is open the sleep waits; not valid without one
};

}  // namespace glidetrak
