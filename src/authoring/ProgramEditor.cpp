#include "authoring/ProgramEditor.h"

#include "authoring/Document.h"
#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "language/Keywords.h"
#include "language/RunControl.h"
#include "language/RunState.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

void ResetRunState() {
  bEditorHasFocus = false;
  bProgramRunning = false;
  bTraceArmed = false;
  bInIfBlock = false;
  bIfCondition = false;
}

}  // namespace

void ResetProgramState() {
  txtProgram.SetText("");
  txtProgram.Select(0, 0);
  pnlMessage.Visible = false;
  lblAnalogVal.Caption = "0";
  lblPowerLevel.Caption = "0";
  iDirection = 1;
  lCurrentLine = 0;
  lSavedSelStart = 0;
  lSavedSelLength = 0;
  sSavedSelText.clear();
  ResetRunState();
  sProgramFile.clear();
  LoadKeywords();
}

void txtProgram_Change() {
  if (bProgramRunning || bLoading) return;
  bNeedCompile = true;
  if (!bProgramDirty) {
    MNUSAVEPROG.Enabled = true;
    MNUSAVEPROGAS.Enabled = true;
  }
  bProgramDirty = true;
}

void txtProgram_GotFocus() {
  if (bProgramRunning) {
    btnStopProg.SetFocus();
    return;
  }
  bEditorHasFocus = true;
  if (lSavedSelStart != 0 && lSavedSelLength != 0) {
    txtProgram.Select(lSavedSelStart, lSavedSelLength);
  }
}

void txtProgram_LostFocus() {
  if (bProgramRunning) return;
  bEditorHasFocus = false;
  lSavedSelStart = txtProgram.SelStart();
  lSavedSelLength = txtProgram.SelLength();
  sSavedSelText = txtProgram.SelText();
}

void txtProgram_DblClick() {
  if (!bProgramRunning) SelectCaretLine();
}

void txtFocusGrab_LostFocus() {
  txtFocusGrab.SetText("");
}

}  // namespace glidetrak
