#pragma once

#include <QLabel>

#include "form/ControlTable.h"

namespace glidetrak {

/// The widget of a label: plain text on what lies behind, set as the style says. It keeps its own
/// place.
QLabel* MakeLabel(Label& label, const QFont& font, const Style& style, QWidget* pParent);

}  // namespace glidetrak
