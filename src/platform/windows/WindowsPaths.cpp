#include "platform/windows/WindowsPaths.h"

#include <QDir>

#include "platform/windows/Api.h"

namespace glidetrak {

namespace {

/// A path as long as this is taken by its full name alone, which is left as it stands.
constexpr size_t iLongPath = 248;

std::wstring FromRoot(const std::wstring& sPath) {
  const DWORD lRoom = GetFullPathNameW(sPath.c_str(), 0, nullptr, nullptr);
  std::wstring sFull(lRoom, 0);
  sFull.resize(lRoom == 0 ? 0 : GetFullPathNameW(sPath.c_str(), lRoom, sFull.data(), nullptr));
  return sFull;
}

/// The name under which a folder lists the file or folder at its end; the name as it is where there
/// is none.
QString ListedName(const QString& sPath, const QString& sName) {
  if (sName.isEmpty() || sName == u"." || sName == u".." || sName.contains(u'*') ||
      sName.contains(u'?')) {
    return sName;
  }
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(sPath.toStdWString().c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return sName;
  FindClose(search);
  return QString::fromWCharArray(found.cFileName);
}

/// As the disk spells it, as far as it is there: the toolkit's list of a folder stays empty under
/// another spelling. A share is not asked, which may be gone and would be waited for.
QString AsOnDisk(const QString& sPath) {
  const qsizetype iFolderEnd = sPath.lastIndexOf(u'\\');
  if (iFolderEnd <= 0 || sPath.startsWith(u"\\\\")) return sPath;
  return AsOnDisk(sPath.left(iFolderEnd)) + u'\\' + ListedName(sPath, sPath.mid(iFolderEnd + 1));
}

/// The end of the first name of a command line: the quotes count, not what stands in them.
qsizetype EndOfName(const QString& sCommandLine) {
  bool bQuoted = false;
  qsizetype i = 0;
  for (; i < sCommandLine.size(); ++i) {
    if (sCommandLine[i] == u'"') bQuoted = !bQuoted;
    if (!bQuoted && (sCommandLine[i] == u' ' || sCommandLine[i] == u'\t')) break;
  }
  return i;
}

}  // namespace

QString ToolkitPath(const QString& sStationPath) {
  return QDir::fromNativeSeparators(AsOnDisk(sStationPath));
}

QString StationPathOf(const QString& sToolkitPath) {
  return QDir::toNativeSeparators(sToolkitPath);
}

std::wstring CallPath(const QString& sStationPath) {
  if (sStationPath.isEmpty() || sStationPath.contains(QChar(u'\0'))) return {};
  const std::wstring sFull = FromRoot(sStationPath.toStdWString());
  if (sFull.size() < iLongPath || sFull.starts_with(L"\\\\?\\")) return sFull;
  if (sFull.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + sFull.substr(2);
  return L"\\\\?\\" + sFull;
}

QString BehindProgramName(const QString& sCommandLine) {
  qsizetype i = EndOfName(sCommandLine);
  while (i < sCommandLine.size() && (sCommandLine[i] == u' ' || sCommandLine[i] == u'\t')) ++i;
  return sCommandLine.mid(i);
}

}  // namespace glidetrak
