#pragma once

// Statement execution: one line of LineTable at a time. Each line carries one statement, known by
// the keyword at its head; the text is normalised, so that arguments are picked apart by position.
// Sensors read as the last tick left them: no statement reads the rig by itself.

#include <QString>

namespace glidetrak {

/// What came of a line. The numbers are the run loop's and Trace's.
enum class LineResult {
  Empty = 0,    ///< nothing was there to do
  MotorOn = 2,  ///< done, not tracing, and the motor is on
  Done = 3,     ///< done, in every other case
  Stopped = 4,  ///< the program has stopped
};

/// Executes the line at lCurrentLine. Any error of its own stops the program with no message.
LineResult ExecuteProgramLine(bool bTracing);

/// The line's text, and highlights the line by selecting it in the editor. On the empty extra
/// record it selects nothing at offset 0; an index beyond the table gives "" and leaves the
/// selection alone.
QString SelectProgramLine(qint32 lIndex);

/// The keyword that heads the line. If none does, the line is carried out as an assignment, and the
/// result is empty whatever came of it: the dispatcher then stops with 511. Deliberate.
QString FindCommandKeyword(const QString& sText);

}  // namespace glidetrak
