#pragma once

#include <QString>

#include "platform/Platform.h"

namespace glidetrak {

/// Shows a modal box over the active window and returns the button that closed it.
BoxAnswer ShowMessageBox(const QString& sText, const QString& sTitle, BoxIcon icon,
                         BoxButtons buttons);

}  // namespace glidetrak
