#include "shell/AboutBox.h"

#include "common/DelayMilliseconds.h"
#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "common/Version.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "platform/Platform.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

constexpr qint32 lOpeningWait = 250;  ///< milliseconds

void CentreOnMainForm() {
  frmAbout.Left = (frmGlidetrak.Width - frmAbout.Width) / 2 + frmGlidetrak.Left;
  frmAbout.Top = (frmGlidetrak.Height - frmAbout.Height) / 2 + frmGlidetrak.Top;
}

QString VersionText() {
  return QString("%1%2.%3.%4")
      .arg(LoadText(idVersion))
      .arg(iVersionMajor)
      .arg(iVersionMinor, 2, 10, QChar(u'0'))
      .arg(iVersionRevision, 4, 10, QChar(u'0'));
}

}  // namespace

/// A showing that begins while another stands takes its timers over: off, as a form loads them.
void frmAbout_Load() {
  frmAbout_Unload();
  frmAbout.Caption = LoadText(idProgramName);
  CentreOnMainForm();
  lblProgName.Caption = frmAbout.Caption.value();
  lblProgVer.Caption = VersionText();
  lblplw8Instruct.Caption = LoadText(idCheckingHardware);
  lblplw8Instruct.Visible = true;
  lblCopyright.Caption = sLegalNotice;
  tmrUpdate.Enabled = true;
}

void frmAbout_Unload() {
  tmrUpdate.Enabled = false;
  TmrAbout.Enabled = false;
}

void ShowStartupBox() {
  SkipOnError(frmAbout_Load);
  TmrAbout.Enabled = true;
  frmAbout.Caption = "";
  SkipOnError(CentreOnMainForm);
  DelayMilliseconds(Pump::Yes, lOpeningWait, Tick::Suspended);
  pDesktop->PumpEvents();
  frmAbout.Show();
  frmAbout.SetFocus();
}

void ShowPlzW8Box(bool bAbout) {
  SkipOnError(frmAbout_Load);
  if (bAbout) {
    lblplw8Instruct.Visible = false;
    frmAbout.ShowModal();
    return;
  }
  frmAbout.Caption = "";
  frmAbout.Show();
  frmAbout.Refresh();
}

void tmrUpdate_Timer() {
  tmrUpdate.Enabled = false;
  lblplw8Instruct.Caption = LoadText(bLinkUp ? idInterfaceDetected : idInterfaceNotDetected);
}

void TmrAbout_Timer() {
  frmGlidetrak.SetFocus();
  frmAbout.Unload();
}

void picClose_Click() {
  TmrAbout_Timer();
}

void MNUAbout_Click() {
  if (!bProgramRunning) ShowPlzW8Box(true);
}

}  // namespace glidetrak
