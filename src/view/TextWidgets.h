#pragma once

#include <QWidget>

#include "form/ControlTable.h"

namespace glidetrak {

/// The widget of a text box, with one line or several and its scroll bar as the style says.
QWidget* MakeTextBox(TextBox& box, const QFont& font, const Style& style, QWidget* pParent);

}  // namespace glidetrak
