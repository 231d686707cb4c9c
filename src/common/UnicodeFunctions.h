#pragma once

// Text between the station and the 8-bit world: the code page, trimming and case.
//
// The code page is Windows-1252, where the five bytes that it leaves unassigned (0x81, 0x8D, 0x8F,
// 0x90, 0x9D) stand for the control characters of the same number, so that all 256 bytes survive
// reading and writing.

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace glidetrak {

/// One character for each byte.
QString FromCodePage(const QByteArray& bytes);

/// One byte for each character; a character that the code page lacks becomes '?'.
QByteArray ToCodePage(const QString& sText);

/// The character's code in the code page, 0 to 255; that of '?' when the code page lacks it.
int CharCode(QChar character);

/// The character of a code, 0 to 255.
QChar CharFromCode(int iCode);

/// Takes blanks (U+0020) off both ends, and nothing else: tabs and no-break spaces stay.
QString TrimBlanks(const QString& sText);

/// Character by character within the code page, so that the length never changes: a character
/// whose counterpart the code page lacks stays as it is.
QString UpperCase(const QString& sText);
QString LowerCase(const QString& sText);
QChar UpperCase(QChar character);

/// The value of the number at the head of the text: sign, digits, point, digits. 0 without one.
double NumericPrefix(const QString& sText);

/// A to Z, the letters that name a variable.
constexpr bool IsLetter(QChar character) {
  return character >= u'A' && character <= u'Z';
}

/// 0 to 9; other scripts' digits are no digits here.
constexpr bool IsDigit(QChar character) {
  return character >= u'0' && character <= u'9';
}

}  // namespace glidetrak
