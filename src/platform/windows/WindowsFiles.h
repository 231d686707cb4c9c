#pragma once

// Files by the system's own calls. Failures are told as Machine tells them.

#include <QByteArray>
#include <QHash>
#include <QString>
#include <string>

namespace glidetrak {

class WindowsFiles {
 public:
  QByteArray Read(const QString& sPath);
  int Attributes(const QString& sPath);
  void Write(const QString& sPath, const QByteArray& bytes);
  void Delete(const QString& sPath);

 private:
  /// What a file was that was deleted and not rewritten. The command line comes in upper case, and
  /// a file is not to be renamed by it.
  struct Deleted {
    std::wstring sTarget;  ///< as the disk spelt it, and behind its links
    unsigned long lAttributes = 0;
  };

  QHash<QString, Deleted> m_aDeleted;  ///< by path
};

}  // namespace glidetrak
