#pragma once

// What the mouse brings about by moving over the program box: hover pictures, and the focus taken
// from whatever button held it.

#include <QString>

namespace glidetrak {

/// Gives the five program buttons their pictures: hot for the one whose token it is, at rest for
/// the others. Case does not matter; "" puts all at rest.
void SetHoverState(const QString& sToken);

void cmdProgCommands_MouseMove(int iButton, float fX, float fY);
void cmdSingleStep_MouseMove(int iButton, float fX, float fY);
void cmdRunProgram_MouseMove(int iButton, float fX, float fY);
void btnStopProg_MouseMove(int iButton, float fX, float fY);

/// Also grabs the focus, even while a program runs.
void cmdShowExamples_MouseMove(int iButton, float fX, float fY);

void pnlProgramBox_MouseMove(int iButton, float fX, float fY);

/// Also that of imgProgBoxBack: grabs the focus, but does not give it to the editor. That takes a
/// click.
void txtProgram_MouseMove(int iButton, float fX, float fY);

}  // namespace glidetrak
