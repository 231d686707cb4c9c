#pragma once

#include <QWidget>

namespace glidetrak {

/// Gives a box its background with text that can be read on it, the same whether the box is active,
/// inactive or disabled, the selection included: a locked editor still shows the line at hand.
void ShowTextColours(QWidget* pWidget, QColor background);

}  // namespace glidetrak
