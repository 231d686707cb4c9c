#pragma once

// A native folder of a test's own.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/RuntimeError.h"
#include "platform/linux/LinuxPaths.h"
#include "station/Print.h"

namespace glidetrak {

class NativeFolder {
 public:
  QString Path() const { return m_folder.path(); }
  QString Path(const QString& sName) const { return m_folder.path() + '/' + sName; }
  /// The name may be written either way.
  QString StationPath(const QString& sName) const {
    return LinuxPaths::Station(Path()) + u'\\' + QString(sName).replace(u'/', u'\\');
  }

  /// A file with these bytes, and the folders to it.
  void AddFile(const QString& sName, const QByteArray& bytes = {}) const {
    QDir().mkpath(QFileInfo(Path(sName)).path());
    QFile file(Path(sName));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QByteArray Bytes(const QString& sName) const {
    QFile file(Path(sName));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << sName.toStdString();
    return file.readAll();
  }

 private:
  QTemporaryDir m_folder;
};

/// The fault that a step raises; fails and is Cancelled when it raises none.
template <class Step>
Fault FaultOf(Step step) {
  try {
    step();
  } catch (const RuntimeError& error) {
    return error.fault();
  }
  ADD_FAILURE() << "no fault was raised";
  return Fault::Cancelled;
}

}  // namespace glidetrak
