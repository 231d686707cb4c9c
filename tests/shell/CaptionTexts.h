#pragma once

// What each caption and tool tip of the main window says in English, and the id of its text.

#include "form/frmGlidetrak.h"

namespace glidetrak {

struct CaptionText {
  const QProperty<QString>* pProperty;
  int iText;
  const char* sEnglish;
};

inline const CaptionText CaptionTexts[] = {
    {&frmGlidetrak.Caption, 80, "Glidetrak Control"},
    {&lblExamples.Caption, 222, "Pre-set Programs:"},
    {&cmdProgCommands.Caption, 226, "Commands..."},
    {&cmdSingleStep.Caption, 227, "Trace"},
    {&cmdRunProgram.Caption, 228, "Run Program"},
    {&btnStopProg.Caption, 229, "Stop Program"},
    {&cmdProgCommands.ToolTipText, 310,
     "Click here to show a list of Control Program commands to choose from"},
    {&cmdSingleStep.ToolTipText, 313,
     "Click here to trace through the commands in the Control Program"},
    {&cmdRunProgram.ToolTipText, 311, "Click here to run the Control Program"},
    {&btnStopProg.ToolTipText, 312, "Click here to Stop the Control Program running"},
    {&cmdShowExamples.Caption, 230, "Show Pre-sets"},
    {&cmdShowExamples.ToolTipText, 231, "Displays the list of pre-set example programs"},
    {&lblTimerTitle.Caption, 800, "TIMING"},
    {&lblImpactTitle.Caption, 803, "IMPACT"},
    {&lblImpact2.Caption, 803, "IMPACT"},
    {&lblControlTitle.Caption, 804, "CONTROL PANEL"},
    {&lblPowerTitle.Caption, 805, "POWER"},
    {&lblOn1.Caption, 801, "ON"},
    {&lblOn2.Caption, 801, "ON"},
    {&lblOff.Caption, 802, "OFF"},
    {&lblOff2.Caption, 802, "OFF"},
    {&lblEmergStop1.Caption, 806, "EMERGENCY"},
    {&lblEmergStop2.Caption, 807, "STOP"},
    {&cmdManual.Caption, 850, "Manual"},
    {&cmdProgram.Caption, 851, "Program"},
    {&cmdForward.Caption, 852, "Forward"},
    {&cmdBackward.Caption, 853, "Backward"},
    {&picTogTimer.ToolTipText, 0, ""},
    {&picTogImpact.ToolTipText, 2, ""},
    {&btnTmrReset.ToolTipText, 1, ""},
    {&imgLever.ToolTipText, 3, ""},
    {&btnEmergency.ToolTipText, 5, ""},
    {&btnRstStop.ToolTipText, 5, ""},
    {&CommandSelTitle.Caption, 260, "Command Selection"},
    {&lblCommandSelListTitle.Caption, 261, "Commands"},
    {&btnSelectComSel.Caption, 264, "Select"},
    {&btnCloseComSel.Caption, 265, "Close"},
    {&btnCloseComSel.ToolTipText, 300,
     "Click here to close the Command selection window without making a selection."},
    {&imgAddCmdClose.ToolTipText, 300,
     "Click here to close the Command selection window without making a selection."},
    {&btnSelectComSel.ToolTipText, 301, "Select the Command to be added to your program"},
    {&lstProgCommands.ToolTipText, 302, "The list of available Program commands."},
    {&lblHELPFormat.ToolTipText, 303, "The format of the command selected in the list above."},
    {&lblCompDesc.ToolTipText, 304, "The description of the command selected in the list above."},
    {&txtHELPExample.ToolTipText, 305,
     "An example of how the command selected in the list above would be used."},
    {&lblHELPFormatTitle.Caption, 266, "Format: "},
    {&lblHELPDescTitle.Caption, 267, "Description: "},
    {&lblCompDesc.Caption, 263, ""},
    {&lblHELPExampleTitle.Caption, 268, "Example: "},
    {&MNUMAIN.Caption, 240, "&File"},
    {&MNUNEWPROG.Caption, 241, "New Control Program"},
    {&MNULOADPROG.Caption, 242, "Load Control Program"},
    {&MNUSAVEPROG.Caption, 243, "Save Control Program"},
    {&MNUSAVEPROGAS.Caption, 244, "Save Control Program As..."},
    {&MNUEXIT.Caption, 245, "E&xit"},
    {&MNUPROGRAMOPT.Caption, 246, "Control Program"},
    {&MNUCommands.Caption, 247, "Commands..."},
    {&MNURUN.Caption, 248, "Run Program"},
    {&MNUSTOP.Caption, 249, "Stop Program"},
    {&MNUSTEPFORWARD.Caption, 250, "Trace"},
    {&MNUHELP.Caption, 254, "&Help"},
    {&MNUShowDebug.Caption, 255, "Show Debug"},
    {&MNUAbout.Caption, 256, "About"},
};

}  // namespace glidetrak
