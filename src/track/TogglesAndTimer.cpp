#include "track/TogglesAndTimer.h"

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "track/InputDecoding.h"

namespace glidetrak {

namespace {

constexpr int iToggleOn = 1;
constexpr int iToggleOff = 2;

void SetToggle(PictureBox& toggle, bool bOn) {
  toggle.Picture = imgListSwitches.ListImage(bOn ? iToggleOn : iToggleOff);
}

}  // namespace

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
