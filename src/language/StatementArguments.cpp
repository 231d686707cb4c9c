#include "language/StatementArguments.h"

#include <algorithm>

#include "common/CheckedArithmetic.h"
#include "common/UnicodeFunctions.h"
#include "language/ProgramError.h"
#include "language/Variables.h"

namespace glidetrak {

namespace {

/// The first run of digits; a text without any stays as it is.
QString FirstDigits(const QString& sText) {
  const auto first = std::find_if(sText.begin(), sText.end(), IsDigit);
  if (first == sText.end()) return sText;
  const auto end = std::find_if_not(first, sText.end(), IsDigit);
  return QString(first, end - first);
}

bool WaitInRange(qint32 lMilliseconds) {
  return lMilliseconds >= 1 && lMilliseconds <= 32000;
}

}  // namespace

QString BuildPrintMessage(const QString& sText) {
  QString sMessage;
  bool bInQuotes = false;
  for (const QChar character : sText) {
    if (character == u'"') {
      bInQuotes = !bInQuotes;
    } else if (bInQuotes) {
      sMessage += character;
    } else if (character == u',') {
      sMessage += "\r\n";
    } else if (IsLetter(character)) {
      sMessage += QString::number(iVariables[static_cast<size_t>(SlotOf(CharCode(character)))]);
    } else if (character == u':' || character == u';') {
      break;
    }
  }
  return sMessage;
}

bool ParseWaitTime(const QString& sText, qint32& lMilliseconds) {
  try {
    const QString sTime = UpperCase(TrimBlanks(sText));
    if (sTime.isEmpty()) return false;
    lMilliseconds = RoundToInt32(NumericPrefix(FirstDigits(sTime)));
    if (WaitInRange(lMilliseconds)) return true;
    FailWith(idInvalidWait, BoxIcon::Information);
    lMilliseconds = 32000;
    return false;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace glidetrak
