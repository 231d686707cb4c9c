#include "station/Station.h"

#include <algorithm>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "shell/Events.h"
#include "shell/StartUp.h"
#include "track/ModeAndDirection.h"
#include "transcript/Clicks.h"

namespace glidetrak {

QString Lines(std::initializer_list<QString> aLines) {
  return QStringList(aLines).join("\r\n");
}

QString English(int iId) {
  return LoadTextFor(iId, iEnglish);
}

void Station::Attach(RigLink link) {
  if (link == RigLink::Parallel) rig.AttachParallel();
  if (link == RigLink::Usb) rig.AttachUsb();
}

void Station::Start(RigLink link, const QString& sCommandLine) {
  Attach(link);
  WireEvents();
  Form_Load(sCommandLine);
  Forget();
}

void Station::EnterProgramMode() {
  iControlMode = modeProgram;
  SetControlStates();
  Forget();
}

void Station::SetProgram(const QString& sText) {
  txtProgram.SetText(sText);
}

void Station::RunProgram(const QString& sText) {
  SetProgram(sText);
  Click("cmdRunProgram");
}

void Station::Click(const QString& sName) {
  ClickControl(sName);
}

int Station::KeyDown(int iKeyCode) {
  frmGlidetrak.KeyDown(iKeyCode);
  return iKeyCode;
}

int Station::KeyPress(int iCharCode) {
  frmGlidetrak.KeyPress(iCharCode);
  return iCharCode;
}

void Station::After(qint64 lMilliseconds, std::function<void()> action) {
  platform.At(platform.lNow + lMilliseconds, std::move(action));
}

QStringList Station::BoxTexts() const {
  QStringList aTexts;
  for (const VirtualBox& box : platform.aBoxes) aTexts.append(box.sText);
  return aTexts;
}

std::vector<qint32> Station::WrittenBytes() const {
  std::vector<qint32> aBytes;
  for (const WrittenByte& written : rig.aWritten) aBytes.push_back(written.lByte);
  return aBytes;
}

int Station::Calls(const QByteArray& operation) const {
  return static_cast<int>(
      std::count_if(rig.aCalls.begin(), rig.aCalls.end(),
                    [&](const QByteArray& call) { return call.split(' ').front() == operation; }));
}

void Station::Forget() {
  platform.aBoxes.clear();
  rig.aWritten.clear();
  rig.aCalls.clear();
  rig.aReports.clear();
}

}  // namespace glidetrak
