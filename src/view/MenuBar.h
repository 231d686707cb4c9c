#pragma once

#include <QMenuBar>

namespace glidetrak {

/// Fills the menu bar from the menu table and wires every entry. The bar has its height from the
/// start, while the captions are still to come, so that the client area does not change with them.
void FillMenuBar(QMenuBar* pBar);

}  // namespace glidetrak
