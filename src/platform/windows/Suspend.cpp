#include "platform/Suspend.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <utility>

#include "platform/windows/Api.h"

namespace glidetrak {

namespace {

/// Every window of the process is told, so that `suspend` is called more than once for one sleep;
/// stopping what stands already does nothing.
class SuspendFilter : public QAbstractNativeEventFilter {
 public:
  explicit SuspendFilter(std::function<void()> suspend) : m_suspend(std::move(suspend)) {}

  bool nativeEventFilter(const QByteArray&, void* pMessage, qintptr*) override {
    const auto* pTold = static_cast<const MSG*>(pMessage);
    if (pTold->message == WM_POWERBROADCAST && pTold->wParam == PBT_APMSUSPEND) m_suspend();
    return false;
  }

 private:
  std::function<void()> m_suspend;
};

}  // namespace

void OnSuspend(std::function<void()> suspend) {
  QCoreApplication::instance()->installNativeEventFilter(new SuspendFilter(std::move(suspend)));
}

}  // namespace glidetrak
