// What the compile pass refuses, with the line at fault selected, and the limits of its positions.

#include "language/LanguageTest.h"

namespace glidetrak {
namespace {

class CompileErrors : public LanguageTest {};

struct ErrorRow {
  QString sText;
  int iMessage;
  Selection selection;
};

const ErrorRow ErrorRows[] = {
    {"IF A=1\r\nIF B=1\r\nENDIF", 501, {8, 6}},
    {"IF A=1\r\nIF B=1", 501, {8, 6}},
    {"IF A=1\r\nIF B=1\r\nIF C=1\r\nPRINT \"", 501, {8, 6}},
    {"BEEP\r\nENDIF", 502, {6, 5}},
    {"ENDIF", 502, {0, 5}},
    {"IF A=1\r\nENDIF\r\nENDIF", 502, {15, 5}},
    {"IF A=1\r\nBEEP", 502, {8, 4}},
    {"IF A=1\r\nBEEP\r\n", 502, {8, 4}},
    {"IF A=1", 502, {0, 6}},
    {"IF A=1\r\n", 502, {0, 6}},
    {"IF A=1\r\nEND IF", 502, {8, 6}},
    {"IF A=1\r\n\tENDIF", 502, {8, 6}},
    {"ENDIFFY", 502, {0, 7}},
    {"LABEL", 504, {0, 5}},
    {"BEEP\r\n  label  \r\nBEEP", 504, {6, 9}},
    {"PRINT \"ab", 507, {0, 9}},
    {"PRINT ab\"", 507, {0, 9}},
    {"PRINT\"", 507, {0, 6}},
    {"PRINTER \"", 507, {0, 9}},
    {"PRINT \"a : b", 507, {0, 12}},
    {"PRINT \"a\"b\"", 507, {0, 11}},
    {"BEEP\r\nPRINT \"a\" : it\"s\r\nLABEL", 507, {6, 16}},
    {"LABEL\r\nENDIF\r\nPRINT \"", 504, {0, 5}},
};

TEST_F(CompileErrors, AreToldOnceWithTheLineSelected) {
  for (const ErrorRow& row : ErrorRows) {
    SCOPED_TRACE(row.sText.toStdString());
    station.Forget();
    EXPECT_FALSE(Compile(row.sText));
    EXPECT_EQ(station.BoxTexts(), QStringList(English(row.iMessage)));
    EXPECT_EQ(SelectionNow(), row.selection);
    EXPECT_TRUE(bNeedCompile);
    ExpectProgramErrorBoxes();
  }
}

const char* const Accepted[] = {
    "PRINT \"a\"",      "PRINT a",     "PRI\"NT",    "LET A=\"",     "PRINT \"a\" THEN \"",
    "IF A=1\r\nENDIF",  "NONSENSE",    "LET A=(((",  "GOTO nowhere", "I F A=1",
    "POWER 99\r\nBEEP", "P RINT \"ab", ": PRINT \"",
};

TEST_F(CompileErrors, AreNoneWhereOnlyTheExecutionFindsFault) {
  for (const char* sText : Accepted) EXPECT_TRUE(Compile(sText)) << sText;
  EXPECT_TRUE(station.BoxTexts().empty());
}

TEST_F(CompileErrors, LeaveTheTableAsFarAsItCame) {
  Compile("BEEP\r\nprint \"a b\r\nHALT");
  EXPECT_EQ(LineTable[0].sText, "BEEP");
  EXPECT_EQ(LineTable[1].sText, "PRINT\"A B");
  EXPECT_EQ(LineTable[2].sText, "");
}

TEST_F(CompileErrors, WriteTheTargetOfLineZeroForAnEndifWithoutAnyIf) {
  Compile("BEEP\r\nBEEP\r\nENDIF");
  EXPECT_EQ(LineTable[0].lTargetLine, 2);
}

TEST_F(CompileErrors, WriteNoTargetForASecondEndif) {
  Compile("IF A=1\r\nENDIF\r\nENDIF");
  EXPECT_EQ(LineTable[0].lTargetLine, 1);
}

QString Labels(int iCount) {
  QStringList aLines;
  for (int i = 1; i <= iCount; ++i) aLines.append(QString("LABEL L%1").arg(i));
  return aLines.join("\r\n");
}

TEST_F(CompileErrors, AcceptThirtyLabels) {
  EXPECT_TRUE(Compile(Labels(30)));
  EXPECT_EQ(iNextLabel, 31);
  EXPECT_EQ(LabelTable[30].sName, "L30");
  EXPECT_EQ(LabelTable[30].lLine, 29);
}

TEST_F(CompileErrors, RefuseAThirtyFirstLabel) {
  EXPECT_FALSE(Compile(Labels(31) + "\r\nENDIF"));
  EXPECT_EQ(station.BoxTexts(), QStringList(English(521)));
  EXPECT_EQ(txtProgram.SelText(), "LABEL L31");
  EXPECT_TRUE(bNeedCompile);
  ExpectProgramErrorBoxes();
}

/// A program of one long line and, behind it, its line end.
QString LongText(int iCharacters, bool bLineEnd) {
  return QString(iCharacters - (bLineEnd ? 2 : 0), u'X') + (bLineEnd ? "\r\n" : "");
}

struct LengthRow {
  int iCharacters;
  bool bLineEnd;
  bool bCompiles;
};

const LengthRow LengthRows[] = {
    {32763, false, true}, {32764, false, true},  {32765, false, false}, {32766, false, false},
    {32764, true, true},  {32765, true, true},   {32766, true, true},   {32767, true, false},
    {32768, true, false}, {32768, false, false}, {65536, false, false}, {65536, true, false},
};

TEST_F(CompileErrors, ComeFromPositionsBeyondSixteenBits) {
  for (const LengthRow& row : LengthRows) {
    SCOPED_TRACE(row.iCharacters * 10 + row.bLineEnd);
    station.Forget();
    EXPECT_EQ(Compile(LongText(row.iCharacters, row.bLineEnd)), row.bCompiles);
    EXPECT_EQ(station.BoxTexts(), row.bCompiles ? QStringList() : QStringList(English(521)));
    EXPECT_EQ(bNeedCompile, !row.bCompiles);
  }
}

TEST_F(CompileErrors, ComeFromALineEndBehindTheLastPosition) {
  EXPECT_FALSE(Compile("BEEP\r\n" + QString(40000, u'X') + "\r\nBEEP"));
  EXPECT_EQ(station.BoxTexts(), QStringList(English(521)));
  EXPECT_EQ(LineTable[0].sText, "BEEP");
}

struct EmptyLinesRow {
  int iLineEnds;
  bool bCompiles;
};

const EmptyLinesRow EmptyLinesRows[] = {
    {9999, true}, {10000, true}, {16383, true}, {16384, false}, {40000, false}};

TEST_F(CompileErrors, ComeFromTooManyEmptyLines) {
  for (const EmptyLinesRow& row : EmptyLinesRows) {
    const QString sText = QString("\r\n").repeated(row.iLineEnds);
    EXPECT_EQ(Compile(sText), row.bCompiles) << row.iLineEnds;
    EXPECT_EQ(lLineCount, row.iLineEnds + 1);
  }
}

}  // namespace
}  // namespace glidetrak
