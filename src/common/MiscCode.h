#pragma once

// Small routines on controls that several rooms need.

#include "form/Controls.h"

namespace glidetrak {

/// Assigns the hot picture for a hot target and the rest picture otherwise, and only when the
/// target wears another, so that mouse moves repaint nothing.
template <class Target>
void SetPictureIfChanged(Target& target, bool bHot, PictureId rest, PictureId hot) {
  const PictureId wanted = bHot ? hot : rest;
  if (target.Picture.value() != wanted) target.Picture = wanted;
}

/// Centres the control in the main window's client area, on whole twips.
void CentreControl(Control& control);

}  // namespace glidetrak
