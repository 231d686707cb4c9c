#pragma once

// Between the station's paths (backslashes, case ignored) and native ones.
//
// A station path cannot hold two characters that a native one can, a double quote and a backslash;
// in it they are written as U+F022 and U+F05C. A folder of such a name works; a file of such a name
// is none for the station (IsName).

#include <QHash>
#include <QString>
#include <QStringList>

namespace glidetrak {

/// The files that the command line named, which the station takes in upper case: station path
/// without its case to native path. Filled by CommandLineText.
inline QHash<QString, QString> aNamedFiles;

class LinuxPaths {
 public:
  /// The native path. A name that does not exist as spelt is looked up folder by folder without
  /// regard to case; what is nowhere stays as spelt. A path keeps the native spelling by which its
  /// file was once found, also after the file was deleted, so that a file rewritten never lands in
  /// a neighbour whose name differs in case only.
  QString Native(const QString& sStationPath);

  /// A native path written the station's way.
  static QString Station(const QString& sNative);

  /// The same for a file that the user has chosen: from now on the station path is that file's.
  QString Given(const QString& sNative);

  /// False when the last name of the path holds a double quote or a backslash.
  static bool IsName(const QString& sStationPath);

 private:
  QString Remember(const QString& sStationPath, const QString& sNative);

  QHash<QString, QString> m_aFound;  ///< station path as it was asked for to native path
};

/// The arguments behind the program's name as one raw text. One that names a file becomes a
/// station path from the root, in double quotes when it holds a blank; a relative one means the
/// folder in which the command was typed. That path, upper-cased or not, stays that file's.
QString CommandLineText(const QStringList& aArguments);

}  // namespace glidetrak
