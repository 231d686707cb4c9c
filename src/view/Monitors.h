#pragma once

#include <QRect>

#include "platform/Platform.h"

namespace glidetrak {

/// The whole of the screen that shows most of that rectangle, else of the one nearest to it. Empty
/// when there is no screen at all.
QRect NearestScreen(const QRect& window);

/// Nothing for an empty rectangle.
std::optional<PixelRect> RectOf(const QRect& rect);

/// Writes the primary screen's size into the form's own record.
void TellScreenSize();

}  // namespace glidetrak
