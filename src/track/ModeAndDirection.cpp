#include "track/ModeAndDirection.h"

#include "common/MiscCode.h"
#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "track/Lever.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

bool InProgramMode() {
  return iControlMode == modeProgram;
}

/// The picture of a mode or direction button: that of the state in force, or of the other.
void ShowChosen(ImageButton& button, bool bChosen) {
  SetPictureIfChanged(button, bChosen, imgDefBtnWF.Picture, imgDefBtn.Picture);
}

void ShowDirection() {
  const bool bForward = iDirection == 1;
  ShowChosen(cmdForward, bForward);
  ShowChosen(cmdBackward, !bForward);
  cmdForward.ForeColor = InProgramMode() ? lGrey : bForward ? lChosenYellow : lWhite;
  cmdBackward.ForeColor = InProgramMode() ? lGrey : bForward ? lWhite : lChosenYellow;
}

void ShowMode() {
  ShowChosen(cmdProgram, InProgramMode());
  cmdProgram.ForeColor = InProgramMode() ? lChosenYellow : lWhite;
  ShowChosen(cmdManual, !InProgramMode());
  cmdManual.ForeColor = InProgramMode() ? lWhite : lChosenYellow;
  lblControlTitle.ForeColor = InProgramMode() ? lWhite : lGrey;
}

void ShowProgramBox() {
  if (pnlProgramBox.Visible != InProgramMode()) SetPower(0);
  pnlProgramBox.Visible = InProgramMode();
  const PictureId wanted = imgPanels.ListImage(InProgramMode() ? 2 : 1);
  if (imgControls.Picture.value() != wanted) imgControls.Picture = wanted;
}

void ShowHover(ImageButton& button, bool bMayHover) {
  if (bButtonHover || !bMayHover) return;
  SetPictureIfChanged(button, true, imgDefBtn.Picture, imgDiagBtnWF.Picture);
  bButtonHover = true;
}

bool InManualMode() {
  return iControlMode == modeManual;
}

}  // namespace

void SetControlStates() {
  ShowDirection();
  ShowMode();
  ShowProgramBox();
  ShowLeverPointer();
}

void cmdManual_Click() {
  if (iControlMode != modeProgram || bProgramRunning) return;
  iControlMode = modeManual;
  SetControlStates();
}

void cmdProgram_Click() {
  if (iControlMode != modeManual || bProgramRunning) return;
  iControlMode = modeProgram;
  SetControlStates();
}

void cmdForward_Click() {
  if (iControlMode != modeManual || iDirection != 0) return;
  SetDirection(1);
  SetControlStates();
}

void cmdBackward_Click() {
  if (iControlMode != modeManual || iDirection != 1) return;
  SetDirection(0);
  SetControlStates();
}

void cmdManual_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowHover(cmdManual, !bProgramRunning);
}

void cmdProgram_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowHover(cmdProgram, !bProgramRunning);
}

void cmdForward_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowHover(cmdForward, InManualMode());
}

void cmdBackward_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowHover(cmdBackward, InManualMode());
}

void imgControls_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  if (!bButtonHover) return;
  SetControlStates();
  bButtonHover = false;
}

}  // namespace glidetrak
