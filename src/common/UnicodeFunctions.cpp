#include "common/UnicodeFunctions.h"

#include <algorithm>
#include <array>

namespace glidetrak {

namespace {

constexpr int iFirstSpecial = 0x80;

/// Codes 0x80 to 0x9F; every other code is its own character.
constexpr std::array<char16_t, 32> aSpecials{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr int iNotInCodePage = -1;

int FindCode(QChar character) {
  const char16_t c = character.unicode();
  if (c < iFirstSpecial || (c >= 0xA0 && c <= 0xFF)) return c;
  const auto found = std::find(aSpecials.begin(), aSpecials.end(), c);
  if (found == aSpecials.end()) return iNotInCodePage;
  return iFirstSpecial + static_cast<int>(found - aSpecials.begin());
}

/// `changed` if the code page holds both, else the character as it was.
QChar WithinCodePage(QChar character, QChar changed) {
  const bool bWithin = FindCode(character) != iNotInCodePage && FindCode(changed) != iNotInCodePage;
  return bWithin ? changed : character;
}

template <class Change>
QString EachCharacter(const QString& sText, Change change) {
  QString sResult = sText;
  std::transform(sText.begin(), sText.end(), sResult.begin(), change);
  return sResult;
}

QString DigitRun(const QString& sText, qsizetype& i) {
  const qsizetype iFrom = i;
  while (i < sText.size() && IsDigit(sText[i])) ++i;
  return sText.mid(iFrom, i - iFrom);
}

}  // namespace

int CharCode(QChar character) {
  const int iCode = FindCode(character);
  return iCode == iNotInCodePage ? '?' : iCode;
}

QChar CharFromCode(int iCode) {
  const bool bSpecial = iCode >= iFirstSpecial && iCode < 0xA0;
  return bSpecial ? QChar(aSpecials[static_cast<size_t>(iCode - iFirstSpecial)]) : QChar(iCode);
}

QString FromCodePage(const QByteArray& bytes) {
  std::array<QChar, 256> aCharacters;
  for (int iCode = 0; iCode < 256; ++iCode) {
    aCharacters[static_cast<size_t>(iCode)] = CharFromCode(iCode);
  }
  QString sText(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), sText.begin(),
                 [&](char c) { return aCharacters[static_cast<unsigned char>(c)]; });
  return sText;
}

QByteArray ToCodePage(const QString& sText) {
  QByteArray bytes(sText.size(), Qt::Uninitialized);
  std::transform(sText.begin(), sText.end(), bytes.begin(),
                 [](QChar c) { return static_cast<char>(CharCode(c)); });
  return bytes;
}

QString TrimBlanks(const QString& sText) {
  qsizetype iFirst = 0;
  qsizetype iEnd = sText.size();
  while (iFirst < iEnd && sText[iFirst] == u' ') ++iFirst;
  while (iEnd > iFirst && sText[iEnd - 1] == u' ') --iEnd;
  return sText.mid(iFirst, iEnd - iFirst);
}

QChar UpperCase(QChar character) {
  return WithinCodePage(character, character.toUpper());
}

QString UpperCase(const QString& sText) {
  return EachCharacter(sText, [](QChar c) { return UpperCase(c); });
}

QString LowerCase(const QString& sText) {
  return EachCharacter(sText, [](QChar c) { return WithinCodePage(c, c.toLower()); });
}

double NumericPrefix(const QString& sText) {
  qsizetype i = 0;
  QString sNumber;
  if (!sText.isEmpty() && (sText[0] == u'-' || sText[0] == u'+')) sNumber = sText[i++];
  const QString sWhole = DigitRun(sText, i);
  QString sFraction;
  if (i < sText.size() && sText[i] == u'.') sFraction = DigitRun(sText, ++i);
  if (sWhole.isEmpty() && sFraction.isEmpty()) return 0;
  return QString(sNumber + sWhole + u'.' + sFraction).toDouble();
}

}  // namespace glidetrak
