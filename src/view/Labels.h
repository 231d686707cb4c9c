#pragma once

#include <QLabel>

#include "form/Controls.h"

namespace glidetrak {

/// The widget of a label: plain text that wraps, on what lies behind. Legends of one line keep to
/// their line; a translation too long for its place is drawn smaller, and if that is not enough the
/// widget grows on both sides.
QLabel* MakeLabel(Label& label, const QFont& font, QWidget* pParent);

}  // namespace glidetrak
