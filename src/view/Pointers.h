#pragma once

#include <QWidget>

#include "form/Controls.h"

namespace glidetrak {

/// Keeps the mouse pointer over the widget in line with the control's MousePointer and MouseIcon.
/// With the default pointer a widget shows what it showed before.
void ObservePointer(QWidget* pWidget, Control& control);

/// Keeps the screen's pointer: any but the default overrides those of all controls. Watched for as
/// long as the owner lives.
void ObserveScreenPointer(QObject* pOwner);

}  // namespace glidetrak
