#include "shell/Events.h"

#include "authoring/ProgramEditor.h"
#include "form/frmGlidetrak.h"
#include "language/RunControl.h"
#include "shell/StartUp.h"
#include "track/OperatingPanel.h"

namespace glidetrak {

namespace {

void WireForm() {
  frmGlidetrak.KeyDown = Form_KeyDown;
  frmGlidetrak.KeyPress = Form_KeyPress;
  frmGlidetrak.KeyUp = Form_KeyUp;
  frmGlidetrak.FormUnload = Form_Unload;
}

void WirePanel() {
  cmdManual.Click = cmdManual_Click;
  cmdProgram.Click = cmdProgram_Click;
  cmdForward.Click = cmdForward_Click;
  cmdBackward.Click = cmdBackward_Click;
}

void WireEditor() {
  txtProgram.Change = txtProgram_Change;
  txtProgram.GotFocus = txtProgram_GotFocus;
  txtProgram.KeyDown = Form_KeyDown;
  txtProgram.KeyPress = txtProgram_KeyPress;
  txtProgram.KeyUp = Form_KeyUp;
  txtFocusGrab.LostFocus = txtFocusGrab_LostFocus;
  txtFocusGrab.KeyDown = Form_KeyDown;
  txtFocusGrab.KeyPress = txtProgram_KeyPress;
  txtFocusGrab.KeyUp = Form_KeyUp;
}

void WireProgramBox() {
  cmdRunProgram.Click = cmdRunProgram_Click;
  btnStopProg.Click = btnStopProg_Click;
  cmdSingleStep.Press = cmdSingleStep_Press;
  cmdSingleStep.Click = cmdSingleStep_Click;
}

void WireMenu() {
  MNURUN.Click = MNURUN_Click;
  MNUSTOP.Click = MNUSTOP_Click;
  MNUSTEPFORWARD.Click = MNUSTEPFORWARD_Click;
}

}  // namespace

void WireEvents() {
  WireForm();
  WirePanel();
  WireEditor();
  WireProgramBox();
  WireMenu();
}

}  // namespace glidetrak
