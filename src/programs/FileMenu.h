#pragma once

// The File menu: New, Open, Save, Save As and Exit, and the question about unsaved changes. All
// refuse silently while a program runs.

#include <QString>

namespace glidetrak {

/// Empties the editor in Program mode; the program has no file.
void NewProgram();

/// Asks for a file and loads it in Program mode. sUserFolder follows the name, also that of a file
/// that is refused.
void OpenProgram();

/// Writes the program's file; without one that is there and can be written it is SaveProgramAs.
void SaveProgram();

/// Asks for a file and writes it. A name that is refused stays sProgramFile until a later one.
void SaveProgramAs();

/// Tells of unsaved changes and asks whether to save them; true for Yes.
bool AskSaveChanges(const QString& sTitle);

/// Asks, and Yes saves. Whatever comes of that, the caller goes on: there is no way out here.
void PromptSaveChanges(const QString& sTitle);

/// New and Open take bEnable; Save and Save As also ask for a text.
void SetFileMenuStates(bool bEnable);

void MNUNEWPROG_Click();
void MNULOADPROG_Click();
void MNUSAVEPROG_Click();
void MNUSAVEPROGAS_Click();

/// Nothing while a program runs; the window's own close box still works then.
void MNUEXIT_Click();

}  // namespace glidetrak
