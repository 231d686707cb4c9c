#include "platform/linux/LinuxMachine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>
#include <QTime>
#include <ctime>

#include "platform/linux/LinuxLanguage.h"

namespace glidetrak {

namespace {

QString SettingsFile(Scope scope) {
  const QString sName = "Torvane/Glidetrak.conf";
  const QStringList aFolders = QStandardPaths::standardLocations(QStandardPaths::ConfigLocation);
  if (scope == Scope::User) return aFolders.value(0) + u'/' + sName;
  return aFolders.value(1, "/etc/xdg") + u'/' + sName;
}

/// The group of a key: the last name of its path.
QString SettingsGroup(const QString& sKey) {
  return sKey.mid(sKey.lastIndexOf(u'\\') + 1);
}

/// A text with commas comes back from the file as a list.
QString SettingText(const QVariant& value) {
  return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u',')
                                                  : value.toString();
}

/// Names match without regard to case.
QString FindSetting(QSettings& settings, const QString& sName) {
  for (const QString& sKey : settings.childKeys()) {
    if (sKey.compare(sName, Qt::CaseInsensitive) == 0) return SettingText(settings.value(sKey));
  }
  return {};
}

/// A number stands in the file as dword: and eight hexadecimal digits.
std::optional<qint32> NumberSetting(const QString& sText) {
  const QString sMark = "dword:";
  if (!sText.startsWith(sMark, Qt::CaseInsensitive)) return {};
  bool bOk = false;
  const quint32 lValue = sText.mid(sMark.size()).toUInt(&bOk, 16);
  if (!bOk) return {};
  return static_cast<qint32>(lValue);
}

using NoArguments = qint32 (*)();
using OneArgument = qint32 (*)(qint32);
using TwoArguments = qint32 (*)(qint32, qint32);

qint32 CallOperation(QFunctionPointer operation, std::initializer_list<qint32> arguments) {
  const qint32* pArguments = arguments.begin();
  switch (arguments.size()) {
    case 0:
      return reinterpret_cast<NoArguments>(operation)();
    case 1:
      return reinterpret_cast<OneArgument>(operation)(pArguments[0]);
    case 2:
      return reinterpret_cast<TwoArguments>(operation)(pArguments[0], pArguments[1]);
    default:
      throw RuntimeError(Fault::PlatformCall);
  }
}

}  // namespace

qint32 LinuxMachine::GetTickCount() {
  timespec now{};
  clock_gettime(CLOCK_BOOTTIME, &now);
  const quint64 lMilliseconds =
      static_cast<quint64>(now.tv_sec) * 1000 + static_cast<quint64>(now.tv_nsec) / 1'000'000;
  return static_cast<qint32>(static_cast<quint32>(lMilliseconds));
}

void LinuxMachine::EndProcess() {
  std::_Exit(0);
}

QByteArray LinuxMachine::ReadFile(const QString& sPath) {
  const QString sNative = m_paths.Native(sPath);
  const QFileInfo info(sNative);
  if (!info.exists()) throw RuntimeError(Fault::FileNotFound);
  QFile file(sNative);
  // A pipe or a device would block: what is no regular file cannot be read.
  if (!info.isFile() || !file.open(QIODevice::ReadOnly)) throw RuntimeError(Fault::FileAccess);
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) throw RuntimeError(Fault::FileAccess);
  return bytes;
}

int LinuxMachine::FileAttributes(const QString& sPath) {
  const QFileInfo info(m_paths.Native(sPath));
  if (!info.exists()) throw RuntimeError(Fault::FileNotFound);
  const auto anyWriter =
      QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
  const bool bWritable = info.isWritable() && (info.permissions() & anyWriter);
  return (info.isDir() ? attrFolder : 0) | (bWritable ? 0 : attrReadOnly);
}

std::optional<qint32> LinuxMachine::ReadRegistryNumber(Scope scope, const QString& sKey,
                                                       const QString& sName) {
  QSettings settings(SettingsFile(scope), QSettings::IniFormat);
  settings.beginGroup(SettingsGroup(sKey));
  return NumberSetting(FindSetting(settings, sName));
}

int LinuxMachine::UserDefaultLanguage() {
  return LanguageCode(QLocale::system());
}

QString LinuxMachine::LongTime() {
  const QLocale locale = KnownLocale(QLocale::system());
  QString sFormat = locale.timeFormat(QLocale::LongFormat);
  sFormat.remove(u't');
  return locale.toString(QTime::currentTime(), sFormat.trimmed());
}

qint32 LinuxMachine::CallTrackport(const char* sOperation,
                                   std::initializer_list<qint32> arguments) {
  if (!m_trackport.isLoaded()) {
    m_trackport.setFileName(QCoreApplication::applicationDirPath() + "/libtrackport32.so");
    if (!m_trackport.load()) throw RuntimeError(Fault::PlatformCall);
  }
  const QFunctionPointer operation = m_trackport.resolve(sOperation);
  if (operation == nullptr) throw RuntimeError(Fault::PlatformCall);
  return CallOperation(operation, arguments);
}

}  // namespace glidetrak
