#include "language/LetAndIf.h"

#include <algorithm>

#include "common/CheckedArithmetic.h"
#include "common/UnicodeFunctions.h"
#include "language/Expressions.h"
#include "language/ProgramError.h"
#include "language/RigStatements.h"
#include "language/RunState.h"
#include "language/Variables.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

bool IsRelation(QChar character) {
  return character == u'=' || character == u'<' || character == u'>';
}

bool IsAssignment(const QString& sText) {
  return sText.size() >= 2 && IsLetter(sText[0]) && sText[1] == u'=';
}

/// The first pass gives the result, the second the value that is stored.
bool Assign(const QString& sText) {
  const int iSlot = SlotOf(CharCode(sText[0]));
  const QString sExpression = sText.mid(2);
  const bool bResult = EvaluateExpression(sExpression);
  if (EvaluateExpression(sExpression)) StoreVariable(iSlot, CheckedInt16(lExprResult));
  return bResult;
}

bool RefuseLet(bool bHasKeyword) {
  if (!bHasKeyword) return FailWith(idUnrecognized);
  return FailWith(LoadText(idInvalidLet) + "\r\n" + LoadText(idLetExample));
}

bool CarryOutLet(const QString& sText, bool bHasKeyword) {
  if (TrimBlanks(sText).isEmpty()) return FailWith(idInvalidLet);
  if (IsAssignment(sText)) return Assign(sText);
  if (IsPortBitLet(sText)) return ExecutePortBitLet(sText);
  return RefuseLet(bHasKeyword);
}

bool IsComparison(const QString& sText) {
  return sText.size() >= 3 && IsLetter(sText[0]) && IsRelation(sText[1]);
}

bool ExecuteComparison(const QString& sText) {
  const auto end = std::find_if_not(sText.begin() + 1, sText.end(), IsRelation);
  if (end == sText.end()) return FailWith(idInvalidIf);
  const qsizetype iEnd = end - sText.begin();
  if (!EvaluateExpression(sText.mid(iEnd))) return false;
  CompareVariable(sText.mid(1, iEnd - 1), SlotOf(CharCode(sText[0])), bIfCondition);
  if (!bIfCondition) SkipIfBody();
  return true;
}

}  // namespace

void CompareVariable(const QString& sOperator, int iSlot, bool& bCondition) {
  const qint32 lValue = iVariables.at(static_cast<size_t>(iSlot));
  if (sOperator == u"=") bCondition = lValue == lExprResult;
  if (sOperator == u"<>") bCondition = lValue != lExprResult;
  if (sOperator == u"<") bCondition = lValue < lExprResult;
  if (sOperator == u">") bCondition = lValue > lExprResult;
  if (sOperator == u"<=" || sOperator == u"=<") bCondition = lValue <= lExprResult;
  if (sOperator == u">=" || sOperator == u"=>") bCondition = lValue >= lExprResult;
}

bool ExecuteLet(const QString& sText, bool bHasKeyword) {
  try {
    return CarryOutLet(sText, bHasKeyword);
  } catch (const RuntimeError&) {
    return FailWith(idUnrecognized);
  }
}

bool ExecuteIf(const QString& sText) {
  if (bInIfBlock) return FailWith(idIfWithoutEndIf);
  bInIfBlock = true;
  bIfCondition = true;
  if (IsComparison(sText)) return ExecuteComparison(sText);
  if (IsPortBitIf(sText)) return ExecutePortBitIf(sText);
  const QString sSensor = FindSensor(sText);
  return sSensor.isEmpty() ? FailWith(idInvalidIf) : TestSensorCondition(sText, sSensor);
}

}  // namespace glidetrak
