#include "language/CompilePass.h"

#include <algorithm>

#include "common/CheckedArithmetic.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "language/Keywords.h"
#include "language/ProgramError.h"
#include "language/Variables.h"

namespace glidetrak {

namespace {

constexpr int iNoPendingIf = -1;
constexpr int iFirstQuotePosition = 6;

/// Scan positions have 16 bits, so that no pass gets beyond this many lines; records behind them
/// would never be read.
constexpr qint32 lMostLines = 32767;

/// The state of one pass.
struct Pass {
  QString sText;
  qint16 iPosition = 1;  ///< 1-based scan position; 16 bits limit the length of a program
  qint32 lIndex = 0;
  bool bInIf = false;
  qint32 lPendingIf = 0;  ///< starts at 0 and not at iNoPendingIf: see PairEndIf
  bool bOk = true;
};

void Report(Pass& pass, TextId id) {
  pass.bOk = FailWith(id);
}

bool BeginsWith(const QString& sLine, Keyword keyword) {
  return sLine.startsWith(Word(keyword));
}

/// Position of the first CR LF at or behind the scan position, 0 if there is none.
qint16 FindLineEnd(const Pass& pass) {
  return CheckedInt16(pass.sText.indexOf(u"\r\n", pass.iPosition - 1) + 1);
}

ProgramLine& MeasureLine(const Pass& pass) {
  const qint16 iEnd = FindLineEnd(pass);
  ProgramLine& line = LineTable.at(static_cast<size_t>(pass.lIndex));
  line.lStartOffset = pass.iPosition - 1;
  line.lLength =
      static_cast<qint32>(iEnd > 0 ? iEnd - pass.iPosition : pass.sText.size() - line.lStartOffset);
  return line;
}

/// Reads the line through the selection, which is what shows the user the place of an error. The
/// whole line goes to capitals, quoted text too: deliberately one pass with no exception.
QString ReadLine(const ProgramLine& line) {
  txtProgram.Select(line.lStartOffset, line.lLength);
  return UpperCase(TrimBlanks(txtProgram.SelText()));
}

void OpenIf(Pass& pass) {
  if (pass.bInIf) {
    Report(pass, idNestedIf);
    return;
  }
  pass.bInIf = true;
  pass.lPendingIf = pass.lIndex;
}

/// The pending index starts at 0, so that an ENDIF without any IF writes into line 0: harmless, as
/// the compile has failed, but this is the order.
void PairEndIf(Pass& pass) {
  if (!pass.bInIf) Report(pass, idIfWithoutEndIf);
  pass.bInIf = false;
  if (pass.lPendingIf < 0) return;
  LineTable.at(static_cast<size_t>(pass.lPendingIf)).lTargetLine = pass.lIndex;
  pass.lPendingIf = iNoPendingIf;
}

/// Looks at the letters at the head of the line only, not at word ends. True for a label line.
bool CheckHead(Pass& pass, const QString& sLine) {
  if (BeginsWith(sLine, Keyword::If)) {
    OpenIf(pass);
  } else if (BeginsWith(sLine, Keyword::EndIf)) {
    PairEndIf(pass);
  } else if (BeginsWith(sLine, Keyword::Label)) {
    if (sLine.size() > Word(Keyword::Label).size()) return true;
    Report(pass, idLabelWithoutName);
  }
  return false;
}

/// A 31st label is outside the table.
void StoreLabel(Pass& pass, const QString& sText) {
  if (iNextLabel > iLabelSlots) throw RuntimeError(Fault::BadBound);
  LabelTable[static_cast<size_t>(iNextLabel)] = {sText.mid(Word(Keyword::Label).size()),
                                                 pass.lIndex};
  ++iNextLabel;
  pass.bOk = true;
}

void CompileLine(Pass& pass) {
  ProgramLine& line = MeasureLine(pass);
  const QString sLine = ReadLine(line);
  const bool bIsPrint = BeginsWith(sLine, Keyword::Print);
  const bool bIsLabel = CheckHead(pass, sLine);
  bool bEndsInQuotes = false;
  const QString sText = NormaliseLine(sLine, bIsPrint, bEndsInQuotes);
  if (bIsPrint && bEndsInQuotes && pass.bOk) Report(pass, idPrintQuotes);
  line.sText = sText;
  if (bIsLabel) StoreLabel(pass, sText);
}

void Advance(Pass& pass) {
  const ProgramLine& line = LineTable.at(static_cast<size_t>(pass.lIndex));
  pass.iPosition = CheckedInt16(qint64{pass.iPosition} + line.lLength + 2);
  ++pass.lIndex;
}

bool PastEnd(const Pass& pass) {
  return pass.iPosition > pass.sText.size();
}

void EmptyTables() {
  lLineCount = txtProgram.LineCount();
  LineTable.assign(static_cast<size_t>(std::min(lLineCount, lMostLines)) + 1, ProgramLine{});
  LabelTable.fill({});
  ClearVariables();
  iNextLabel = 1;
}

bool RunPass() {
  EmptyTables();
  Pass pass{.sText = txtProgram.Text()};
  do {
    CompileLine(pass);
    if (!pass.bOk) break;
    Advance(pass);
  } while (!PastEnd(pass));
  if (PastEnd(pass) && pass.bInIf) Report(pass, idIfWithoutEndIf);
  return pass.bOk;
}

}  // namespace

bool CompileProgram() {
  if (!bNeedCompile) return true;
  bool bOk = false;
  try {
    bOk = RunPass();
  } catch (const RuntimeError&) {
    bOk = FailWith(idCompileError);
  }
  bNeedCompile = !bOk;
  return bOk;
}

QString NormaliseLine(const QString& sLine, bool bIsPrint, bool& bEndsInQuotes) {
  bEndsInQuotes = false;
  QString sResult;
  for (qsizetype i = 0; i < sLine.size(); ++i) {
    const QChar character = sLine[i];
    if (character == u'"' && i + 1 >= iFirstQuotePosition) bEndsInQuotes = !bEndsInQuotes;
    if (character < u' ') continue;
    if (!bIsPrint && (character == u':' || character == u';')) break;
    if (!bEndsInQuotes && QStringView(sLine).mid(i).startsWith(Word(Keyword::Then))) break;
    if (character != u' ' || bEndsInQuotes) sResult += character;
  }
  return sResult;
}

}  // namespace glidetrak
