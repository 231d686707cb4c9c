#include "virtual/VirtualPlatform.h"

#include <algorithm>

#include "form/ControlTable.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"

namespace glidetrak {

VirtualPlatform::VirtualPlatform() {
  pMachine = this;
  pDesktop = this;
  ResetForms();
  for (Form* pForm : {&frmGlidetrak, &frmAbout}) {
    pForm->Show = [pForm] { pForm->Visible = true; };
  }
  m_timers = std::make_unique<VirtualTimers>(&lNow);
}

VirtualPlatform::~VirtualPlatform() {
  pMachine = nullptr;
  pDesktop = nullptr;
}

void VirtualPlatform::RunFor(int iMilliseconds) {
  for (int i = 0; i < iMilliseconds; ++i) PumpEvents();
}

void VirtualPlatform::At(qint64 lTime, std::function<void()> action) {
  const auto behind = std::find_if(m_aActions.begin(), m_aActions.end(),
                                   [lTime](const Action& a) { return a.lTime > lTime; });
  m_aActions.insert(behind, {lTime, std::move(action)});
}

void VirtualPlatform::AddFile(const QString& sPath, const QByteArray& bytes, int iAttributes) {
  m_aFiles.insert(sPath.toUpper(), {bytes, iAttributes});
}

qint32 VirtualPlatform::GetTickCount() {
  if (clockFault) {
    const Fault fault = *clockFault;
    clockFault.reset();
    throw RuntimeError(fault);
  }
  return static_cast<qint32>(static_cast<quint32>(lNow));
}

void VirtualPlatform::LetMillisecondGoBy() {
  ++lNow;
  if (pPasses != nullptr) ++*pPasses;
}

void VirtualPlatform::SpinOnce() {
  LetMillisecondGoBy();
}

void VirtualPlatform::EndProcess() {
  throw ProcessEnded();
}

const VirtualPlatform::File& VirtualPlatform::FindFile(const QString& sPath) const {
  const auto found = m_aFiles.constFind(sPath.toUpper());
  if (found == m_aFiles.constEnd()) throw RuntimeError(Fault::FileNotFound);
  return *found;
}

QByteArray VirtualPlatform::ReadFile(const QString& sPath) {
  const File& file = FindFile(sPath);
  if (aUnreadable.contains(sPath.toUpper())) throw RuntimeError(Fault::FileAccess);
  return file.bytes;
}

int VirtualPlatform::FileAttributes(const QString& sPath) {
  return FindFile(sPath).iAttributes;
}

std::optional<qint32> VirtualPlatform::ReadRegistryNumber(Scope scope, const QString& sKey,
                                                          const QString& sName) {
  const auto& numbers = aNumbers[static_cast<int>(scope)];
  const auto found = numbers.constFind(sKey + u'\\' + sName);
  if (found == numbers.constEnd()) return {};
  return *found;
}

int VirtualPlatform::UserDefaultLanguage() {
  return iUserLanguage;
}

QString VirtualPlatform::LongTime() {
  return QString("%1 ms").arg(lNow / 1000 * 1000);
}

qint32 VirtualPlatform::CallTrackport(const char* sOperation,
                                      std::initializer_list<qint32> arguments) {
  return rig.Call(sOperation, arguments);
}

void VirtualPlatform::PumpEvents() {
  LetMillisecondGoBy();
  if (OnPump) OnPump();
  m_timers->FireDue();
  RunDueActions();
}

/// What is added for this millisecond by an action runs in this pump too.
void VirtualPlatform::RunDueActions() {
  while (!m_aActions.empty() && m_aActions.front().lTime <= lNow) {
    const std::function<void()> action = std::move(m_aActions.front().action);
    m_aActions.pop_front();
    action();
  }
}

BoxAnswer VirtualPlatform::NextAnswer(BoxButtons buttons) {
  if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
  if (aAnswers.empty()) return defaultAnswer;
  const BoxAnswer answer = aAnswers.front();
  aAnswers.pop_front();
  return answer;
}

BoxAnswer VirtualPlatform::ShowBox(const QString& sText, const QString& sTitle, BoxIcon icon,
                                   BoxButtons buttons) {
  const BoxAnswer answer = NextAnswer(buttons);
  aBoxes.push_back({sText, sTitle, icon, buttons, answer, lNow});
  if (OnBox) OnBox(aBoxes.back());
  ++iOpenBoxes;
  RunFor(iBoxMilliseconds);
  --iOpenBoxes;
  return answer;
}

void VirtualPlatform::Beep() {
  ++iBeeps;
  if (OnBeep) OnBeep();
}

}  // namespace glidetrak
