#pragma once

// The settings store: one file a scope, in the configuration folders of the user and of the
// machine. The last name of a key's path is the group in the file.

#include <QSettings>
#include <optional>

#include "platform/Platform.h"

namespace glidetrak {

/// The scope's file. The machine's stands in /etc/xdg where the list of the machine's folders names
/// it, else in the last folder of that list.
QString SettingsFile(Scope scope);

class LinuxSettings {
 public:
  explicit LinuxSettings(Scope scope);

  // As in Machine.
  QString Text(const QString& sKey, const QString& sName);
  std::optional<qint32> Number(const QString& sKey, const QString& sName);
  bool Write(const QString& sKey, const QString& sName, const QString& sValue);

 private:
  QString FindName(const QString& sName) const;

  std::optional<QSettings> m_settings;  ///< none where what stands in its place is no file
};

}  // namespace glidetrak
