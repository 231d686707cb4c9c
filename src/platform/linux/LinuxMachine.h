#pragma once

// The machine as Linux answers it: everything that needs no window.

#include <sys/types.h>

#include <QHash>
#include <QLibrary>

#include "platform/KeptConfiguration.h"
#include "platform/Platform.h"
#include "platform/linux/LinuxInstance.h"
#include "platform/linux/LinuxPaths.h"

namespace glidetrak {

class LinuxMachine : public Machine {
 public:
  /// Called when a later copy asks this one to come forward.
  void SetActivation(std::function<void()> activate) {
    m_instance.SetActivation(std::move(activate));
  }

  qint32 GetTickCount() override;
  [[noreturn]] void EndProcess() override;
  QByteArray ReadFile(const QString& sPath) override;
  void WriteFile(const QString& sPath, const QByteArray& bytes) override;
  void DeleteFile(const QString& sPath) override;
  QString CommandLine() override;
  QString ExecutableFolder() override;
  void SetCurrentFolder(const QString& sPath) override;
  QString NativePath(const QString& sStationPath) override { return m_paths.Native(sStationPath); }
  QString StationPath(const QString& sNativePath) override { return m_paths.Given(sNativePath); }
  QString DocumentsFolder() override;
  QString ReadSetting(Scope scope, const QString& sKey, const QString& sName) override;
  bool WriteSetting(Scope scope, const QString& sKey, const QString& sName,
                    const QString& sValue) override;
  std::optional<QByteArray> ConfigurationValue(const QString& sSection, const QString& sKey,
                                               const QString& sPath) override;
  bool TakeSingleInstance() override { return m_instance.Take(); }
  void ActivateOtherCopy() override { m_instance.ActivateOther(); }
  int FileAttributes(const QString& sPath) override;
  std::optional<qint32> ReadRegistryNumber(Scope scope, const QString& sKey,
                                           const QString& sName) override;
  int UserDefaultLanguage() override;
  QString LongTime() override;
  qint32 CallTrackport(const char* sOperation, std::initializer_list<qint32> arguments) override;

 private:
  /// An operation of the parallel library; the name is the caller's literal.
  struct Operation {
    const char* sName;
    QFunctionPointer pointer;
  };

  QFunctionPointer FindOperation(const char* sName);

  /// The native path of a file; "" for a name that no file of the station bears.
  QString NativeFile(const QString& sPath);

  LinuxPaths m_paths;
  QHash<QString, mode_t> m_aDeletedModes;  ///< of files deleted and not rewritten, by native path
  KeptConfiguration m_configuration;
  LinuxInstance m_instance;
  QLibrary m_trackport;  ///< libtrackport32.so beside the executable, loaded at its first call
  std::vector<Operation> m_aOperations;  ///< those that were called
};

}  // namespace glidetrak
