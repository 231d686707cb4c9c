// One line, trimmed and in capitals, without its blanks and comments.

#include "language/Keywords.h"
#include "language/LanguageTest.h"

namespace glidetrak {
namespace {

class NormaliseLineTest : public LanguageTest {};

struct NormaliseRow {
  QString sLine;
  bool bIsPrint;
  QString sExpected;
  bool bEndsInQuotes;
};

const NormaliseRow PlainRows[] = {
    {"", false, "", false},
    {"BEEP", false, "BEEP", false},
    {"LET A = 1", false, "LETA=1", false},
    {"A  B   C", false, "ABC", false},
    {"PRINT A , B", true, "PRINTA,B", false},
    {"A\u007FB", false, "A\u007FB", false},
    {"A\u00A0B", false, "A\u00A0B", false},
};

const NormaliseRow QuoteRows[] = {
    {"PRINT \"A B\"  , C : NOTE", true, "PRINT\"A B\",C:NOTE", false},
    {"PRINT \"A", true, "PRINT\"A", true},
    {"PRINT\"", true, "PRINT\"", true},
    {"PRINT \"A\" \"B C\"", true, "PRINT\"A\"\"B C\"", false},
    {"GOTO \"TWO WORDS\"", false, "GOTO\"TWO WORDS\"", false},
    {"GOTO\"TWO WORDS\"", false, "GOTO\"TWOWORDS\"", true},
    {"LET \"A B\" C D", false, "LET\"AB\" C D", true},
    {"PRI\"N T", false, "PRI\"NT", false},
    {"\"\"\"\"\" X Y", false, "\"\"\"\"\"XY", false},
    {"\"\"\"\"\"\" X Y", false, "\"\"\"\"\"\" X Y", true},
};

const NormaliseRow CommentRows[] = {
    {": NOTE", false, "", false},
    {";", false, "", false},
    {"LET A=1 : B=2", false, "LETA=1", false},
    {"LET A=1;B=2", false, "LETA=1", false},
    {"GOTO \"A:B\"", false, "GOTO\"A", true},
    {"GOTO \"A;B\"", false, "GOTO\"A", true},
    {"PRINT \"A:B;C\"", true, "PRINT\"A:B;C\"", false},
    {"PRINT A ; \"X", true, "PRINTA;\"X", true},
};

const NormaliseRow ThenRows[] = {
    {"IF A <> 3  THEN ; CHECK", false, "IFA<>3", false},
    {"THEN", false, "", false},
    {"LABEL ATHENS", false, "LABELA", false},
    {"IF A=1 T HEN", false, "IFA=1THEN", false},
    {"IF A=1 THE", false, "IFA=1THE", false},
    {"PRINT \"THEN\"", true, "PRINT\"THEN\"", false},
    {"PRINT \"A\" THEN \"B", true, "PRINT\"A\"", false},
    {"GOTO \"THEN\"THEN", false, "GOTO\"THEN\"", false},
};

const NormaliseRow ControlRows[] = {
    {"A\tB", false, "AB", false},     {"PRINT \"A\tB\"", true, "PRINT\"AB\"", false},
    {"A\nB\rC", false, "ABC", false}, {QString::fromLatin1("A\0B\x1F", 4), false, "AB", false},
    {"TH\tEN", false, "THEN", false},
};

void ExpectRow(const NormaliseRow& row) {
  bool bEndsInQuotes = !row.bEndsInQuotes;
  EXPECT_EQ(NormaliseLine(row.sLine, row.bIsPrint, bEndsInQuotes), row.sExpected);
  EXPECT_EQ(bEndsInQuotes, row.bEndsInQuotes) << row.sLine.toStdString();
}

TEST_F(NormaliseLineTest, DropsBlanks) {
  for (const NormaliseRow& row : PlainRows) ExpectRow(row);
}

TEST_F(NormaliseLineTest, KeepsBlanksInsideQuotesFromTheSixthCharacterOn) {
  for (const NormaliseRow& row : QuoteRows) ExpectRow(row);
}

TEST_F(NormaliseLineTest, CutsCommentsEvenInsideQuotesUnlessItIsAPrint) {
  for (const NormaliseRow& row : CommentRows) ExpectRow(row);
}

TEST_F(NormaliseLineTest, CutsThenAnywhereOutsideQuotes) {
  for (const NormaliseRow& row : ThenRows) ExpectRow(row);
}

TEST_F(NormaliseLineTest, DropsControlCharactersInsideQuotesToo) {
  for (const NormaliseRow& row : ControlRows) ExpectRow(row);
}

TEST_F(NormaliseLineTest, LooksForTheWordOfTheTableAndForNoConstant) {
  KeywordTable[static_cast<size_t>(Keyword::Then)] = "DANN";
  bool bEndsInQuotes = false;
  EXPECT_EQ(NormaliseLine("IF A=1 DANN X", false, bEndsInQuotes), "IFA=1");
  EXPECT_EQ(NormaliseLine("IF A=1 THEN", false, bEndsInQuotes), "IFA=1THEN");
}

}  // namespace
}  // namespace glidetrak
