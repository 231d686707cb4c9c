#include "common/MiscCode.h"

#include "common/CheckedArithmetic.h"
#include "form/frmGlidetrak.h"

namespace glidetrak {

namespace {

void MoveTo(QProperty<float>& place, float fRoom, float fSize) {
  const float fWanted = static_cast<float>(RoundToInt32(double{fRoom - fSize} / 2));
  if (place != fWanted) place = fWanted;
}

}  // namespace

void CentreControl(Control& control) {
  MoveTo(control.Left, frmGlidetrak.ScaleWidth, control.Width);
  MoveTo(control.Top, frmGlidetrak.ScaleHeight, control.Height);
}

}  // namespace glidetrak
