#pragma once

// The kinds that only show something: panels, images, lamps and lines. Each is deaf to what happens
// behind it and lets nothing through to there.

#include <QWidget>

#include "form/Controls.h"

namespace glidetrak {

/// With a border round it where one is asked for.
QWidget* MakePictureBox(PictureBox& box, bool bBorder, QWidget* pParent);

QWidget* MakeImage(Image& image, QWidget* pParent);
QWidget* MakeShape(Shape& shape, QWidget* pParent);
QWidget* MakeLine(Line& line, QWidget* pParent);

}  // namespace glidetrak
