#pragma once

// The station's lengths and colours in the toolkit's terms.

#include <QColor>
#include <QRect>

#include "form/Controls.h"

namespace glidetrak {

constexpr float fTwipsPerPixel = 15;

/// Rounded here and nowhere else: the station's own lengths stay as they were computed.
inline int Pixels(float fTwips) {
  return qRound(fTwips / fTwipsPerPixel);
}

inline float Twips(double fPixels) {
  return static_cast<float>(fPixels) * fTwipsPerPixel;
}

inline QSize SizeOf(const Control& control) {
  return {Pixels(control.Width), Pixels(control.Height)};
}

inline QRect PlaceOf(const Control& control) {
  return {QPoint(Pixels(control.Left), Pixels(control.Top)), SizeOf(control)};
}

inline QColor ColourOf(int lColour) {
  return {lColour & 0xFF, lColour >> 8 & 0xFF, lColour >> 16 & 0xFF};
}

}  // namespace glidetrak
