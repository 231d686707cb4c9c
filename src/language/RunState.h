#pragma once

// The state of a run: what the statements and run control share. It lasts from run to run and from
// one Trace step to the next; ResetProgramState (authoring/ProgramEditor) puts it back, all but
// bRunUnderWay and sKeyPressed.

#include <QString>

namespace glidetrak {

/// Index of the line at hand in LineTable, from 0, and the counter of the run loop: a jump writes
/// its target here and the loop adds 1. It stays where a run or a step ended: on the line of a
/// BREAK or an error, at lLineCount behind the last line. After the end of a Trace, or in a text
/// that has become shorter, it may stand beyond the table; such a line is empty. Written by
/// RunControl (the resolve pass, the run loop, StepProgram, FinishStep), by the jumps (GOTO in
/// Statements, SkipIfBody) and, to 0, by ResetProgramState.
inline qint32 lCurrentLine = 0;

/// True inside the body of an IF that held, and behind an IF that failed with a message. Set by
/// ExecuteIf; cleared by ENDIF and GOTO (Statements), by SkipIfBody, by RunProgram ahead of the
/// compile and by ResetProgramState. A Trace carries it over from step to step.
inline bool bInIfBlock = false;

/// Result of the last IF test. Set to true by ExecuteIf ahead of its test, by GOTO and by
/// RunProgram; the test itself (ExecuteIf by CompareVariable, TestInputBit) writes what came of it;
/// ResetProgramState sets it to false. Nothing reads it outside the test that wrote it.
inline bool bIfCondition = true;

/// PrepareTrace has compiled and shown the line at the caret, and will not do so again. Set by
/// PrepareTrace, cleared by ResetProgramState alone.
inline bool bTraceArmed = false;

/// Last key caught while a program runs, one upper-case character; "" when none since GET emptied
/// it. Written by the key events (KeyCapture) and by GET (Statements), which empties it as it
/// begins.
inline QString sKeyPressed;

/// RunProgram or StepProgram has not returned: a program runs, or winds down with bProgramRunning
/// already off. What would lock the screen itself must wait, since the end of the run unlocks it.
/// Written by these two alone; a Trace press while a run winds down leaves it true.
inline bool bRunUnderWay = false;

/// The IF at lCurrentLine did not hold: leaves the block and jumps to the ENDIF, which the caller
/// steps over.
void SkipIfBody();

}  // namespace glidetrak
