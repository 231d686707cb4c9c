#pragma once

// Files by the system's own calls. Failures are told as Machine tells them.

#include <QByteArray>
#include <QHash>
#include <QString>

namespace glidetrak {

class WindowsFiles {
 public:
  QByteArray Read(const QString& sPath);
  int Attributes(const QString& sPath);
  void Write(const QString& sPath, const QByteArray& bytes);
  void Delete(const QString& sPath);

 private:
  /// What a file that was deleted and not rewritten had: hidden and the like, by its path.
  QHash<QString, unsigned long> m_aDeleted;
};

}  // namespace glidetrak
