#include "view/Timers.h"

#include <QTimer>

#include "view/Fire.h"
#include "view/Observe.h"

namespace glidetrak {

namespace {

void Arm(QTimer* pClock, const Timer& timer) {
  if (timer.Enabled && timer.Interval > 0) {
    pClock->start(timer.Interval);
  } else {
    pClock->stop();
  }
}

}  // namespace

/// A repeating QTimer would not do: it does not fire inside its own handler.
void DriveTimer(QObject* pOwner, const QString& sName, Timer& timer) {
  auto* pClock = new QTimer(pOwner);
  pClock->setObjectName(sName);
  pClock->setTimerType(Qt::PreciseTimer);
  pClock->setSingleShot(true);
  QObject::connect(pClock, &QTimer::timeout, pClock, [pClock, &timer] {
    Arm(pClock, timer);
    Fire(timer.Fired);
  });
  const auto arm = [pClock, &timer] { Arm(pClock, timer); };
  Observe(pClock, timer.Enabled, arm);
  ObserveChanges(pClock, timer.Interval, arm);
}

}  // namespace glidetrak
