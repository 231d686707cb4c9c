#pragma once

// The settings store: one file a scope, in the configuration folders of the user and of the
// machine. The last name of a key's path is the group in the file.

#include <QSettings>

#include "platform/Platform.h"

namespace glidetrak {

class LinuxSettings {
 public:
  explicit LinuxSettings(Scope scope);

  // As in Machine.
  QString Text(const QString& sKey, const QString& sName);
  std::optional<qint32> Number(const QString& sKey, const QString& sName);
  bool Write(const QString& sKey, const QString& sName, const QString& sValue);

 private:
  QString FindName(const QString& sName) const;

  QSettings m_settings;
};

}  // namespace glidetrak
