#include "platform/ConfigurationText.h"

namespace glidetrak {

namespace {

/// The next line of the bytes, which loses it.
QByteArrayView TakeLine(QByteArrayView& rest) {
  qsizetype iEnd = 0;
  while (iEnd < rest.size() && rest[iEnd] != '\r' && rest[iEnd] != '\n') ++iEnd;
  const QByteArrayView line = rest.first(iEnd);
  rest = rest.sliced(iEnd == rest.size() ? iEnd : iEnd + 1);
  return line;
}

bool SameName(QByteArrayView name, const QString& sWanted) {
  return QString::fromLatin1(name.trimmed()).compare(sWanted, Qt::CaseInsensitive) == 0;
}

bool IsSectionHead(QByteArrayView line) {
  return line.trimmed().startsWith('[');
}

bool IsSection(QByteArrayView line, const QString& sSection) {
  const QByteArrayView head = line.trimmed().sliced(1);
  const qsizetype iEnd = head.indexOf(']');
  return SameName(iEnd < 0 ? head : head.first(iEnd), sSection);
}

QByteArrayView WithoutQuotes(QByteArrayView value) {
  const bool bQuoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                       value.front() == value.back();
  return bQuoted ? value.sliced(1, value.size() - 2) : value;
}

}  // namespace

std::optional<QByteArray> FindConfigurationString(const QByteArray& bytes, const QString& sSection,
                                                  const QString& sKey) {
  QByteArrayView rest = bytes;
  bool bInSection = false;
  while (!rest.isEmpty()) {
    const QByteArrayView line = TakeLine(rest);
    if (IsSectionHead(line)) {
      if (bInSection) return {};
      bInSection = IsSection(line, sSection);
      continue;
    }
    const qsizetype iEquals = line.indexOf('=');
    if (!bInSection || iEquals < 0 || !SameName(line.first(iEquals), sKey)) continue;
    return WithoutQuotes(line.sliced(iEquals + 1).trimmed()).toByteArray();
  }
  return {};
}

}  // namespace glidetrak
