#pragma once

// The picker of the command catalogue: a panel that shows each entry's help, and the way of a name
// into the program.
//
// While the panel is open the program controls and the menu heads are disabled, so that it cannot
// be opened twice and no program can start.

#include <QtGlobal>

namespace glidetrak {

/// Opens the panel on the first entry. Nothing until RunProgram or StepProgram has returned: a run
/// that winds down would unlock the program's controls under the open panel.
void ShowCommandPicker();
void CloseCommandPicker();

/// Shows the help of a list position; for a negative one it only empties the description.
void ShowCommandHelp(qint16 iIndex);

/// Puts the chosen name in the place of the editor's selection and leaves it selected. A name that
/// goes on with an argument comes with its blank, any other with a line end.
void InsertChosenCommand();

void cmdProgCommands_Click();
void MNUCommands_Click();
void btnSelectComSel_Click();
void btnCloseComSel_Click();
void imgAddCmdClose_Click();
void lstProgCommands_DblClick();
void lstProgCommands_KeyPress(int& iCharCode);
void lstProgCommands_KeyUp(int& iKeyCode);
void lstProgCommands_MouseDown(int iButton, float fX, float fY);

/// Also that of pnlCommandSel.
void lstProgCommands_MouseMove(int iButton, float fX, float fY);
void btnSelectComSel_MouseMove(int iButton, float fX, float fY);
void btnCloseComSel_MouseMove(int iButton, float fX, float fY);

/// Of the panel's other controls: both buttons plain.
void CommandPane_MouseMove(int iButton, float fX, float fY);
void CommandSelTitle_Click();

// The example pane can be marked and copied, but swallows every key that would change it; whatever
// changes it all the same is put back.
void txtHELPExample_KeyDown(int& iKeyCode);
void txtHELPExample_KeyPress(int& iCharCode);
void txtHELPExample_KeyUp(int& iKeyCode);
void txtHELPExample_MouseUp(int iButton, float fX, float fY);
void txtHELPExample_Change();

}  // namespace glidetrak
