#pragma once

// The machine as Linux answers it: everything that needs no window.

#include <QLibrary>

#include "platform/Platform.h"
#include "platform/linux/LinuxPaths.h"

namespace glidetrak {

class LinuxMachine : public Machine {
 public:
  qint32 GetTickCount() override;
  [[noreturn]] void EndProcess() override;
  QByteArray ReadFile(const QString& sPath) override;
  int FileAttributes(const QString& sPath) override;
  std::optional<qint32> ReadRegistryNumber(Scope scope, const QString& sKey,
                                           const QString& sName) override;
  int UserDefaultLanguage() override;
  QString LongTime() override;
  qint32 CallTrackport(const char* sOperation, std::initializer_list<qint32> arguments) override;

 private:
  LinuxPaths m_paths;
  QLibrary m_trackport;  ///< libtrackport32.so beside the executable, loaded at its first call
};

}  // namespace glidetrak
