#pragma once

#include <QObject>

#include "form/Controls.h"

namespace glidetrak {

/// Drives a Timer control by the system's clock for as long as the owner lives. A firing timer is
/// armed anew before its handler runs, so that it fires again inside a handler that pumps: the tick
/// counts on being called while a tick's own message box is open.
void DriveTimer(QObject* pOwner, const QString& sName, Timer& timer);

}  // namespace glidetrak
