#pragma once

// Run control: Run, Stop and Trace, and the locking of the screen. The keys of a running program
// are KeyCapture's, the variables of a run RunState's.
//
// A program does not run from a timer. RunProgram is one call out of the click of Run, which stays
// in its loop until the program ends: execute a line, pump events for 25 ms, add 1 to the index.
// Everything else, the tick and Stop included, runs inside those pumps, and bProgramRunning is the
// only signal between the two.
//
// Run locks the editor, Run, the pre-sets with their button and the three menu heads, and shows
// the hourglass over the program box; Trace locks the menu heads alone, with the hourglass
// everywhere. bRunUnderWay is true in every state but Idle.
//
//   state         bProgramRunning  what holds
//   Idle          false            nothing is locked; a Run has left power 0, a Trace step the
//                                  power that the program set. PrepareTrace compiles here
//   Compiling     Run: false       locked as told; the tables are being made. No pump but that of
//                 Trace: true      an error's box
//   Resolving     true             Run's lock; variables 0, bInIfBlock off, nothing executed yet.
//                                  No pump but that of the box of a missing label
//   Running       true             Run's lock; keys are the program's. Pumps in the 25 ms between
//                                  lines, in WAIT, in GET and under a statement's box
//   Winding down  false            Run's lock stays; the statement at hand goes on (a WAIT to its
//                                  full time), then the end: 100 ms of pumping with the tick
//                                  suspended, power 0. After a stop the power is 0 from the start
//   Trace step    true             Trace's lock; variables, IF flags and position are those of the
//                                  step before. Pumps in WAIT, in GET and under a box
//
//   Idle -> Compiling            [RunProgram, StepProgram]
//   Compiling -> Idle            a compile error [FinishRun, FinishStep]
//   Compiling -> Resolving       [RunProgram]        Compiling -> Trace step  [StepProgram]
//   Resolving -> Running         all GOTOs resolved  Resolving -> Winding down  a missing label
//   Running -> Winding down      BREAK, an error [ExecuteProgramLine], Stop or Space [StopProgram],
//                                the emergency stop, a machine that falls asleep [AbortProgram]
//   Running -> Idle              behind the last line: the same end, with bProgramRunning true for
//                                its 100 ms, so that a Stop still acts there [RunProgram]
//   Winding down -> Idle         [AbortProgram, FinishRun]
//   Trace step -> Idle           a line is done, fails or ends the program [FinishStep]; a stop
//                                takes effect when the statement at hand returns
//
// An error takes one of these roads, and each gives the screen back:
//   compile pass     its box; the line at fault stays selected, nothing has run
//   missing label    its box with bProgramRunning still true; then the end of a run or step
//   statement        its box, if it has one, with bProgramRunning still true; then the stop path of
//                    ExecuteProgramLine. The line stays selected and lCurrentLine on it
//   RunProgram       whatever its state: box 520, power 0, Idle at once, without the 100 ms; the
//                    hourglass over the program box stays until a run ends well [ReportRunError]
//
// Trace is not locked while a run winds down, nor Run while a Trace step does: such a press is
// carried out whole inside the pump, and its end gives the screen back early. When it returns,
// bProgramRunning is off, and what stood around it winds down further.

namespace glidetrak {

/// Compiles, resolves the jumps and runs to the end; returns when the program has ended. However a
/// run ends, it ends with power 0. Nothing while bProgramRunning.
void RunProgram();

/// One Trace step: compiles and executes the next line that is not empty. Variables, IF flags and
/// position stay from step to step; the power stays where the program left it. Nothing while
/// bProgramRunning.
///
/// The end of a Trace is odd, deliberately: the step that finds the end of the table leaves
/// lCurrentLine at 2, with the second line shown, and the next press executes the third line.
void StepProgram();

/// Ahead of the click that steps: compiles once and shows the line at the caret, which does not
/// move lCurrentLine. Nothing while bProgramRunning, or once bTraceArmed.
void PrepareTrace();

/// The user's stop: power 0 and bProgramRunning off at once, then a freeze of 200 ms that pumps
/// nothing. Nothing while no program runs.
void StopProgram();

/// Selects the compiled line in which the caret stands. The table is that of the last compile.
void SelectCaretLine();

/// Unlocks the screen after a run; also puts bProgramRunning off.
void FinishRun();

/// Unlocks the screen after a Trace step, as FinishRun does; bResetLine puts lCurrentLine to 0.
void FinishStep(bool bResetLine);

/// Tells of an error in RunProgram itself, stops the motor and unlocks the screen.
void ReportRunError();

/// Enables or disables the three menu heads.
void SetRunMenus(bool bEnabled);

void cmdRunProgram_Click();
void btnStopProg_Click();
void cmdSingleStep_Press();
void cmdSingleStep_Click();
void MNURUN_Click();
void MNUSTOP_Click();
void MNUSTEPFORWARD_Click();

}  // namespace glidetrak
