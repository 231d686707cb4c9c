#include "platform/linux/LinuxPaths.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "platform/FoldCase.h"

namespace glidetrak {

namespace {

/// Characters that a native name can hold and a station path cannot: the backslash parts names, and
/// double quotes are cut out of the command line.
struct Substitute {
  QChar native;
  QChar station;
};
constexpr Substitute Substitutes[] = {{u'"', QChar(0xF022)}, {u'\\', QChar(0xF05C)}};

QString AsSpelt(const QString& sStationPath) {
  QString sPath = sStationPath;
  sPath.replace(u'\\', u'/');
  for (const Substitute& row : Substitutes) sPath.replace(row.station, row.native);
  return sPath;
}

bool HasSmallLetter(const QString& sText) {
  return std::any_of(sText.cbegin(), sText.cend(), [](QChar c) { return c >= u'a' && c <= u'z'; });
}

/// The file that the command line named by this path, which has come through it in upper case; ""
/// if none.
QString NamedFile(const QString& sStationPath) {
  return HasSmallLetter(sStationPath) ? QString() : aNamedFiles.value(FoldCase(sStationPath));
}

/// The entry of that folder which has the name but for its case; "" if there is none.
QString FindEntry(const QString& sFolder, const QString& sName) {
  const auto filters = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
  for (const QString& sEntry : QDir(sFolder).entryList(filters, QDir::Name)) {
    if (sEntry.compare(sName, Qt::CaseInsensitive) == 0) return sEntry;
  }
  return {};
}

/// Folder by folder; from the first name that is nowhere the rest stays as spelt.
QString Lookup(const QString& sPath) {
  QString sFound = sPath.startsWith(u'/') ? "/" : "";
  for (const QString& sName : sPath.split(u'/', Qt::SkipEmptyParts)) {
    const QString sExact = sFound + sName;
    const QString sEntry =
        QFileInfo::exists(sExact) ? sName : FindEntry(sFound.isEmpty() ? "." : sFound, sName);
    sFound += (sEntry.isEmpty() ? sName : sEntry) + u'/';
  }
  return sFound.size() > 1 ? sFound.chopped(1) : sFound;
}

QString ArgumentText(const QString& sArgument) {
  const QFileInfo file(sArgument);
  if (!file.exists()) return sArgument;
  const QString sNative = QDir::cleanPath(file.absoluteFilePath());
  const QString sPath = LinuxPaths::Station(sNative);
  aNamedFiles.insert(FoldCase(sPath), sNative);
  return sPath.contains(u' ') ? u'"' + sPath + u'"' : sPath;
}

}  // namespace

QString LinuxPaths::Native(const QString& sStationPath) {
  QString sKnown = m_aFound.value(sStationPath, NamedFile(sStationPath));
  if (QFileInfo::exists(sKnown)) return Remember(sStationPath, sKnown);
  const QString sAsSpelt = AsSpelt(sStationPath);
  if (QFileInfo::exists(sAsSpelt)) return Remember(sStationPath, sAsSpelt);
  if (!sKnown.isEmpty()) return sKnown;
  const QString sFound = Lookup(sAsSpelt);
  return QFileInfo::exists(sFound) ? Remember(sStationPath, sFound) : sFound;
}

QString LinuxPaths::Given(const QString& sNative) {
  QString sPath = Station(sNative);
  if (QFileInfo::exists(sNative)) Remember(sPath, sNative);
  return sPath;
}

QString LinuxPaths::Remember(const QString& sStationPath, const QString& sNative) {
  m_aFound.insert(sStationPath, sNative);
  return sNative;
}

QString LinuxPaths::Station(const QString& sNative) {
  QString sPath = sNative;
  for (const Substitute& row : Substitutes) sPath.replace(row.native, row.station);
  return sPath.replace(u'/', u'\\');
}

bool LinuxPaths::IsName(const QString& sStationPath) {
  const QString sName = sStationPath.mid(sStationPath.lastIndexOf(u'\\') + 1);
  return std::none_of(std::begin(Substitutes), std::end(Substitutes), [&](const Substitute& row) {
    return sName.contains(row.native) || sName.contains(row.station);
  });
}

QString CommandLineText(const QStringList& aArguments) {
  QStringList aTexts;
  for (const QString& sArgument : aArguments.mid(1)) aTexts.append(ArgumentText(sArgument));
  return aTexts.join(u' ');
}

}  // namespace glidetrak
