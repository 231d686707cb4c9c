#pragma once

// The machine as Windows answers it: everything that needs no window.

#include "platform/KeptConfiguration.h"
#include "platform/Platform.h"
#include "platform/windows/WindowsFiles.h"
#include "platform/windows/WindowsInstance.h"
#include "platform/windows/WindowsLibrary.h"

namespace glidetrak {

class WindowsMachine : public Machine {
 public:
  /// Asks the system for timers of 1 ms while the process lives, and for no boxes of its own where
  /// a library or a disk fails.
  WindowsMachine();

  /// Called when a later copy asks this one to come forward.
  void SetActivation(std::function<void()> activate) {
    m_instance.SetActivation(std::move(activate));
  }

  qint32 GetTickCount() override;
  [[noreturn]] void EndProcess() override;
  QByteArray ReadFile(const QString& sPath) override { return m_files.Read(sPath); }
  int FileAttributes(const QString& sPath) override { return m_files.Attributes(sPath); }
  void WriteFile(const QString& sPath, const QByteArray& bytes) override {
    m_files.Write(sPath, bytes);
  }
  void DeleteFile(const QString& sPath) override { m_files.Delete(sPath); }
  QString CommandLine() override;
  QString ExecutableFolder() override;
  void SetCurrentFolder(const QString& sPath) override;
  QString NativePath(const QString& sStationPath) override;
  QString StationPath(const QString& sNativePath) override;
  QString DocumentsFolder() override;
  QString ReadSetting(Scope scope, const QString& sKey, const QString& sName) override;
  bool WriteSetting(Scope scope, const QString& sKey, const QString& sName,
                    const QString& sValue) override;
  std::optional<QByteArray> ConfigurationValue(const QString& sSection, const QString& sKey,
                                               const QString& sPath) override;
  bool TakeSingleInstance() override { return m_instance.Take(); }
  void ActivateOtherCopy() override { m_instance.ActivateOther(); }
  std::optional<qint32> ReadRegistryNumber(Scope scope, const QString& sKey,
                                           const QString& sName) override;
  int UserDefaultLanguage() override;
  QString LongTime() override;
  qint32 CallTrackport(const char* sOperation, std::initializer_list<qint32> arguments) override;

 private:
  WindowsFiles m_files;
  KeptConfiguration m_configuration;
  WindowsInstance m_instance;
  WindowsLibrary m_trackport;
};

}  // namespace glidetrak
