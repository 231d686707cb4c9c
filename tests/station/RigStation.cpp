#include "station/RigStation.h"

#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"

namespace glidetrak {

namespace {

/// A running timer's interval starts now.
void Restart(Timer& timer) {
  if (!timer.Enabled) return;
  timer.Enabled = false;
  timer.Enabled = true;
}

}  // namespace

void RigStation::Start(RigLink link) {
  Attach(link);
  StartUp();
}

void RigStation::StartUp() {
  Station::Start();
  frmAbout.FormUnload();
  for (Timer* pTimer : {&tmrSystem, &tmrReconnect}) Restart(*pTimer);
  Forget();
}

void RigStation::EnterProgram(const QStringList& aLines) {
  Click("cmdProgram");
  txtProgram.SetText(aLines.join("\r\n"));
  Forget();
}

void RigStation::Run(const QStringList& aLines) {
  EnterProgram(aLines);
  Click("cmdRunProgram");
}

}  // namespace glidetrak
