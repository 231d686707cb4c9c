// What ResetForms writes beside the tables' places.

#include "form/DesignState.h"

#include "form/ControlTable.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"

namespace glidetrak {

namespace {

void Place(Control& control, float fLeft, float fTop, float fWidth, float fHeight) {
  control.Left = fLeft;
  control.Top = fTop;
  control.Width = fWidth;
  control.Height = fHeight;
}

void PlaceRows(std::span<const ControlRow> rows) {
  for (const ControlRow& row : rows) {
    Control* pControl = AsControl(row.control);
    if (pControl != nullptr) Place(*pControl, row.fLeft, row.fTop, row.fWidth, row.fHeight);
  }
}

void PlaceControls() {
  PlaceRows(MainFormTable());
  PlaceRows(AboutFormTable());
  for (const MemberRow& row : MemberTable()) {
    Place(*AsControl(row.control), row.fLeft, row.fTop, row.fWidth, row.fHeight);
  }
}

void SetForms() {
  frmGlidetrak.ScaleWidth = 16320;
  frmGlidetrak.ScaleHeight = 10635;
  frmGlidetrak.Width = 16320;
  frmGlidetrak.Height = 10635;
  frmAbout.ScaleWidth = 5235;
  frmAbout.ScaleHeight = 3240;
  frmAbout.Width = 5235;
  frmAbout.Height = 3240;
}

void SetTimers() {
  tmrEmergencyFlash.Interval = 500;
  tmrReconnect.Interval = 5000;
  tmrSystem.Interval = 5;
  tmrUpdate.Interval = 3000;
  TmrAbout.Interval = 6000;
}

void SetPictureLists() {
  imgPanels.Pictures = {PictureId::ControlsManual, PictureId::ControlsProgram};
  imgListSwitches.Pictures = {PictureId::ToggleOn,       PictureId::ToggleOff,
                              PictureId::EmergencyIdle,  PictureId::EmergencyPressed,
                              PictureId::EmergencyFlash, PictureId::HandCursor};
  imgListBar.Pictures.clear();
  for (int i = 0; i < 16; ++i) {
    imgListBar.Pictures.push_back(static_cast<PictureId>(static_cast<int>(PictureId::Bar0) + i));
  }
}

void SetPictureStores() {
  const std::pair<Image*, PictureId> aStores[] = {
      {&imgDefBtn, PictureId::DefBtn},         {&imgDefBtnWF, PictureId::DefBtnWF},
      {&imgDefBtnGo, PictureId::DefBtnGo},     {&imgDefBtnGoWF, PictureId::DefBtnGoWF},
      {&imgDefBtnStop, PictureId::DefBtnStop}, {&imgDefBtnStopWF, PictureId::DefBtnStopWF},
      {&imgDiagBtn, PictureId::DiagBtn},       {&imgDiagBtnWF, PictureId::DiagBtnWF},
  };
  for (const auto& [pStore, picture] : aStores) {
    pStore->Picture = picture;
    pStore->Visible = false;
  }
}

void SetPictures() {
  imgHardware.Picture = PictureId::Hardware;
  imgSensors.Picture = PictureId::SensorsPanel;
  imgControls.Picture = PictureId::ControlsManual;
  imgProgBoxBack.Picture = PictureId::ProgramPanel;
  imgLever.Picture = PictureId::Lever;
  imgBarGraph.Picture = PictureId::Bar0;
  picTogTimer.Picture = PictureId::ToggleOff;
  picTogImpact.Picture = PictureId::ToggleOff;
  btnTmrReset.Picture = PictureId::TimerReset;
  btnEmergency.Picture = PictureId::EmergencyIdle;
  btnRstStop.Picture = PictureId::ResetButton;
  imgAddCmdClose.Picture = PictureId::CloseCross;
  imgCloseDebug.Picture = PictureId::CloseCross;
  cmdTimerReset.Picture = PictureId::TimerReset;
  Image1.Picture = PictureId::AboutRig;
  Picture1.Picture = PictureId::AboutEmblem;
  picClose.Picture = PictureId::AboutClose;
  cmdRunProgram.Picture = PictureId::DefBtnGo;
  btnStopProg.Picture = PictureId::DefBtnStop;
  btnSelectComSel.Picture = PictureId::DiagBtn;
  btnCloseComSel.Picture = PictureId::DiagBtn;
}

/// The custom pointer style of six controls; start-up gives them the hand for an icon.
void SetPointers() {
  for (Control* pControl : std::initializer_list<Control*>{
           &imgLever, &picTogTimer, &picTogImpact, &btnEmergency, &btnRstStop, &btnTmrReset}) {
    pControl->MousePointer = ptrCustom;
  }
}

void SetDebugCaptions() {
  for (int i = 0; i < 8; ++i) {
    lblInput[i].Caption = QString("PA%1").arg(i);
    lblOutput[i].Caption = QString("PB%1").arg(i);
  }
  lblInputTitle.Caption = "INPUTS";
  lblOutputTitle.Caption = "OUTPUTS";
  optDirection[1].Caption = "Forward";
  optDirection[0].Caption = "Backward";
  optDirection[1].Value = true;
  chkTiming.Caption = "Timing:";
  chkAnalog.Caption = "Impact:";
  pnlClock.Caption = "-- . --";
  lblPowerLevel.Caption = "0";
  lblAnalogVal.Caption = "0";
  lblDebugAppVer.Caption = "app ver";
  lblPowerLevel.ToolTipText = "Power Level";
  lblAnalogVal.ToolTipText = "Impact Value";
  imgCloseDebug.ToolTipText = "Close this window";
  txtDebug.ToolTipText = "Debug Information";
}

/// Texts that no caption table sets: they stay in English in every language.
void SetDesignCaptions() {
  SetDebugCaptions();
  lblMsgTitle.Caption = "Message";
  lblHWState.Caption = "Glidetrak interface not detected";
  lblTimer.Caption = "00";
  lblImpact.Caption = "00";
}

void SetHidden() {
  for (Control* pControl :
       std::initializer_list<Control*>{&pnlProgramBox, &pnlMessage, &pnlCommandSel, &pnlDebug,
                                       &cmbExamples, &txtProgram, &btnTmrReset}) {
    pControl->Visible = false;
  }
}

void SetColours() {
  pnlProgramBox.BackColor = lBlack;
  txtProgram.BackColor = lWhite;
  for (int i = 8; i < 24; ++i) ledOutput[i].FillColor = lGrey;
}

}  // namespace

void ResetForms() {
  PlaceControls();
  SetForms();
  SetTimers();
  SetPictureLists();
  SetPictureStores();
  SetPictures();
  SetPointers();
  SetDesignCaptions();
  SetHidden();
  SetColours();
}

}  // namespace glidetrak
