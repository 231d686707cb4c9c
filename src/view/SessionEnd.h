#pragma once

#include <QWidget>

namespace glidetrak {

/// A log-out of which the desktop's session manager tells is a close of the window like any other,
/// with its questions; a No refuses the log-out. One that allows no questions is left to end the
/// process by its other means.
void WatchSessionEnd(QWidget* pWindow);

}  // namespace glidetrak
