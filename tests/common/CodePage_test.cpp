// The code page, and the case and trimming that stay within it.

#include <gtest/gtest.h>

#include "common/UnicodeFunctions.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

QByteArray AllBytes() {
  QByteArray bytes;
  for (int i = 0; i < 256; ++i) bytes.append(static_cast<char>(i));
  return bytes;
}

TEST(CodePage, BringsAllBytesThereAndBack) {
  const QString sText = FromCodePage(AllBytes());
  EXPECT_EQ(sText.size(), 256);
  EXPECT_EQ(ToCodePage(sText), AllBytes());
}

TEST(CodePage, GivesEachByteACharacterOfItsOwn) {
  const QString sText = FromCodePage(AllBytes());
  for (int i = 0; i < 256; ++i) EXPECT_EQ(sText.indexOf(sText[i]), i);
}

TEST(CodePage, BringsEachCodeThereAndBack) {
  for (int i = 0; i < 256; ++i) EXPECT_EQ(CharCode(CharFromCode(i)), i);
}

struct CodeRow {
  int iCode;
  char16_t character;
};

const CodeRow CodeRows[] = {
    {0x00, 0x0000}, {0x0A, 0x000A}, {0x41, u'A'},   {0x7F, 0x007F}, {0x80, u'€'}, {0x83, u'ƒ'},
    {0x85, u'…'},   {0x8A, u'Š'},   {0x8C, u'Œ'},   {0x8E, u'Ž'},   {0x91, u'‘'}, {0x92, u'’'},
    {0x99, u'™'},   {0x9F, u'Ÿ'},   {0xA0, 0x00A0}, {0xB5, u'µ'},   {0xBF, u'¿'}, {0xDF, u'ß'},
    {0xE9, u'é'},   {0xF1, u'ñ'},   {0xFF, u'ÿ'},
};

TEST(CodePage, KnowsItsCharacters) {
  for (const CodeRow& row : CodeRows) {
    EXPECT_EQ(CharFromCode(row.iCode), QChar(row.character)) << row.iCode;
    EXPECT_EQ(CharCode(QChar(row.character)), row.iCode) << row.iCode;
  }
}

TEST(CodePage, KeepsItsFiveUnassignedBytesAsControlCharacters) {
  for (const int iCode : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
    EXPECT_EQ(CharFromCode(iCode), QChar(iCode)) << iCode;
    EXPECT_EQ(CharCode(QChar(iCode)), iCode) << iCode;
  }
}

TEST(CodePage, WritesWhatItLacksAsAQuestionMark) {
  for (const char16_t character : {u'Ω', u'Ā', u'♥', char16_t{0x0080}, char16_t{0x009F},
                                   char16_t{0x0192 - 1}, char16_t{0xFFFF}}) {
    EXPECT_EQ(CharCode(QChar(character)), '?') << static_cast<int>(character);
  }
  EXPECT_EQ(ToCodePage("1Ω2"), "1?2");
  EXPECT_EQ(ToCodePage(QString::fromUtf8("\xF0\x9F\x9A\x84")), "??");
}

struct TextRow {
  QString sText;
  QString sExpected;
};

const TextRow TrimRows[] = {
    {"", ""},
    {" ", ""},
    {"   ", ""},
    {"A", "A"},
    {"  A B  ", "A B"},
    {" A", "A"},
    {"A ", "A"},
    {"\tA\t", "\tA\t"},
    {" \tA\t ", "\tA\t"},
    {"\u00A0A\u00A0", "\u00A0A\u00A0"},
    {" \u00A0A\u00A0 ", "\u00A0A\u00A0"},
    {"\u3000A\u2003", "\u3000A\u2003"},
    {" A\r\n ", "A\r\n"},
    {QString::fromLatin1(" \0 ", 3), QString(QChar(0))},
};

TEST(TrimBlanks, TakesBlanksOffBothEndsAndNothingElse) {
  for (const TextRow& row : TrimRows) {
    EXPECT_EQ(TrimBlanks(row.sText), row.sExpected) << row.sText.toStdString();
  }
}

const TextRow UpperRows[] = {
    {"", ""},     {"abc XYZ 09", "ABC XYZ 09"}, {"éñüçæø", "ÉÑÜÇÆØ"}, {"ÿ", "Ÿ"}, {"šœž", "ŠŒŽ"},
    {"ß", "ß"},   {"straße", "STRAßE"},         {"µ", "µ"},           {"ƒ", "ƒ"}, {"ªº", "ªº"},
    {"÷×", "÷×"},
};

TEST(UpperCase, StaysWithinTheCodePage) {
  for (const TextRow& row : UpperRows) {
    EXPECT_EQ(UpperCase(row.sText), row.sExpected) << row.sText.toStdString();
  }
}

const TextRow LowerRows[] = {
    {"", ""},
    {"ABC xyz 09", "abc xyz 09"},
    {"ÉÑÜÇÆØ", "éñüçæø"},
    {"Ÿ", "ÿ"},
    {"ŠŒŽ", "šœž"},
    {"ß", "ß"},
    {"÷×", "÷×"},
};

TEST(LowerCase, StaysWithinTheCodePage) {
  for (const TextRow& row : LowerRows) {
    EXPECT_EQ(LowerCase(row.sText), row.sExpected) << row.sText.toStdString();
  }
}

/// Dotless and dotted i, the long s and the Kelvin sign have their other case within it.
TEST(Case, LeavesLettersOutsideTheCodePageAlone) {
  const QString sText = "ıİſ\u212AПп";
  EXPECT_EQ(UpperCase(sText), sText);
  EXPECT_EQ(LowerCase(sText), sText);
}

TEST(Case, NeverChangesALength) {
  for (int i = 0; i < 256; ++i) {
    const QString sText(CharFromCode(i));
    EXPECT_EQ(UpperCase(sText).size(), 1) << i;
    EXPECT_EQ(LowerCase(sText).size(), 1) << i;
  }
  EXPECT_EQ(UpperCase(FromCodePage(AllBytes())).size(), 256);
  EXPECT_EQ(LowerCase(FromCodePage(AllBytes())).size(), 256);
}

TEST(Case, NeverLeavesTheCodePage) {
  for (int i = 0; i < 256; ++i) {
    const QString sText(CharFromCode(i));
    EXPECT_EQ(FromCodePage(ToCodePage(UpperCase(sText))), UpperCase(sText)) << i;
    EXPECT_EQ(FromCodePage(ToCodePage(LowerCase(sText))), LowerCase(sText)) << i;
  }
}

struct NumberRow {
  QString sText;
  double fValue;
};

const NumberRow NumberRows[] = {
    {"", 0},      {"0", 0},       {"12", 12}, {"12AB", 12}, {"AB12", 0},
    {"-12", -12}, {"+12", 12},    {"-", 0},   {"+", 0},     {"--5", 0},
    {"-+5", 0},   {"1.5", 1.5},   {"1.", 1},  {".5", 0.5},  {"-.5", -0.5},
    {".", 0},     {"1.2.3", 1.2}, {"1E3", 1}, {"1e3", 1},   {" 5", 0},
    {"5 6", 5},   {"0012", 12},   {"1,5", 1}, {"&H10", 0},  {"99999999999", 99999999999.0},
    {"٣", 0},     {"-0", 0},
};

TEST(NumericPrefix, IsSignDigitsPointDigits) {
  for (const NumberRow& row : NumberRows) {
    EXPECT_EQ(NumericPrefix(row.sText), row.fValue) << row.sText.toStdString();
  }
}

TEST(Letters, AreCapitalsOfTheAlphabetAlone) {
  for (const char16_t c : {u'A', u'M', u'Z'}) EXPECT_TRUE(IsLetter(c));
  for (const char16_t c : {u'@', u'[', u'a', u'É', u'1', u'_'}) EXPECT_FALSE(IsLetter(c));
}

TEST(Digits, AreThoseOfTheAlphabetAlone) {
  for (const char16_t c : {u'0', u'5', u'9'}) EXPECT_TRUE(IsDigit(c));
  for (const char16_t c : {u'/', u':', u'A', u'²', u'٣'}) EXPECT_FALSE(IsDigit(c));
}

}  // namespace
}  // namespace glidetrak
