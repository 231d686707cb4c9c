#pragma once

#include <QWidget>

#include "form/TextBox.h"

namespace glidetrak {

/// The widget of a text box. txtFocusGrab has one line, every other several.
QWidget* MakeTextBox(TextBox& box, const QFont& font, QWidget* pParent);

}  // namespace glidetrak
