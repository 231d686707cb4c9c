#pragma once

#include <QString>

#include "platform/Platform.h"

namespace glidetrak {

/// Shows a modal box over the main window and returns the button that closed it. A box over the top
/// band stands in its middle and does not reach below it, unless the screen has no room above.
BoxAnswer ShowMessageBox(const QString& sText, const QString& sTitle, BoxIcon icon,
                         BoxButtons buttons, BoxPlace place);

}  // namespace glidetrak
