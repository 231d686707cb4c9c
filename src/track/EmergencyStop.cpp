#include "track/EmergencyStop.h"

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "track/AbortProgram.h"
#include "track/ModeAndDirection.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

constexpr int iEmergencyIdle = 3;
constexpr int iEmergencyPressed = 4;
constexpr int iEmergencyFlash = 5;

/// Phase of the flash; kept from one emergency to the next.
bool bFlashPhase = false;

}  // namespace

void btnEmergency_MouseDown(int /*iButton*/, float /*fX*/, float /*fY*/) {
  btnEmergency.Picture = imgListSwitches.ListImage(iEmergencyPressed);
  bEmergencyStop = true;
  AbortProgram();
  SetControlStates();
  tmrEmergencyFlash.Enabled = true;
  Q_ASSERT(iPower == 0 && !bProgramRunning && imgLever.MousePointer == ptrNoDrop);
}

void tmrEmergencyFlash_Timer() {
  Q_ASSERT(bEmergencyStop);
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

}  // namespace glidetrak
