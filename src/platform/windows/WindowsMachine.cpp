#include "platform/windows/WindowsMachine.h"

#include <cstdlib>

#include "platform/ProcessEnd.h"
#include "platform/TrackportCall.h"
#include "platform/windows/Api.h"
#include "platform/windows/ExecutablePath.h"
#include "platform/windows/WindowsPaths.h"
#include "platform/windows/WindowsSettings.h"

// Behind the system's own declarations.
#include <shlobj.h>
#include <timeapi.h>

namespace glidetrak {

namespace {

/// A window that is minimised or covered would else lose its fine timers, and a program in it its
/// pace. Systems that know no such thing refuse it.
void KeepFineTimers() {
  PROCESS_POWER_THROTTLING_STATE state{};
  state.Version = PROCESS_POWER_THROTTLING_CURRENT_VERSION;
  state.ControlMask = PROCESS_POWER_THROTTLING_IGNORE_TIMER_RESOLUTION;
  SetProcessInformation(GetCurrentProcess(), ProcessPowerThrottling, &state, sizeof state);
}

}  // namespace

std::wstring ExecutableFolderPath() {
  std::wstring sPath(MAX_PATH, 0);
  DWORD lLength = 0;
  while ((lLength = GetModuleFileNameW(nullptr, sPath.data(), static_cast<DWORD>(sPath.size()))) ==
         sPath.size()) {
    sPath.resize(2 * sPath.size());
  }
  sPath.resize(lLength);
  return sPath.substr(0, sPath.find_last_of(L'\\'));
}

WindowsMachine::WindowsMachine() {
  timeBeginPeriod(1);
  KeepFineTimers();
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

/// The system's counter of that name moves in steps of 16 ms; this one is the same in steps of 1.
qint32 WindowsMachine::GetTickCount() {
  return static_cast<qint32>(timeGetTime());
}

void WindowsMachine::EndProcess() {
  DoLastDeed();
  std::_Exit(0);
}

QString WindowsMachine::CommandLine() {
  return BehindProgramName(QString::fromWCharArray(GetCommandLineW()));
}

QString WindowsMachine::ExecutableFolder() {
  return QString::fromStdWString(ExecutableFolderPath());
}

void WindowsMachine::SetCurrentFolder(const QString& sPath) {
  if (!SetCurrentDirectoryW(CallPath(sPath).c_str())) throw RuntimeError(Fault::FileAccess);
}

QString WindowsMachine::NativePath(const QString& sStationPath) {
  return ToolkitPath(sStationPath);
}

QString WindowsMachine::StationPath(const QString& sNativePath) {
  return StationPathOf(sNativePath);
}

/// Not asked whether it is there: a share that is gone would be waited for.
QString WindowsMachine::DocumentsFolder() {
  PWSTR sFolder = nullptr;
  const HRESULT result =
      SHGetKnownFolderPath(FOLDERID_Documents, KF_FLAG_DONT_VERIFY, nullptr, &sFolder);
  const QString sPath = sFolder == nullptr ? QString() : QString::fromWCharArray(sFolder);
  CoTaskMemFree(sFolder);
  if (FAILED(result) || sPath.isEmpty()) throw RuntimeError(Fault::PlatformCall);
  return sPath;
}

QString WindowsMachine::ReadSetting(Scope scope, const QString& sKey, const QString& sName) {
  return WindowsSettings(scope).Text(sKey, sName);
}

bool WindowsMachine::WriteSetting(Scope scope, const QString& sKey, const QString& sName,
                                  const QString& sValue) {
  return WindowsSettings(scope).Write(sKey, sName, sValue);
}

std::optional<QByteArray> WindowsMachine::ConfigurationValue(const QString& sSection,
                                                             const QString& sKey,
                                                             const QString& sPath) {
  return m_configuration.Read(*this, sPath).Value(sSection, sKey);
}

std::optional<qint32> WindowsMachine::ReadRegistryNumber(Scope scope, const QString& sKey,
                                                         const QString& sName) {
  return WindowsSettings(scope).Number(sKey, sName);
}

int WindowsMachine::UserDefaultLanguage() {
  return GetUserDefaultLangID();
}

QString WindowsMachine::LongTime() {
  std::wstring sTime(80, 0);
  const int iLength = GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, nullptr, nullptr, sTime.data(),
                                      static_cast<int>(sTime.size()));
  return iLength == 0 ? QString() : QString::fromWCharArray(sTime.c_str());
}

qint32 WindowsMachine::CallTrackport(const char* sOperation,
                                     std::initializer_list<qint32> arguments) {
  const auto iArguments = static_cast<int>(arguments.size());
  return CallOperation(m_trackport.Find(sOperation, iArguments), arguments);
}

}  // namespace glidetrak
