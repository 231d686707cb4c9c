#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/linux/LinuxPaths.h"

namespace glidetrak {

/// A folder that goes with the test.
class TemporaryFolder {
 public:
  QString Native(const QString& sName) const { return m_folder.filePath(sName); }

  /// The same written the station's way.
  QString Station(const QString& sName) const { return LinuxPaths::Station(Native(sName)); }

  void AddFile(const QString& sName, const QByteArray& bytes = {}) const {
    QDir().mkpath(QFileInfo(Native(sName)).path());
    QFile file(Native(sName));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
      qFatal("cannot write %s", qPrintable(file.fileName()));
    }
  }

 private:
  QTemporaryDir m_folder;
};

}  // namespace glidetrak
