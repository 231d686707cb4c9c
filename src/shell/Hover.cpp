#include "shell/Hover.h"

#include "authoring/ProgramEditor.h"
#include "common/MiscCode.h"
#include "common/SharedState.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "shell/Monitor_Functions.h"

namespace glidetrak {

namespace {

struct HoverRow {
  const char* sToken;
  ImageButton* pButton;
  Image* pRest;
  Image* pHot;
};

const HoverRow HoverRows[] = {
    {"CMD", &cmdProgCommands, &imgDefBtn, &imgDiagBtnWF},
    {"NEXT", &cmdSingleStep, &imgDefBtn, &imgDiagBtnWF},
    {"RUN", &cmdRunProgram, &imgDefBtnGo, &imgDiagBtnWF},
    {"STOP", &btnStopProg, &imgDefBtnStop, &imgDefBtnStopWF},
    {"SHOWEX", &cmdShowExamples, &imgDefBtn, &imgDiagBtnWF},
};

void HoverWhileIdle(const QString& sToken) {
  if (!bProgramRunning) SetHoverState(sToken);
}

void GrabFocus() {
  if (IsActiveWindow() && !bEditorHasFocus) txtFocusGrab.SetFocus();
}

}  // namespace

void SetHoverState(const QString& sToken) {
  const QString sWanted = UpperCase(sToken);
  for (const HoverRow& row : HoverRows) {
    SetPictureIfChanged(*row.pButton, sWanted == row.sToken, row.pRest->Picture, row.pHot->Picture);
  }
}

void cmdProgCommands_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  HoverWhileIdle("CMD");
}

void cmdSingleStep_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  HoverWhileIdle("NEXT");
}

void cmdRunProgram_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  HoverWhileIdle("RUN");
}

void btnStopProg_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  SetHoverState("STOP");
}

void cmdShowExamples_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  HoverWhileIdle("SHOWEX");
  GrabFocus();
}

void pnlProgramBox_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  SetHoverState("");
}

void txtProgram_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  if (bProgramRunning) return;
  SetHoverState("");
  GrabFocus();
}

}  // namespace glidetrak
