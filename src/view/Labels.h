#pragma once

#include <QLabel>

#include "form/Controls.h"

namespace glidetrak {

/// The widget of a label: plain text that wraps, on what lies behind. It keeps its own place.
/// Legends keep to one line: a translation too long for its place is drawn smaller, and if that is
/// not enough the widget grows on both sides; names grow to the right.
QLabel* MakeLabel(Label& label, const QFont& font, QWidget* pParent);

}  // namespace glidetrak
