#pragma once

#include <QtGlobal>

#include "language/Statements.h"

namespace glidetrak {

/// Finds the target of the GOTO on the line at lCurrentLine; the argument is not used. It looks for
/// GOTO anywhere in the line, so that LABEL GOTOEND asks for a label END. Deliberate.
///
/// Empty for a line that asks for nothing, a PRINT among them. Stopped, with bProgramRunning off,
/// for a missing label, after its message, and for any error, without one.
LineResult ResolveGotoLine(qint32 lIndex);

}  // namespace glidetrak
