#include "language/Expressions.h"

#include "common/CheckedArithmetic.h"
#include "common/UnicodeFunctions.h"
#include "language/ProgramError.h"
#include "language/Variables.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

/// An operand was just read; any other sign is that of the operand awaited.
constexpr qint16 iOperandRead = 0;

struct Scan {
  QString sText;
  qsizetype i = 0;   ///< 0-based position of the character at hand
  qint16 iSign = 1;  ///< sign of the operand awaited, or iOperandRead
  QString sOperator{};
};

bool AtEnd(const Scan& scan) {
  return scan.i >= scan.sText.size();
}

/// The character at hand, empty behind the end.
QString CharAt(const Scan& scan) {
  return scan.sText.mid(scan.i, 1);
}

bool FailOnCharacter(const QString& sCharacter) {
  return FailWith(LoadText(idUnrecognizedCharacter) + sCharacter + u'\'');
}

/// Where an operand is awaited the position does not move, so the same + is read again for ever
/// and the program hangs. Deliberate; the volatile write keeps an endless loop well-defined.
void TakePlus(Scan& scan) {
  static volatile bool bStandstill;
  bStandstill = scan.iSign != iOperandRead;
  if (bStandstill) return;
  scan.iSign = 1;
  ++scan.i;
}

void TakeMinus(Scan& scan) {
  scan.iSign = scan.iSign == iOperandRead ? qint16{-1} : static_cast<qint16>(-scan.iSign);
  ++scan.i;
}

void TakeOperator(Scan& scan, const QString& sOperator) {
  if (scan.iSign == iOperandRead) scan.iSign = 1;
  scan.sOperator = sOperator;
  ++scan.i;
}

/// Adds the character's code straight to the accumulator: a literal ignores the operator and
/// leaves the sign as it was, so that behind an operand it adds nothing and ahead of a + it hangs.
bool TakeLiteral(Scan& scan) {
  ++scan.i;
  const QString sCharacter = UpperCase(CharAt(scan));
  if (sCharacter.isEmpty()) throw RuntimeError(Fault::BadBound);
  const qint16 iValue = CheckedInt16(qint64{CharCode(sCharacter[0])} * scan.iSign);
  lExprResult = CheckedInt32(qint64{lExprResult} + iValue);
  ++scan.i;
  if (CharAt(scan) != u"'") return FailWith(idInvalidLiteral);
  ++scan.i;
  return true;
}

qsizetype DigitsEnd(const Scan& scan) {
  qsizetype iEnd = scan.i;
  while (iEnd < scan.sText.size() && IsDigit(scan.sText[iEnd])) ++iEnd;
  return iEnd;
}

bool TakeNumber(Scan& scan) {
  const qsizetype iEnd = DigitsEnd(scan);
  const double fValue = NumericPrefix(scan.sText.mid(scan.i, iEnd - scan.i));
  if (!ApplyOperand(RoundToInt16(fValue * scan.iSign), scan.sOperator)) return false;
  scan.iSign = iOperandRead;
  scan.i = iEnd;
  return true;
}

bool TakeVariable(Scan& scan) {
  const int iSlot = SlotOf(CharCode(scan.sText[scan.i]));
  const qint16 iValue = iVariables.at(static_cast<size_t>(iSlot));
  if (!ApplyOperand(CheckedInt16(qint64{iValue} * scan.iSign), scan.sOperator)) return false;
  scan.iSign = iOperandRead;
  ++scan.i;
  return true;
}

bool TakeOperand(Scan& scan, const QString& sCharacter) {
  if (scan.iSign == iOperandRead) return FailWith(idOperatorExpected);
  if (!sCharacter.isEmpty() && IsDigit(sCharacter[0])) return TakeNumber(scan);
  if (!sCharacter.isEmpty() && IsLetter(sCharacter[0])) return TakeVariable(scan);
  return FailOnCharacter(sCharacter);
}

/// One step of the scan; the first row that fits.
bool Step(Scan& scan) {
  const QString sCharacter = CharAt(scan);
  if (sCharacter == u"+") {
    TakePlus(scan);
  } else if (sCharacter == u"-") {
    TakeMinus(scan);
  } else if (sCharacter == u"*" || sCharacter == u"/") {
    TakeOperator(scan, sCharacter);
  } else if (sCharacter == u"'") {
    return TakeLiteral(scan);
  } else {
    return TakeOperand(scan, sCharacter);
  }
  return true;
}

/// The body runs at least once, even on an empty text.
bool ScanToEnd(Scan& scan) {
  do {
    if (!Step(scan)) return false;
  } while (!AtEnd(scan));
  return true;
}

}  // namespace

bool EvaluateExpression(const QString& sText) {
  lExprResult = 0;
  Scan scan{.sText = sText};
  try {
    return ScanToEnd(scan);
  } catch (const RuntimeError&) {
    return FailOnCharacter(CharAt(scan));
  }
}

TextId OperandErrorMessage(const RuntimeError& error) {
  switch (error.fault()) {
    case Fault::DivisionByZero:
      return idDivisionByZero;
    case Fault::Overflow:
      return idResultTooLarge;
    default:
      return idEquationError;
  }
}

bool ApplyOperand(qint16 iValue, const QString& sOperator) {
  try {
    if (sOperator == u"*") {
      lExprResult = CheckedInt32(qint64{lExprResult} * iValue);
    } else if (sOperator == u"/") {
      lExprResult = CheckedDivide32(lExprResult, iValue);
    } else {
      lExprResult = CheckedInt32(qint64{lExprResult} + iValue);
    }
    return true;
  } catch (const RuntimeError& error) {
    return FailWith(OperandErrorMessage(error));
  }
}

}  // namespace glidetrak
