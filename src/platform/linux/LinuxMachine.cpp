#include "platform/linux/LinuxMachine.h"

#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTime>
#include <cstring>
#include <ctime>

#include "platform/ProcessEnd.h"
#include "platform/TrackportCall.h"
#include "platform/linux/LinuxLanguage.h"
#include "platform/linux/LinuxSettings.h"

namespace glidetrak {

namespace {

constexpr auto forWriting = QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered;

/// A file that was there before gets its mode back. Until then nobody else may open it.
bool OpenForWriting(QFile& file, std::optional<mode_t> mode) {
  if (file.fileName().isEmpty()) return false;
  if (!mode) return file.open(forWriting);
  if (!file.open(forWriting, QFileDevice::ReadOwner | QFileDevice::WriteOwner)) return false;
  // Not every file system has modes, and a program is worth more than its mode.
  [[maybe_unused]] const int iResult = fchmod(file.handle(), *mode);
  return true;
}

bool WriteAll(QFile& file, const QByteArray& bytes) {
  if (file.write(bytes) != bytes.size()) return false;
  file.close();
  return file.error() == QFileDevice::NoError;
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
  DoLastDeed();
  std::_Exit(0);
}

QString LinuxMachine::NativeFile(const QString& sPath) {
  return LinuxPaths::IsName(sPath) ? m_paths.Native(sPath) : QString();
}

QByteArray LinuxMachine::ReadFile(const QString& sPath) {
  const QString sNative = NativeFile(sPath);
  const QFileInfo info(sNative);
  if (!info.exists()) throw RuntimeError(Fault::FileNotFound);
  QFile file(sNative);
  // A pipe or a device would block: what is no regular file cannot be read.
  if (!info.isFile() || !file.open(QIODevice::ReadOnly)) throw RuntimeError(Fault::FileAccess);
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) throw RuntimeError(Fault::FileAccess);
  return bytes;
}

int LinuxMachine::FileAttributes(const QString& sPath) {
  const QFileInfo info(NativeFile(sPath));
  if (!info.exists()) throw RuntimeError(Fault::FileNotFound);
  const auto anyWriter =
      QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
  const bool bWritable = info.isWritable() && (info.permissions() & anyWriter);
  return (info.isDir() ? attrFolder : 0) | (bWritable ? 0 : attrReadOnly);
}

void LinuxMachine::WriteFile(const QString& sPath, const QByteArray& bytes) {
  QFile file(NativeFile(sPath));
  std::optional<mode_t> mode;
  if (m_aDeletedModes.contains(file.fileName())) mode = m_aDeletedModes.take(file.fileName());
  if (!OpenForWriting(file, mode)) throw RuntimeError(Fault::FileAccess);
  if (!WriteAll(file, bytes)) throw RuntimeError(Fault::WriteBroken);
}

void LinuxMachine::DeleteFile(const QString& sPath) {
  const QString sNative = NativeFile(sPath);
  struct stat info {};
  if (stat(QFile::encodeName(sNative).constData(), &info) != 0) {
    throw RuntimeError(Fault::FileNotFound);
  }
  // Of a link it is the target that goes: the link itself stays, and a later write follows it.
  if (!QFile::remove(QFileInfo(sNative).canonicalFilePath())) throw RuntimeError(Fault::FileAccess);
  m_aDeletedModes.insert(sNative, info.st_mode & 07777);
}

QString LinuxMachine::CommandLine() {
  return CommandLineText(QCoreApplication::arguments());
}

QString LinuxMachine::ExecutableFolder() {
  return StationPath(QCoreApplication::applicationDirPath());
}

void LinuxMachine::SetCurrentFolder(const QString& sPath) {
  if (!QDir::setCurrent(m_paths.Native(sPath))) throw RuntimeError(Fault::FileAccess);
}

QString LinuxMachine::DocumentsFolder() {
  const QString sDocuments = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  for (const QString& sFolder : {sDocuments, qEnvironmentVariable("HOME")}) {
    if (QFileInfo(sFolder).isDir()) return StationPath(sFolder);
  }
  throw RuntimeError(Fault::PlatformCall);
}

QString LinuxMachine::ReadSetting(Scope scope, const QString& sKey, const QString& sName) {
  return LinuxSettings(scope).Text(sKey, sName);
}

bool LinuxMachine::WriteSetting(Scope scope, const QString& sKey, const QString& sName,
                                const QString& sValue) {
  return LinuxSettings(scope).Write(sKey, sName, sValue);
}

std::optional<QByteArray> LinuxMachine::ConfigurationValue(const QString& sSection,
                                                           const QString& sKey,
                                                           const QString& sPath) {
  return m_configuration.Read(*this, sPath).Value(sSection, sKey);
}

std::optional<qint32> LinuxMachine::ReadRegistryNumber(Scope scope, const QString& sKey,
                                                       const QString& sName) {
  return LinuxSettings(scope).Number(sKey, sName);
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

/// An operation that was called before is called again without a look into the library, as a
/// process that crashes calls it with nothing to rely on.
QFunctionPointer LinuxMachine::FindOperation(const char* sName) {
  for (const Operation& known : m_aOperations) {
    if (std::strcmp(known.sName, sName) == 0) return known.pointer;
  }
  if (!m_trackport.isLoaded()) {
    m_trackport.setFileName(QCoreApplication::applicationDirPath() + "/libtrackport32.so");
    if (!m_trackport.load()) throw RuntimeError(Fault::PlatformCall);
    MoveLastDeedAhead();
  }
  const QFunctionPointer pointer = m_trackport.resolve(sName);
  if (pointer == nullptr) throw RuntimeError(Fault::PlatformCall);
  m_aOperations.push_back({sName, pointer});
  return pointer;
}

qint32 LinuxMachine::CallTrackport(const char* sOperation,
                                   std::initializer_list<qint32> arguments) {
  return CallOperation(FindOperation(sOperation), arguments);
}

}  // namespace glidetrak
