// Lever, emergency stop and toggles of the operating panel.

#include <algorithm>

#include "common/CheckedArithmetic.h"
#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "track/AbortProgram.h"
#include "track/InputDecoding.h"
#include "track/OperatingPanel.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

/// Where inside the lever picture its middle is held, in twips.
constexpr float fGrip = 360;

constexpr int iToggleOn = 1;
constexpr int iToggleOff = 2;
constexpr int iEmergencyIdle = 3;
constexpr int iEmergencyPressed = 4;
constexpr int iEmergencyFlash = 5;

/// Phase of the flash; kept from one emergency to the next.
bool bFlashPhase = false;

bool LeverIsFree() {
  return iControlMode == modeManual && !bEmergencyStop;
}

void SetToggle(PictureBox& toggle, bool bOn) {
  toggle.Picture = imgListSwitches.ListImage(bOn ? iToggleOn : iToggleOff);
}

}  // namespace

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

void btnEmergency_MouseDown(int /*iButton*/, float /*fX*/, float /*fY*/) {
  btnEmergency.Picture = imgListSwitches.ListImage(iEmergencyPressed);
  bEmergencyStop = true;
  AbortProgram();
  SetControlStates();
  tmrEmergencyFlash.Enabled = true;
}

void tmrEmergencyFlash_Timer() {
  bFlashPhase = !bFlashPhase;
  btnEmergency.Picture =
      imgListSwitches.ListImage(bFlashPhase ? iEmergencyPressed : iEmergencyFlash);
}

void btnRstStop_Click() {
  tmrEmergencyFlash.Enabled = false;
  btnEmergency.Picture = imgListSwitches.ListImage(iEmergencyIdle);
  bEmergencyStop = false;
  SetControlStates();
}

void picTogTimer_Click() {
  bTimerToggle = !bTimerToggle;
  btnTmrReset.Visible = bTimerToggle;
  SetToggle(picTogTimer, bTimerToggle);
  iTimingEnabled = bTimerToggle ? 1 : 0;
  if (bTimerToggle) ResetJourneyTimer();
}

void btnTmrReset_Click() {
  ResetJourneyTimer();
}

void cmdTimerReset_Click() {
  if (bDebugMode) ResetJourneyTimer();
}

void picTogImpact_Click() {
  bImpactToggle = !bImpactToggle;
  SetToggle(picTogImpact, bImpactToggle);
  if (bImpactToggle) iAnalogEnabled = 1;
}

}  // namespace glidetrak
