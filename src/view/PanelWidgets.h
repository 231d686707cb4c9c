#pragma once

// The kinds that only show something: panels, images, lamps and lines. Each is deaf to what happens
// behind it and lets nothing through to there.

#include <QWidget>

#include "form/Controls.h"

namespace glidetrak {

QWidget* MakePictureBox(PictureBox& box, QWidget* pParent);
QWidget* MakeImage(Image& image, QWidget* pParent);
QWidget* MakeShape(Shape& shape, QWidget* pParent);
QWidget* MakeLine(Line& line, QWidget* pParent);

}  // namespace glidetrak
