#pragma once

// The two statements that compute: LET, and IF with its comparison. Their port-bit and sensor forms
// are those of RigStatements.

#include <QString>

namespace glidetrak {

/// Compares variable iSlot (1 to 30), sign-extended, with lExprResult. An unknown operator leaves
/// bCondition alone.
void CompareVariable(const QString& sOperator, int iSlot, bool& bCondition);

/// A LET without its keyword, blanks gone; bHasKeyword tells whether it came from a LET line. False
/// stops the program, after a message. The expression is evaluated twice, so that each of its
/// messages is shown twice; deliberate.
bool ExecuteLet(const QString& sText, bool bHasKeyword);

/// An IF line behind its keyword, at lCurrentLine. False stops the program, after a message. An IF
/// while bInIfBlock is set is refused: only a Trace meets that, as it carries the flag over.
bool ExecuteIf(const QString& sText);

}  // namespace glidetrak
