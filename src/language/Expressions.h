#pragma once

// The arithmetic of the language: a strict left-to-right scan over the normalised line, with no
// precedence and no parentheses. Three quirks are part of the language, and programs are written
// against them: an operator * or / stays in force for the rest of the expression; a + behind an
// operator never ends; a character literal does not count as an operand.

#include <QString>

#include "platform/RuntimeError.h"
#include "strings/TextIds.h"

namespace glidetrak {

/// The accumulator. 32 bits, wider than the variables: only the store of a LET narrows it.
inline qint32 lExprResult = 0;

/// Scans the text; true at its end with the value in lExprResult, false after a message.
bool EvaluateExpression(const QString& sText);

/// lExprResult times (*), divided by (/, cut towards zero) or plus (any other operator, none
/// included) the value. On an error a message is shown, the result is false and lExprResult keeps
/// its value.
bool ApplyOperand(qint16 iValue, const QString& sOperator);

/// The message for an error in ApplyOperand: 514 for a division by zero, 515 for an overflow of 32
/// bits (its wording speaks of 16), 516 for anything else.
TextId OperandErrorMessage(const RuntimeError& error);

}  // namespace glidetrak
