#pragma once

#include <QWidget>

#include "form/Controls.h"

namespace glidetrak {

/// The displays of the debug panel: they show their values and take neither mouse nor keys.
QWidget* MakeOptionButton(OptionButton& button, const QFont& font, QWidget* pParent);
QWidget* MakeCheckBox(CheckBox& box, const QFont& font, QWidget* pParent);

}  // namespace glidetrak
