#include "platform/linux/LinuxSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace glidetrak {

namespace {

/// The machine's folder among those of its list. A desktop may put folders of the user's own ahead
/// of it and a distribution some of its own behind it, so that it is known by its name, and only a
/// list without it is taken to end in it.
QString MachineFolder(const QStringList& aFolders) {
  QString sUsual = "/etc/xdg";
  for (const QString& sFolder : aFolders) {
    if (QDir::cleanPath(sFolder) == sUsual) return sUsual;
  }
  return aFolders.isEmpty() ? sUsual : aFolders.last();
}

QString Group(const QString& sKey) {
  return sKey.mid(sKey.lastIndexOf(u'\\') + 1);
}

}  // namespace

QString SettingsFile(Scope scope) {
  const QStringList aFolders = QStandardPaths::standardLocations(QStandardPaths::ConfigLocation);
  const QString sFolder = scope == Scope::User ? aFolders.value(0) : MachineFolder(aFolders.mid(1));
  return sFolder + "/Torvane/Glidetrak.conf";
}

LinuxSettings::LinuxSettings(Scope scope) {
  const QFileInfo file(SettingsFile(scope));
  // Opening a pipe would wait for its other end.
  if (file.exists() && !file.isFile()) return;
  m_settings.emplace(file.filePath(), QSettings::IniFormat);
  m_settings->setFallbacksEnabled(false);
}

/// The spelling in the file of a name in the present group; names match without regard to case.
QString LinuxSettings::FindName(const QString& sName) const {
  for (const QString& sKey : m_settings->childKeys()) {
    if (sKey.compare(sName, Qt::CaseInsensitive) == 0) return sKey;
  }
  return sName;
}

QString LinuxSettings::Text(const QString& sKey, const QString& sName) {
  if (!m_settings) return {};
  m_settings->beginGroup(Group(sKey));
  const QVariant value = m_settings->value(FindName(sName));
  m_settings->endGroup();
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
  if (!m_settings) return false;
  m_settings->beginGroup(Group(sKey));
  m_settings->setValue(FindName(sName), sValue);
  m_settings->endGroup();
  m_settings->sync();
  return m_settings->status() == QSettings::NoError;
}

}  // namespace glidetrak
