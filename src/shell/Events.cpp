#include "shell/Events.h"

#include "authoring/CommandPicker.h"
#include "authoring/ProgramEditor.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "language/KeyCapture.h"
#include "language/RunControl.h"
#include "programs/FileMenu.h"
#include "programs/PresetCatalogue.h"
#include "shell/AboutBox.h"
#include "shell/Closing.h"
#include "shell/Hover.h"
#include "shell/Layout.h"
#include "track/DebugPanel.h"
#include "track/EmergencyStop.h"
#include "track/Lever.h"
#include "track/ModeAndDirection.h"
#include "track/SystemTick.h"
#include "track/TogglesAndTimer.h"

namespace glidetrak {

namespace {

void WireForm() {
  frmGlidetrak.KeyDown = Form_KeyDown;
  frmGlidetrak.KeyPress = Form_KeyPress;
  frmGlidetrak.KeyUp = Form_KeyUp;
  frmGlidetrak.Resize = Form_Resize;
  frmGlidetrak.QueryUnload = Form_QueryUnload;
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
  txtProgram.LostFocus = txtProgram_LostFocus;
  txtProgram.KeyDown = Form_KeyDown;
  txtProgram.KeyPress = txtProgram_KeyPress;
  txtProgram.KeyUp = Form_KeyUp;
  txtProgram.DblClick = txtProgram_DblClick;
  txtProgram.MouseMove = txtProgram_MouseMove;
  txtFocusGrab.LostFocus = txtFocusGrab_LostFocus;
  txtFocusGrab.KeyDown = Form_KeyDown;
  txtFocusGrab.KeyPress = txtProgram_KeyPress;
  txtFocusGrab.KeyUp = Form_KeyUp;
}

void WireProgramBox() {
  pnlProgramBox.MouseMove = pnlProgramBox_MouseMove;
  imgProgBoxBack.MouseMove = txtProgram_MouseMove;
  cmdRunProgram.Click = cmdRunProgram_Click;
  cmdRunProgram.MouseMove = cmdRunProgram_MouseMove;
  btnStopProg.Click = btnStopProg_Click;
  btnStopProg.MouseMove = btnStopProg_MouseMove;
  cmdSingleStep.Press = cmdSingleStep_Press;
  cmdSingleStep.Click = cmdSingleStep_Click;
  cmdSingleStep.MouseMove = cmdSingleStep_MouseMove;
  cmdProgCommands.Click = cmdProgCommands_Click;
  cmdProgCommands.MouseMove = cmdProgCommands_MouseMove;
  cmdShowExamples.Click = cmdShowExamples_Click;
  cmdShowExamples.MouseMove = cmdShowExamples_MouseMove;
  cmbExamples.Click = cmbExamples_Click;
  cmbExamples.LostFocus = cmbExamples_LostFocus;
}

void WirePicker() {
  pnlCommandSel.MouseMove = lstProgCommands_MouseMove;
  lstProgCommands.MouseMove = lstProgCommands_MouseMove;
  lstProgCommands.MouseDown = lstProgCommands_MouseDown;
  lstProgCommands.KeyPress = lstProgCommands_KeyPress;
  lstProgCommands.KeyUp = lstProgCommands_KeyUp;
  lstProgCommands.DblClick = lstProgCommands_DblClick;
  btnSelectComSel.Click = btnSelectComSel_Click;
  btnSelectComSel.MouseMove = btnSelectComSel_MouseMove;
  btnCloseComSel.Click = btnCloseComSel_Click;
  btnCloseComSel.MouseMove = btnCloseComSel_MouseMove;
  CommandSelTitle.Click = CommandSelTitle_Click;
  imgAddCmdClose.Click = imgAddCmdClose_Click;
  for (Control* pPane : std::initializer_list<Control*>{
           &fraHelp, &imgAddCmdClose, &lblCommandSelListTitle, &lblCompDesc, &lblHELPDescTitle,
           &lblHELPExampleTitle, &lblHELPFormat, &lblHELPFormatTitle, &txtHELPExample}) {
    pPane->MouseMove = CommandPane_MouseMove;
  }
}

void WireExamplePane() {
  txtHELPExample.KeyDown = txtHELPExample_KeyDown;
  txtHELPExample.KeyPress = txtHELPExample_KeyPress;
  txtHELPExample.KeyUp = txtHELPExample_KeyUp;
  txtHELPExample.MouseUp = txtHELPExample_MouseUp;
  txtHELPExample.Change = txtHELPExample_Change;
}

void WireMenu() {
  MNUNEWPROG.Click = MNUNEWPROG_Click;
  MNULOADPROG.Click = MNULOADPROG_Click;
  MNUSAVEPROG.Click = MNUSAVEPROG_Click;
  MNUSAVEPROGAS.Click = MNUSAVEPROGAS_Click;
  MNUEXIT.Click = MNUEXIT_Click;
  MNUCommands.Click = MNUCommands_Click;
  MNURUN.Click = MNURUN_Click;
  MNUSTOP.Click = MNUSTOP_Click;
  MNUSTEPFORWARD.Click = MNUSTEPFORWARD_Click;
  MNUShowDebug.Click = MNUShowDebug_Click;
  MNUAbout.Click = MNUAbout_Click;
}

void WireDebugPanel() {
  pnlDebug.DblClick = pnlDebug_DblClick;
  imgCloseDebug.Click = imgCloseDebug_Click;
}

void WireAboutBox() {
  frmAbout.FormUnload = frmAbout_Unload;
  tmrUpdate.Fired = tmrUpdate_Timer;
  TmrAbout.Fired = TmrAbout_Timer;
  picClose.Click = picClose_Click;
}

}  // namespace

void WireEvents() {
  WireForm();
  WireTimers();
  WireModeAndDirection();
  WirePanel();
  WireEditor();
  WireProgramBox();
  WirePicker();
  WireExamplePane();
  WireMenu();
  WireDebugPanel();
  WireAboutBox();
}

}  // namespace glidetrak
