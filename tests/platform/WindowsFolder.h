#pragma once

// A folder of a test's own on Windows, by station paths.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/RuntimeError.h"
#include "station/Print.h"

namespace glidetrak {

class WindowsFolder {
 public:
  QString Path() const { return QDir::toNativeSeparators(m_folder.path()); }
  QString Path(const QString& sName) const { return Path() + u'\\' + sName; }

  void AddFile(const QString& sName, const QByteArray& bytes) const {
    QFile file(Path(sName));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << sName.toStdString();
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
