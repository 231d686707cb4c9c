#pragma once

// The pictures of the two forms, drawn at the size at which they are shown.

#include <QPixmap>

#include "form/Pictures.h"

namespace glidetrak {

enum class Fit {
  Stretch,          ///< fills the size
  KeepProportions,  ///< the largest that fits, centred
};

/// The picture at a size in logical pixels, sharp on a screen of that pixel ratio. Null for None
/// and for an empty size. Drawn once for each picture and size, then kept.
QPixmap PictureAt(PictureId picture, QSize size, qreal fPixelRatio, Fit fit);

}  // namespace glidetrak
