#include "view/EditorText.h"

#include <QTextBlock>
#include <QTextCharFormat>
#include <algorithm>

namespace glidetrak {

namespace {

constexpr QChar LineMark(0xB6);  ///< stands for what would break a line; every font has it
constexpr QChar Unshowable(0xFFFD);

bool IsLineEnd(QStringView sText, qsizetype i) {
  return sText[i] == u'\r' && i + 1 < sText.size() && sText[i + 1] == u'\n';
}

/// The object type is the one property of a format that the toolkit never hands on to what is typed
/// beside it, so that a substitute's own sign, typed by the user, stays that sign.
QTextCharFormat SubstituteFormat(QChar character) {
  QTextCharFormat format;
  format.setObjectType(QTextFormat::UserObject + character.unicode());
  return format;
}

/// The characters of a fragment with the substitutes turned back.
QString OriginalText(const QString& sShown, const QTextCharFormat& format) {
  if (format.objectType() < QTextFormat::UserObject) return sShown;
  const QChar original(format.objectType() - QTextFormat::UserObject);
  QString sText = sShown;
  return sText.replace(Shown(original), original);
}

/// What of the block lies between two positions of the document.
QString BlockText(const QTextBlock& block, int iFrom, int iTo) {
  QString sText;
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    const int iStart = std::max(iFrom, fragment.position());
    const int iEnd = std::min(iTo, fragment.position() + fragment.length());
    if (iStart >= iEnd) continue;
    const QString sPart = fragment.text().mid(iStart - fragment.position(), iEnd - iStart);
    sText += OriginalText(sPart, fragment.charFormat());
  }
  return sText;
}

}  // namespace

QChar Shown(QChar character) {
  const char16_t c = character.unicode();
  if ((c >= u'\n' && c <= u'\r') || c == 0x85 || c == 0x2028 || c == 0x2029) return LineMark;
  const bool bControl = (c < 0x20 && c != u'\t') || (c >= 0x7F && c < 0xA0);
  const bool bReserved = (c >= 0xFDD0 && c <= 0xFDEF) || c == 0xFFFC;
  return bControl || bReserved ? Unshowable : character;
}

int DocumentPosition(const std::vector<int>& aStarts, int iOffset) {
  const auto next = std::ranges::upper_bound(aStarts, iOffset);
  const int iLine = static_cast<int>(next - aStarts.begin()) - 1;
  const int iPosition = iOffset - iLine;
  return next == aStarts.end() ? iPosition : std::min(iPosition, *next - 2 - iLine);
}

/// Line i begins i places earlier in the document than in the text.
int StationOffset(const std::vector<int>& aStarts, int iPosition) {
  const auto next = std::ranges::partition_point(aStarts, [&](const int& iStart) {
    const auto iLine = &iStart - aStarts.data();
    return iStart - iLine <= iPosition;
  });
  return iPosition + static_cast<int>(next - aStarts.begin()) - 1;
}

void InsertShown(QTextCursor& cursor, QStringView sText) {
  QString sRun;
  const auto insertRun = [&] {
    if (!sRun.isEmpty()) cursor.insertText(sRun, QTextCharFormat());
    sRun.clear();
  };
  for (qsizetype i = 0; i < sText.size(); ++i) {
    const QChar character = sText[i];
    if (IsLineEnd(sText, i)) {
      sRun += u'\n';
      ++i;
    } else if (Shown(character) == character) {
      sRun += character;
    } else {
      insertRun();
      cursor.insertText(Shown(character), SubstituteFormat(character));
    }
  }
  insertRun();
}

QString StationText(const QTextDocument& document, int iFrom, int iTo) {
  QString sText;
  QTextBlock block = document.findBlock(iFrom);
  for (; block.isValid() && block.position() <= iTo; block = block.next()) {
    if (block.position() > iFrom) sText += u"\r\n";
    sText += BlockText(block, iFrom, iTo);
  }
  return sText;
}

QString WithLineEnds(QStringView sText) {
  QString sResult;
  for (qsizetype i = 0; i < sText.size(); ++i) {
    const char16_t c = sText[i].unicode();
    if (IsLineEnd(sText, i)) continue;
    const bool bEnd = c == u'\n' || c == u'\r' || c == 0x2028 || c == 0x2029;
    if (bEnd) {
      sResult += u"\r\n";
    } else {
      sResult += sText[i];
    }
  }
  return sResult;
}

TextEdit Difference(QStringView sOld, QStringView sNew) {
  const auto head = std::ranges::mismatch(sOld, sNew);
  const qsizetype iHead = head.in1 - sOld.begin();
  const QStringView sOldRest = sOld.mid(iHead);
  const QStringView sNewRest = sNew.mid(iHead);
  const auto tail =
      std::mismatch(sOldRest.rbegin(), sOldRest.rend(), sNewRest.rbegin(), sNewRest.rend());
  const qsizetype iTail = tail.first - sOldRest.rbegin();
  return {static_cast<int>(iHead), static_cast<int>(sOldRest.size() - iTail),
          sNewRest.chopped(iTail).toString()};
}

}  // namespace glidetrak
