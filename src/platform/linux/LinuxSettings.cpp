#include "platform/linux/LinuxSettings.h"

#include <QStandardPaths>

namespace glidetrak {

namespace {

QString SettingsFile(Scope scope) {
  const QString sName = "/Torvane/Glidetrak.conf";
  const QStringList aFolders = QStandardPaths::standardLocations(QStandardPaths::ConfigLocation);
  if (scope == Scope::User) return aFolders.value(0) + sName;
  // A desktop may put folders of the user's own ahead of the machine's.
  return (aFolders.size() > 1 ? aFolders.last() : "/etc/xdg") + sName;
}

QString Group(const QString& sKey) {
  return sKey.mid(sKey.lastIndexOf(u'\\') + 1);
}

}  // namespace

LinuxSettings::LinuxSettings(Scope scope) : m_settings(SettingsFile(scope), QSettings::IniFormat) {
  m_settings.setFallbacksEnabled(false);
}

/// The spelling in the file of a name in the present group; names match without regard to case.
QString LinuxSettings::FindName(const QString& sName) const {
  for (const QString& sKey : m_settings.childKeys()) {
    if (sKey.compare(sName, Qt::CaseInsensitive) == 0) return sKey;
  }
  return sName;
}

QString LinuxSettings::Text(const QString& sKey, const QString& sName) {
  m_settings.beginGroup(Group(sKey));
  const QVariant value = m_settings.value(FindName(sName));
  m_settings.endGroup();
  // A text with commas comes back as a list.
  if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(u',');
  return value.toString();
}

/// A number stands in the file as dword: and its hexadecimal digits.
std::optional<qint32> LinuxSettings::Number(const QString& sKey, const QString& sName) {
  const QString sMark = "dword:";
  const QString sText = Text(sKey, sName);
  if (!sText.startsWith(sMark, Qt::CaseInsensitive)) return {};
  bool bOk = false;
  const quint32 lValue = sText.mid(sMark.size()).toUInt(&bOk, 16);
  if (!bOk) return {};
  return static_cast<qint32>(lValue);
}

/// A write counts as done only when the file was written.
bool LinuxSettings::Write(const QString& sKey, const QString& sName, const QString& sValue) {
  m_settings.beginGroup(Group(sKey));
  m_settings.setValue(FindName(sName), sValue);
  m_settings.endGroup();
  m_settings.sync();
  return m_settings.status() == QSettings::NoError;
}

}  // namespace glidetrak
