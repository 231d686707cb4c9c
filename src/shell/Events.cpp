#include "shell/Events.h"

#include "authoring/ProgramEditor.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "language/RunControl.h"
#include "shell/StartUp.h"
#include "track/OperatingPanel.h"
#include "track/SystemTick.h"

namespace glidetrak {

namespace {

void WireForm() {
  frmGlidetrak.KeyDown = Form_KeyDown;
  frmGlidetrak.KeyPress = Form_KeyPress;
  frmGlidetrak.KeyUp = Form_KeyUp;
  frmGlidetrak.FormUnload = Form_Unload;
}

void WireTimers() {
  tmrSystem.Fired = tmrSystem_Timer;
  tmrReconnect.Fired = tmrReconnect_Timer;
  tmrEmergencyFlash.Fired = tmrEmergencyFlash_Timer;
}

void WireModeAndDirection() {
  cmdManual.Click = cmdManual_Click;
  cmdManual.MouseMove = cmdManual_MouseMove;
  cmdProgram.Click = cmdProgram_Click;
  cmdProgram.MouseMove = cmdProgram_MouseMove;
  cmdForward.Click = cmdForward_Click;
  cmdForward.MouseMove = cmdForward_MouseMove;
  cmdBackward.Click = cmdBackward_Click;
  cmdBackward.MouseMove = cmdBackward_MouseMove;
  imgControls.MouseMove = imgControls_MouseMove;
}

void WirePanel() {
  imgLever.MouseDown = imgLever_MouseDown;
  imgLever.MouseMove = imgLever_MouseMove;
  imgLever.MouseUp = imgLever_MouseUp;
  btnEmergency.MouseDown = btnEmergency_MouseDown;
  btnRstStop.Click = btnRstStop_Click;
  picTogTimer.Click = picTogTimer_Click;
  btnTmrReset.Click = btnTmrReset_Click;
  cmdTimerReset.Click = cmdTimerReset_Click;
  picTogImpact.Click = picTogImpact_Click;
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
  WireTimers();
  WireModeAndDirection();
  WirePanel();
  WireEditor();
  WireProgramBox();
  WireMenu();
}

}  // namespace glidetrak
