#include "shell/Closing.h"

#include "authoring/Document.h"
#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "language/RunControl.h"
#include "platform/Platform.h"
#include "programs/FileMenu.h"
#include "shell/Placement.h"
#include "strings/ResourceText.h"
#include "strings/ShowMessage.h"
#include "track/AbortProgram.h"

namespace glidetrak {

namespace {

bool ConfirmClose() {
  frmGlidetrak.SetFocus();
  return AskYesNo(LoadText(idLeavingApplication) + "\r\n" + LoadText(idSureToContinue),
                  LoadText(idCloseSoftware));
}

/// There is no third way out: No discards the changes and the close goes on.
void OfferToSave() {
  if (!AskSaveChanges(LoadText(idCloseSoftware))) return;
  bSaveBeforeExit = true;
  SaveProgram();
}

/// From here on no hand reaches the panel: a click in the wait of shut-down would drive the rig
/// again behind its zero byte.
void LockForm() {
  frmGlidetrak.Enabled = false;
  SetRunMenus(false);
}

}  // namespace

void Form_QueryUnload(bool& bCancel) {
  if (bShuttingDown) return;
  bSaveBeforeExit = false;
  SkipOnError([] { StopProgram(); });
  const bool bTicking = tmrSystem.Enabled;
  tmrSystem.Enabled = false;
  if (!ConfirmClose()) {
    bCancel = true;
    tmrSystem.Enabled = bTicking;
    return;
  }
  if (bProgramDirty) SkipOnError(OfferToSave);
  SkipOnError(SavePlacement);
}

void Form_Unload() {
  LockForm();
  SkipOnError(ShutDownHardware);
  pMachine->EndProcess();
}

void Form_Suspend() {
  if (!bShuttingDown) AbortProgram();
}

}  // namespace glidetrak
