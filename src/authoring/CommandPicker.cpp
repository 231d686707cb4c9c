#include "authoring/CommandPicker.h"

#include "authoring/CommandCatalogue.h"
#include "authoring/ProgramEditor.h"
#include "common/MiscCode.h"
#include "common/SharedState.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "language/RunControl.h"
#include "language/RunState.h"

namespace glidetrak {

namespace {

void SetProgramControls(bool bEnabled) {
  for (Control* pControl : std::initializer_list<Control*>{
           &btnStopProg, &cmdRunProgram, &cmdSingleStep, &cmdProgCommands, &cmbExamples,
           &cmdShowExamples, &lblExamples, &txtProgram}) {
    pControl->Enabled = bEnabled;
  }
  SetRunMenus(bEnabled);
}

void ShowButtons(bool bSelectHot, bool bCloseHot) {
  SetPictureIfChanged(btnSelectComSel, bSelectHot, imgDiagBtn.Picture, imgDiagBtnWF.Picture);
  SetPictureIfChanged(btnCloseComSel, bCloseHot, imgDiagBtn.Picture, imgDiagBtnWF.Picture);
}

void ShowChosenHelp() {
  ShowCommandHelp(static_cast<qint16>(lstProgCommands.ListIndex));
}

void ShowExample(const QString& sText) {
  lblHELPExampleTitle.Visible = !sText.isEmpty();
  if (txtHELPExample.Text() != sText) txtHELPExample.SetText(sText);
  txtHELPExample.Visible = lblHELPExampleTitle.Visible.value();
}

QString ChosenName() {
  const QStringList aList = lstProgCommands.List;
  return aList.value(lstProgCommands.ListIndex);
}

void SwallowChange(int& iKey) {
  if (iKey == 8 || iKey == 9 || iKey == 27 || iKey > 31) iKey = 0;
}

}  // namespace

void ShowCommandPicker() {
  if (bProgramRunning || bRunUnderWay) return;
  SetProgramControls(false);
  pnlCommandSel.Visible = true;
  pnlCommandSel.Enabled = true;
  lstProgCommands.ListIndex = 0;
  ShowCommandHelp(0);
  lstProgCommands.SetFocus();
}

void CloseCommandPicker() {
  pnlCommandSel.Visible = false;
  pnlCommandSel.Enabled = false;
  SetProgramControls(true);
}

void ShowCommandHelp(qint16 iIndex) {
  if (iIndex < 0) {
    lblCompDesc.Caption = "";
    return;
  }
  const auto iEntry = static_cast<size_t>(iIndex) + 1;
  if (iEntry >= CommandHelpTable.size()) return;
  const CommandHelp& help = CommandHelpTable[iEntry];
  lblHELPFormat.Caption = help.sFormat;
  lblCompDesc.Caption = help.sDescription;
  ShowExample(TrimBlanks(help.sExample));
}

void InsertChosenCommand() {
  if (bProgramRunning) {
    CloseCommandPicker();
    return;
  }
  QString sText = ChosenName();
  if (!sText.endsWith(u' ')) sText += "\r\n";
  const int iLength = static_cast<int>(sText.size());
  txtProgram.ReplaceSelection(sText);
  txtProgram.Select(txtProgram.SelStart() - iLength, iLength);
  sSavedSelText.clear();
  txtProgram.SetFocus();  // still disabled here, so that the focus does not come
  CloseCommandPicker();
}

void cmdProgCommands_Click() {
  ShowCommandPicker();
}

void MNUCommands_Click() {
  ShowCommandPicker();
}

void btnSelectComSel_Click() {
  InsertChosenCommand();
}

void btnCloseComSel_Click() {
  CloseCommandPicker();
}

void imgAddCmdClose_Click() {
  CloseCommandPicker();
}

void lstProgCommands_DblClick() {
  InsertChosenCommand();
}

void lstProgCommands_KeyPress(int& /*iCharCode*/) {
  ShowChosenHelp();
}

void lstProgCommands_KeyUp(int& /*iKeyCode*/) {
  ShowChosenHelp();
}

void lstProgCommands_MouseDown(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowChosenHelp();
}

void lstProgCommands_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowChosenHelp();
  ShowButtons(false, false);
}

void btnSelectComSel_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowButtons(true, false);
}

void btnCloseComSel_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowButtons(false, true);
}

void CommandPane_MouseMove(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowButtons(false, false);
}

void CommandSelTitle_Click() {
  ShowButtons(false, false);
}

void txtHELPExample_KeyDown(int& iKeyCode) {
  SwallowChange(iKeyCode);
}

void txtHELPExample_KeyPress(int& iCharCode) {
  SwallowChange(iCharCode);
}

void txtHELPExample_KeyUp(int& /*iKeyCode*/) {
  ShowChosenHelp();
}

void txtHELPExample_MouseUp(int /*iButton*/, float /*fX*/, float /*fY*/) {
  ShowChosenHelp();
}

void txtHELPExample_Change() {
  ShowChosenHelp();
}

}  // namespace glidetrak
