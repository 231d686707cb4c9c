#include "platform/ConfigurationText.h"

#include <QSet>

#include "platform/FoldCase.h"

namespace glidetrak {

namespace {

/// Some editors put a mark ahead of the text, which is no part of the first line.
QByteArrayView WithoutMark(QByteArrayView text) {
  const QByteArrayView mark = "\xEF\xBB\xBF";
  return text.startsWith(mark) ? text.sliced(mark.size()) : text;
}

/// The next line of the bytes, which loses it.
QByteArrayView TakeLine(QByteArrayView& rest) {
  qsizetype iEnd = 0;
  while (iEnd < rest.size() && rest[iEnd] != '\r' && rest[iEnd] != '\n') ++iEnd;
  const QByteArrayView line = rest.first(iEnd);
  rest = rest.sliced(iEnd == rest.size() ? iEnd : iEnd + 1);
  return line;
}

QString Name(QByteArrayView name) {
  return FoldCase(QString::fromLatin1(name.trimmed()));
}

bool IsSectionHead(QByteArrayView line) {
  return line.trimmed().startsWith('[');
}

QString SectionName(QByteArrayView line) {
  const QByteArrayView head = line.trimmed().sliced(1);
  const qsizetype iEnd = head.indexOf(']');
  return Name(iEnd < 0 ? head : head.first(iEnd));
}

QByteArrayView WithoutQuotes(QByteArrayView value) {
  const bool bQuoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                       value.front() == value.back();
  return bQuoted ? value.sliced(1, value.size() - 2) : value;
}

}  // namespace

ConfigurationText::ConfigurationText(const QByteArray& bytes) {
  QByteArrayView rest = WithoutMark(bytes);
  QSet<QString> aSections;
  QString sSection;
  bool bInSection = false;
  while (!rest.isEmpty()) {
    const QByteArrayView line = TakeLine(rest);
    if (IsSectionHead(line)) {
      sSection = SectionName(line);
      bInSection = !aSections.contains(sSection);
      aSections.insert(sSection);
      continue;
    }
    const qsizetype iEquals = line.indexOf('=');
    if (!bInSection || iEquals < 0) continue;
    const auto name = std::pair(sSection, Name(line.first(iEquals)));
    if (m_aValues.contains(name)) continue;
    m_aValues.insert(name, WithoutQuotes(line.sliced(iEquals + 1).trimmed()).toByteArray());
  }
}

std::optional<QByteArray> ConfigurationText::Value(const QString& sSection,
                                                   const QString& sKey) const {
  const auto found = m_aValues.constFind({FoldCase(sSection), FoldCase(sKey)});
  if (found == m_aValues.constEnd()) return {};
  return *found;
}

}  // namespace glidetrak
