#include "language/RunControl.h"

#include <QScopedValueRollback>

#include "common/DelayMilliseconds.h"
#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "language/ProgramError.h"
#include "language/ResolveGoto.h"
#include "language/RunState.h"
#include "language/Statements.h"
#include "language/Variables.h"
#include "track/AbortProgram.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

constexpr qint32 lLinePause = 25;  ///< milliseconds between two lines; a floor, not a period
constexpr qint32 lEndPause = 100;
constexpr qint32 lStopFreeze = 200;

/// What a run locks and FinishRun gives back.
void SetProgramControls(bool bEnabled) {
  txtProgram.Enabled = bEnabled;
  cmdRunProgram.Enabled = bEnabled;
  cmbExamples.Enabled = bEnabled;
  cmdShowExamples.Enabled = bEnabled;
}

void GrabFocus() {
  if (txtFocusGrab.Visible) txtFocusGrab.SetFocus();
}

void ResolveAll() {
  Q_ASSERT(bProgramRunning && bRunUnderWay);
  for (lCurrentLine = 0; lCurrentLine < lLineCount; ++lCurrentLine) {
    ResolveGotoLine(lCurrentLine);
    if (!bProgramRunning) return;
  }
}

void RunLoop() {
  Q_ASSERT(bProgramRunning && bRunUnderWay);
  const qint32 lLastLine = lLineCount - 1;
  lCurrentLine = 0;
  while (lCurrentLine <= lLastLine) {
    ExecuteProgramLine(false);
    if (!bProgramRunning) return;
    DelayMilliseconds(Pump::Yes, lLinePause, Tick::LeftOn);
    ++lCurrentLine;
  }
}

void LockScreen() {
  imgProgBoxBack.MousePointer = ptrHourglass;
  SetProgramControls(false);
  SetRunMenus(false);
}

void RunLocked() {
  LockScreen();
  bInIfBlock = false;
  bIfCondition = true;
  ClearVariables();
  if (!CompileProgram()) {
    FinishRun();
    return;
  }
  bProgramRunning = true;
  ResolveAll();
  if (bProgramRunning) RunLoop();
  DelayMilliseconds(Pump::Yes, lEndPause, Tick::Suspended);
  AbortProgram();
  Q_ASSERT(!bProgramRunning && !bMotorOn);
  FinishRun();
}

LineResult StepOneLine() {
  ResolveGotoLine(lCurrentLine);
  const LineResult result = ExecuteProgramLine(true);
  if (!bProgramRunning) FinishStep(false);
  if (lCurrentLine >= lLineCount) FinishStep(true);
  ++lCurrentLine;
  return result;
}

}  // namespace

void RunProgram() {
  if (bProgramRunning) return;
  const QScopedValueRollback underWay(bRunUnderWay, true);
  try {
    RunLocked();
  } catch (const RuntimeError&) {
    SkipOnError([] { ReportRunError(); });
  }
}

void FinishRun() {
  bProgramRunning = false;
  SetProgramControls(true);
  pnlMessage.Visible = false;
  SetRunMenus(true);
  GrabFocus();
  imgProgBoxBack.MousePointer = ptrDefault;
}

void ReportRunError() {
  FailWith(idRunError);
  bProgramRunning = false;
  AbortProgram();
  pnlMessage.Visible = false;
  SetProgramControls(true);
  SetRunMenus(true);
  GrabFocus();
  screen.MousePointer = ptrDefault;
}

void StepProgram() {
  if (bProgramRunning) return;
  const QScopedValueRollback underWay(bRunUnderWay, true);
  bProgramRunning = true;
  SetRunMenus(false);
  screen.MousePointer = ptrHourglass;
  if (!CompileProgram()) {
    FinishStep(false);
    return;
  }
  while (StepOneLine() < LineResult::Done) {
  }
  screen.MousePointer = ptrDefault;
  FinishStep(false);
}

void FinishStep(bool bResetLine) {
  bProgramRunning = false;
  pnlMessage.Visible = false;
  if (bResetLine) lCurrentLine = 0;
  SetProgramControls(true);
  SetRunMenus(true);
  screen.MousePointer = ptrDefault;
}

void PrepareTrace() {
  if (bProgramRunning || bTraceArmed) return;
  const int iCaret = txtProgram.SelStart();
  if (!CompileProgram()) return;
  txtProgram.Select(iCaret, 0);
  SelectCaretLine();
  bTraceArmed = true;
}

void StopProgram() {
  if (!bProgramRunning) return;
  SetPower(0);
  pnlMessage.Visible = false;
  bProgramRunning = false;
  DelayMilliseconds(Pump::No, lStopFreeze, Tick::LeftOn);
  screen.MousePointer = ptrDefault;
}

void SelectCaretLine() {
  const qint32 lCaret = txtProgram.SelStart();
  for (const ProgramLine& line : LineTable) {
    if (lCaret < line.lStartOffset || lCaret >= line.lStartOffset + line.lLength) continue;
    txtProgram.Select(line.lStartOffset, line.lLength);
    return;
  }
}

void SetRunMenus(bool bEnabled) {
  MNUMAIN.Enabled = bEnabled;
  MNUHELP.Enabled = bEnabled;
  MNUPROGRAMOPT.Enabled = bEnabled;
}

void cmdRunProgram_Click() {
  RunProgram();
}

void btnStopProg_Click() {
  StopProgram();
}

void cmdSingleStep_Press() {
  PrepareTrace();
}

void cmdSingleStep_Click() {
  StepProgram();
}

void MNURUN_Click() {
  RunProgram();
}

void MNUSTOP_Click() {
  StopProgram();
}

void MNUSTEPFORWARD_Click() {
  StepProgram();
}

}  // namespace glidetrak
