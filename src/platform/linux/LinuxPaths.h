#pragma once

// Between the station's paths (backslashes, case ignored) and native ones.

#include <QHash>
#include <QString>
#include <QStringList>

namespace glidetrak {

class LinuxPaths {
 public:
  /// The native path. A name that does not exist as spelt is looked up folder by folder without
  /// regard to case; what is nowhere stays as spelt. A file keeps the native spelling by which it
  /// was once found, also after it was deleted.
  QString Native(const QString& sStationPath);

  /// A native path written the station's way.
  static QString Station(const QString& sNative);

 private:
  QString Remember(const QString& sKey, const QString& sNative);

  QHash<QString, QString> m_aFound;  ///< station path without its case to native path
};

/// The arguments behind the program's name as one raw text. One that names a file becomes a
/// station path from the root, in double quotes when it holds a blank; a relative one means the
/// folder in which the command was typed.
QString CommandLine(const QStringList& aArguments);

}  // namespace glidetrak
