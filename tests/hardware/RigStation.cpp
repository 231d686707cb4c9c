#include "hardware/RigStation.h"

#include <algorithm>

#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "shell/Events.h"
#include "shell/StartUp.h"
#include "transcript/Clicks.h"

namespace glidetrak {

namespace {

/// A running timer's interval starts now.
void Restart(Timer& timer) {
  if (!timer.Enabled) return;
  timer.Enabled = false;
  timer.Enabled = true;
}

}  // namespace

void RigStation::Attach(RigLink link) {
  if (link == RigLink::Parallel) rig.AttachParallel();
  if (link == RigLink::Usb) rig.AttachUsb();
}

void RigStation::Start(RigLink link) {
  Attach(link);
  StartUp();
}

void RigStation::StartUp() {
  WireEvents();
  Form_Load({});
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

void RigStation::Click(const QString& sName) {
  ClickControl(sName);
}

void RigStation::After(qint64 lMilliseconds, std::function<void()> action) {
  platform.At(platform.lNow + lMilliseconds, std::move(action));
}

std::vector<qint32> RigStation::WrittenBytes() const {
  std::vector<qint32> aBytes;
  for (const WrittenByte& written : rig.aWritten) aBytes.push_back(written.lByte);
  return aBytes;
}

QStringList RigStation::BoxTexts() const {
  QStringList aTexts;
  for (const VirtualBox& box : platform.aBoxes) aTexts.append(box.sText);
  return aTexts;
}

int RigStation::Calls(const QByteArray& operation) const {
  return static_cast<int>(
      std::count_if(rig.aCalls.begin(), rig.aCalls.end(),
                    [&](const QByteArray& call) { return call.split(' ').front() == operation; }));
}

void RigStation::Forget() {
  platform.aBoxes.clear();
  rig.aWritten.clear();
  rig.aCalls.clear();
  rig.aReports.clear();
}

}  // namespace glidetrak
