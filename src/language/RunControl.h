#pragma once

// Run control: Run, Stop and Trace, the locking of the screen, and the keys of a running program.
//
// A program does not run from a timer. RunProgram is one call out of the click of Run, which stays
// in its loop until the program ends: execute a line, pump events for 25 ms, add 1 to the index.
// Everything else, the tick and Stop included, runs inside those pumps, and bProgramRunning is the
// only signal between the two.
//
//   state         bProgramRunning   held by
//   Idle          false             nothing
//   Compiling     false, Trace true RunProgram, StepProgram
//   Resolving     true              RunProgram: each GOTO against the labels; pumps nothing
//   Running       true              RunProgram's loop
//   Winding down  false             the statement at hand, then the end of RunProgram
//   Trace step    true              StepProgram
//
//   Idle -> Compiling           [RunProgram, StepProgram]
//   Compiling -> Idle           a compile error [FinishRun, FinishStep]
//   Compiling -> Resolving      [RunProgram]        Compiling -> Trace step  [StepProgram]
//   Resolving -> Running        all GOTOs resolved  Resolving -> Winding down  a missing label
//   Running -> Winding down     the last line, BREAK, an error [ExecuteProgramLine],
//                               Stop or Space [StopProgram], the emergency stop [AbortProgram]
//   Winding down -> Idle        [FinishRun]; a WAIT goes on to its full time first
//   Trace step -> Idle          [FinishStep]

#include <QString>

#include "language/Statements.h"

namespace glidetrak {

/// Index of the line at hand in LineTable, and the run loop's counter: a jump writes its target
/// here and the loop adds 1. Survives between runs and Trace steps; a new or loaded program sets
/// it to 0.
inline qint32 lCurrentLine = 0;

/// RunProgram or StepProgram has not returned: a program runs, or winds down with bProgramRunning
/// already off. What would lock the screen itself must wait, since the end of the run unlocks it.
inline bool bRunUnderWay = false;

/// PrepareTrace has done its work; false after a new or loaded program.
inline bool bTraceArmed = false;

/// Compiles, resolves the jumps and runs to the end. However a run ends, it ends with power 0.
void RunProgram();

/// One Trace step: compiles and executes the next line that is not empty. Variables, IF flags and
/// position stay from step to step; the power stays where the program left it.
///
/// The end of a Trace is odd, deliberately: the step that finds the end of the table leaves
/// lCurrentLine at 2, with the second line shown, and the next press executes the third line.
void StepProgram();

/// Ahead of the click that steps: compiles once and shows the line at the caret.
void PrepareTrace();

/// The user's stop: power 0 at once, then a plain freeze of 200 ms.
void StopProgram();

/// Finds the target of the GOTO on the line at lCurrentLine; the argument is not used. It looks for
/// GOTO anywhere in the line, so that LABEL GOTOEND asks for a label END. Deliberate.
LineResult ResolveGotoLine(qint32 lIndex);

/// Selects the compiled line in which the caret stands. The table is that of the last compile.
void SelectCaretLine();

/// Unlocks the screen after a run.
void FinishRun();

/// Unlocks the screen after a Trace step; bResetLine puts lCurrentLine to 0.
void FinishStep(bool bResetLine);

/// Tells of an error in RunProgram itself and unlocks the screen.
void ReportRunError();

/// Enables or disables the three menu heads.
void SetRunMenus(bool bEnabled);

// The keys of a running program; with no program running they do nothing and keys pass on. A key
// code is a virtual key code, a character code one of the code page; 0 swallows the key. Space
// always stops and is never read by GET.

void Form_KeyDown(int& iKeyCode);
void Form_KeyPress(int& iCharCode);
void Form_KeyUp(int& iKeyCode);
void txtProgram_KeyPress(int& iCharCode);

void cmdRunProgram_Click();
void btnStopProg_Click();
void cmdSingleStep_Press();
void cmdSingleStep_Click();
void MNURUN_Click();
void MNUSTOP_Click();
void MNUSTEPFORWARD_Click();

}  // namespace glidetrak
