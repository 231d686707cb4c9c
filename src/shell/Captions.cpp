#include "shell/Captions.h"

#include "common/Version.h"
#include "form/frmGlidetrak.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

struct CaptionRow {
  QProperty<QString>* pProperty;
  TextId id;
};

// clang-format off
const CaptionRow CaptionRows[] = {
    {&frmGlidetrak.Caption, idProgramName},
    {&lblExamples.Caption, idPresetPrograms},
    {&cmdProgCommands.Caption, idCommandsButton},
    {&cmdSingleStep.Caption, idTraceButton},
    {&cmdRunProgram.Caption, idRunButton},
    {&btnStopProg.Caption, idStopButton},
    {&cmdProgCommands.ToolTipText, idCommandsButtonTip},
    {&cmdSingleStep.ToolTipText, idTraceButtonTip},
    {&cmdRunProgram.ToolTipText, idRunButtonTip},
    {&btnStopProg.ToolTipText, idStopButtonTip},
    {&cmdShowExamples.Caption, idShowPresets},
    {&cmdShowExamples.ToolTipText, idShowPresetsTip},
    {&lblTimerTitle.Caption, idTiming},
    {&lblImpactTitle.Caption, idImpact},
    {&lblImpact2.Caption, idImpact},
    {&lblControlTitle.Caption, idControlPanel},
    {&lblPowerTitle.Caption, idPowerTitle},
    {&lblOn1.Caption, idSwitchOn},
    {&lblOn2.Caption, idSwitchOn},
    {&lblOff.Caption, idSwitchOff},
    {&lblOff2.Caption, idSwitchOff},
    {&lblEmergStop1.Caption, idEmergency},
    {&lblEmergStop2.Caption, idEmergencyStop},
    {&cmdManual.Caption, idManual},
    {&cmdProgram.Caption, idProgram},
    {&cmdForward.Caption, idForward},
    {&cmdBackward.Caption, idBackward},
    {&picTogTimer.ToolTipText, idNoText},
    {&picTogImpact.ToolTipText, idNoImpactTip},
    {&btnTmrReset.ToolTipText, idNoResetTip},
    {&imgLever.ToolTipText, idNoLeverTip},
    {&btnEmergency.ToolTipText, idNoStopTip},
    {&btnRstStop.ToolTipText, idNoStopTip},
    {&CommandSelTitle.Caption, idCommandSelection},
    {&lblCommandSelListTitle.Caption, idCommandList},
    {&btnSelectComSel.Caption, idPickerSelect},
    {&btnCloseComSel.Caption, idPickerClose},
    {&btnCloseComSel.ToolTipText, idPickerCloseTip},
    {&imgAddCmdClose.ToolTipText, idPickerCloseTip},
    {&btnSelectComSel.ToolTipText, idPickerSelectTip},
    {&lstProgCommands.ToolTipText, idCommandListTip},
    {&lblHELPFormat.ToolTipText, idFormatTip},
    {&lblCompDesc.ToolTipText, idDescriptionTip},
    {&txtHELPExample.ToolTipText, idExampleTip},
    {&lblHELPFormatTitle.Caption, idFormatTitle},
    {&lblHELPFormat.Caption, idNoText},
    {&lblHELPDescTitle.Caption, idDescriptionTitle},
    {&lblCompDesc.Caption, idNoDescription},
    {&lblHELPExampleTitle.Caption, idExampleTitle},
    {&MNUMAIN.Caption, idMenuFile},
    {&MNUNEWPROG.Caption, idMenuNew},
    {&MNULOADPROG.Caption, idMenuLoad},
    {&MNUSAVEPROG.Caption, idMenuSave},
    {&MNUSAVEPROGAS.Caption, idMenuSaveAs},
    {&MNUEXIT.Caption, idMenuExit},
    {&MNUPROGRAMOPT.Caption, idMenuControlProgram},
    {&MNUCommands.Caption, idMenuCommands},
    {&MNURUN.Caption, idMenuRun},
    {&MNUSTOP.Caption, idMenuStop},
    {&MNUSTEPFORWARD.Caption, idMenuTrace},
    {&MNUHELP.Caption, idMenuHelp},
    {&MNUShowDebug.Caption, idMenuShowDebug},
    {&MNUAbout.Caption, idMenuAbout},
};
// clang-format on

}  // namespace

void LoadCaptions() {
  for (const CaptionRow& row : CaptionRows) *row.pProperty = LoadText(row.id);
  txtHELPExample.SetText("");
  lblDebugAppVer.Caption =
      QString("v%1.%2.%3").arg(iVersionMajor).arg(iVersionMinor).arg(iVersionRevision);
}

}  // namespace glidetrak
