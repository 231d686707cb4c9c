#include "platform/linux/LinuxPaths.h"

#include <QDir>
#include <QFileInfo>

#include "platform/FoldCase.h"

namespace glidetrak {

namespace {

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
  const QString sPath = LinuxPaths::Station(QDir::cleanPath(file.absoluteFilePath()));
  return sPath.contains(u' ') ? u'"' + sPath + u'"' : sPath;
}

}  // namespace

QString LinuxPaths::Native(const QString& sStationPath) {
  const QString sKey = FoldCase(sStationPath);
  QString sAsSpelt = sStationPath;
  sAsSpelt.replace(u'\\', u'/');
  if (QFileInfo::exists(sAsSpelt)) return Remember(sKey, sAsSpelt);
  QString sKnown = m_aFound.value(sKey);
  if (QFileInfo::exists(sKnown)) return sKnown;
  const QString sFound = Lookup(sAsSpelt);
  if (QFileInfo::exists(sFound)) return Remember(sKey, sFound);
  return sKnown.isEmpty() ? sFound : sKnown;
}

QString LinuxPaths::Remember(const QString& sKey, const QString& sNative) {
  m_aFound.insert(sKey, sNative);
  return sNative;
}

QString LinuxPaths::Station(const QString& sNative) {
  QString sPath = sNative;
  return sPath.replace(u'/', u'\\');
}

QString CommandLine(const QStringList& aArguments) {
  QStringList aTexts;
  for (const QString& sArgument : aArguments.mid(1)) aTexts.append(ArgumentText(sArgument));
  return aTexts.join(u' ');
}

}  // namespace glidetrak
