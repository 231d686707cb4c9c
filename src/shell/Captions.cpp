#include "shell/Captions.h"

#include "common/Version.h"
#include "form/frmGlidetrak.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

struct CaptionRow {
  QProperty<QString>* pProperty;
  int iText;
};

// clang-format off
const CaptionRow CaptionRows[] = {
    {&frmGlidetrak.Caption, 80},
    {&lblExamples.Caption, 222},
    {&cmdProgCommands.Caption, 226},
    {&cmdSingleStep.Caption, 227},
    {&cmdRunProgram.Caption, 228},
    {&btnStopProg.Caption, 229},
    {&cmdProgCommands.ToolTipText, 310},
    {&cmdSingleStep.ToolTipText, 313},
    {&cmdRunProgram.ToolTipText, 311},
    {&btnStopProg.ToolTipText, 312},
    {&cmdShowExamples.Caption, 230},
    {&cmdShowExamples.ToolTipText, 231},
    {&lblTimerTitle.Caption, 800},
    {&lblImpactTitle.Caption, 803},
    {&lblImpact2.Caption, 803},
    {&lblControlTitle.Caption, 804},
    {&lblPowerTitle.Caption, 805},
    {&lblOn1.Caption, 801},
    {&lblOn2.Caption, 801},
    {&lblOff.Caption, 802},
    {&lblOff2.Caption, 802},
    {&lblEmergStop1.Caption, 806},
    {&lblEmergStop2.Caption, 807},
    {&cmdManual.Caption, 850},
    {&cmdProgram.Caption, 851},
    {&cmdForward.Caption, 852},
    {&cmdBackward.Caption, 853},
    {&picTogTimer.ToolTipText, 0},
    {&picTogImpact.ToolTipText, 2},
    {&btnTmrReset.ToolTipText, 1},
    {&imgLever.ToolTipText, 3},
    {&btnEmergency.ToolTipText, 5},
    {&btnRstStop.ToolTipText, 5},
    {&CommandSelTitle.Caption, 260},
    {&lblCommandSelListTitle.Caption, 261},
    {&btnSelectComSel.Caption, 264},
    {&btnCloseComSel.Caption, 265},
    {&btnCloseComSel.ToolTipText, 300},
    {&imgAddCmdClose.ToolTipText, 300},
    {&btnSelectComSel.ToolTipText, 301},
    {&lstProgCommands.ToolTipText, 302},
    {&lblHELPFormat.ToolTipText, 303},
    {&lblCompDesc.ToolTipText, 304},
    {&txtHELPExample.ToolTipText, 305},
    {&lblHELPFormatTitle.Caption, 266},
    {&lblHELPFormat.Caption, 0},
    {&lblHELPDescTitle.Caption, 267},
    {&lblCompDesc.Caption, 263},
    {&lblHELPExampleTitle.Caption, 268},
    {&MNUMAIN.Caption, 240},
    {&MNUNEWPROG.Caption, 241},
    {&MNULOADPROG.Caption, 242},
    {&MNUSAVEPROG.Caption, 243},
    {&MNUSAVEPROGAS.Caption, 244},
    {&MNUEXIT.Caption, 245},
    {&MNUPROGRAMOPT.Caption, 246},
    {&MNUCommands.Caption, 247},
    {&MNURUN.Caption, 248},
    {&MNUSTOP.Caption, 249},
    {&MNUSTEPFORWARD.Caption, 250},
    {&MNUHELP.Caption, 254},
    {&MNUShowDebug.Caption, 255},
    {&MNUAbout.Caption, 256},
};
// clang-format on

}  // namespace

void LoadCaptions() {
  for (const CaptionRow& row : CaptionRows) *row.pProperty = LoadText(row.iText);
  txtHELPExample.SetText("");
  lblDebugAppVer.Caption =
      QString("v%1.%2.%3").arg(iVersionMajor).arg(iVersionMinor).arg(iVersionRevision);
}

}  // namespace glidetrak
