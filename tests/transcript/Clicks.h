#pragma once

#include <QString>

namespace glidetrak {

/// A click of the left button in the middle of a control, by name; nothing happens to one that is
/// hidden or disabled, or stands in a container that is.
void ClickControl(const QString& sName);

/// Whether a mouse can reach the control of that name.
bool IsReachable(const QString& sName);

}  // namespace glidetrak
