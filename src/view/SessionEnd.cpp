#include "view/SessionEnd.h"

#include <QGuiApplication>
#include <QSessionManager>

namespace glidetrak {

void WatchSessionEnd(QWidget* pWindow) {
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, pWindow,
                   [pWindow](QSessionManager& manager) {
                     if (!manager.allowsInteraction()) return;
                     pWindow->close();  // a Yes ends the process in here
                     manager.cancel();
                   });
}

}  // namespace glidetrak
