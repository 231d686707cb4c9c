#include "track/OutputImage.h"

#include <algorithm>

#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "track/DebugPanel.h"

namespace glidetrak {

namespace {

constexpr qint32 lUpperBits = 240;
constexpr qint32 lDirectionBit = 4;

void SendOutputImage() {
  if (bLinkUp) SkipOnError([] { WriteOutputPort(); });
}

void ShowDirectionOption() {
  optDirection[iDirection].Value = true;
  optDirection[1 - iDirection].Value = false;
}

}  // namespace

void SetPowerChecked(qint16 iLevel) {
  if (iLevel < 0 || iLevel > 15) return;
  if (iLevel == iLastPowerRequest) return;
  SetPower(static_cast<quint16>(iLevel));
}

void SetPower(quint16 iLevel) {
  iPower = iLevel >= 16 ? qint16{0} : static_cast<qint16>(iLevel);
  iLastPowerRequest = static_cast<qint16>(iLevel);
  lOutputImage = (lOutputImage & lUpperBits) | iPower;
  SendOutputImage();
  SetPowerLever(iPower);
  bMotorOn = iPower >= 1;
  if (bDebugMode) lblPowerLevel.Caption = QString::number(iPower);
  RefreshDebugPanel();
}

void SetPowerLever(qint16& iLevel) {
  iLevel = std::clamp(iLevel, qint16{0}, qint16{15});
  if (iLevel == iLeverLevel) return;
  imgLever.Top = static_cast<float>((15 - iLevel) * fLeverStep + fLeverTop);
  iLeverLevel = iLevel;
}

void SetDirection(qint16 iForward) {
  const qint16 iWanted = iForward != 0 ? 1 : 0;
  const bool bChanged = iWanted != iDirection;
  iDirection = iWanted;
  if (bDebugMode) ShowDirectionOption();
  if (bChanged) SetOutputBit(lDirectionBit, iDirection != 0);
}

void SetOutputBit(qint32 lBit, bool bOn) {
  const qint32 lMask = 1 << lBit;
  lOutputImage = bOn ? lOutputImage | lMask : lOutputImage & ~lMask;
  SendOutputImage();
  RefreshDebugPanel();
}

qint16 GetLeverLevel() {
  return iLeverLevel;
}

void ApplyLeverPower() {
  iPower = GetLeverLevel();
  SetPowerChecked(iPower);
}

}  // namespace glidetrak
