#include "virtual/VirtualPlatform.h"

#include <algorithm>

#include "form/DesignState.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "hardware/USBIntegration.h"
#include "platform/ConfigurationText.h"

namespace glidetrak {

namespace {

constexpr float fMenuHeight = 315;

QString SettingName(const QString& sKey, const QString& sName) {
  return (sKey + u'\\' + sName).toUpper();
}

PixelRect FormRect() {
  const auto pixels = [](float fTwips) { return static_cast<qint32>(fTwips) / iTwipsPerPixel; };
  const qint32 lLeft = pixels(frmGlidetrak.Left);
  const qint32 lTop = pixels(frmGlidetrak.Top);
  return {lLeft, lTop, lLeft + pixels(frmGlidetrak.Width), lTop + pixels(frmGlidetrak.Height)};
}

}  // namespace

VirtualPlatform::VirtualPlatform() {
  pMachine = this;
  pHid = &rig;
  pDesktop = this;
  ResetForms();
  for (Form* pForm : {&frmGlidetrak, &frmAbout}) {
    pForm->Show = [pForm] { pForm->Visible = true; };
  }
  WatchWindow();
  m_timers = std::make_unique<VirtualTimers>(&lNow);
}

/// A window without a frame whose menu bar takes a fixed height; every new size is told.
void VirtualPlatform::WatchWindow() {
  const auto resized = [] {
    frmGlidetrak.ScaleWidth = frmGlidetrak.Width.value();
    frmGlidetrak.ScaleHeight = frmGlidetrak.Height - fMenuHeight;
    frmGlidetrak.Resize();
  };
  m_widthNotifier = frmGlidetrak.Width.addNotifier(resized);
  m_heightNotifier = frmGlidetrak.Height.addNotifier(resized);
  screen.Width = 1920.0F * iTwipsPerPixel;
  screen.Height = 1080.0F * iTwipsPerPixel;
}

VirtualPlatform::~VirtualPlatform() {
  UsbCloseAdapter();  // the device object must not outlive the rig on which it closes itself
  pMachine = nullptr;
  pHid = nullptr;
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

void VirtualPlatform::WriteFile(const QString& sPath, const QByteArray& bytes) {
  const auto found = m_aFiles.constFind(sPath.toUpper());
  const bool bFolder = found != m_aFiles.constEnd() && (found->iAttributes & attrFolder) != 0;
  if (bFolder) throw RuntimeError(Fault::FileAccess);
  if (aUnwritable.contains(sPath.toUpper())) throw RuntimeError(Fault::WriteBroken);
  AddFile(sPath, bytes);
}

void VirtualPlatform::DeleteFile(const QString& sPath) {
  FindFile(sPath);
  if (aUndeletable.contains(sPath.toUpper())) throw RuntimeError(Fault::FileAccess);
  m_aFiles.remove(sPath.toUpper());
}

std::optional<QByteArray> VirtualPlatform::FileBytes(const QString& sPath) const {
  const auto found = m_aFiles.constFind(sPath.toUpper());
  if (found == m_aFiles.constEnd()) return {};
  return found->bytes;
}

QString VirtualPlatform::DocumentsFolder() {
  if (!sDocuments) throw RuntimeError(Fault::PlatformCall);
  return *sDocuments;
}

QString VirtualPlatform::ReadSetting(Scope scope, const QString& sKey, const QString& sName) {
  return aSettings[static_cast<int>(scope)].value(SettingName(sKey, sName));
}

bool VirtualPlatform::WriteSetting(Scope scope, const QString& sKey, const QString& sName,
                                   const QString& sValue) {
  const int iScope = static_cast<int>(scope);
  if (bScopeWritable[iScope]) aSettings[iScope].insert(SettingName(sKey, sName), sValue);
  return bScopeWritable[iScope];
}

std::optional<QByteArray> VirtualPlatform::ConfigurationValue(const QString& sSection,
                                                              const QString& sKey,
                                                              const QString& sPath) {
  return ConfigurationText(ReadFile(sPath)).Value(sSection, sKey);
}

std::optional<PixelRect> VirtualPlatform::NormalRect() {
  if (!bNormalRectKnown) return {};
  return FormRect();
}

std::optional<PixelRect> VirtualPlatform::WindowRect() {
  if (!bWindowRectKnown) return {};
  return FormRect();
}

void VirtualPlatform::MoveWindow(qint32 lLeft, qint32 lTop) {
  frmGlidetrak.Left = static_cast<float>(lLeft * iTwipsPerPixel);
  frmGlidetrak.Top = static_cast<float>(lTop * iTwipsPerPixel);
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
                                   BoxButtons buttons, BoxPlace place) {
  const BoxAnswer answer = NextAnswer(buttons);
  aBoxes.push_back({sText, sTitle, icon, buttons, answer, lNow, place});
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
