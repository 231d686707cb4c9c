#include "track/Lever.h"

#include <algorithm>

#include "common/CheckedArithmetic.h"
#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

/// Where inside the lever picture its middle is held, in twips.
constexpr float fGrip = 360;

bool LeverIsFree() {
  return iControlMode == modeManual && !bEmergencyStop;
}

}  // namespace

void ShowLeverPointer() {
  const int iWanted = LeverIsFree() ? ptrCustom : ptrNoDrop;
  if (imgLever.MousePointer != iWanted) imgLever.MousePointer = iWanted;
}

void imgLever_MouseDown(int iButton, float /*fX*/, float /*fY*/) {
  if (iButton == mouseLeft && LeverIsFree()) imgLever.MousePointer = ptrNorthSouth;
}

void imgLever_MouseMove(int iButton, float /*fX*/, float fY) {
  if (iButton != mouseLeft || !LeverIsFree()) return;
  const float fTop = std::clamp(imgLever.Top + fY - fGrip, fLeverTop, fLeverBottom);
  imgLever.Top = fTop;
  iLeverLevel = static_cast<qint16>(15 - RoundToInt16((double{fTop} - fLeverTop) / fLeverStep));
}

void imgLever_MouseUp(int /*iButton*/, float /*fX*/, float /*fY*/) {
  imgLever.MousePointer = iControlMode == modeManual ? ptrCustom : ptrNoDrop;
}

}  // namespace glidetrak
