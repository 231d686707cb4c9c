#include "programs/FileMenu.h"

#include "authoring/Document.h"
#include "authoring/ProgramEditor.h"
#include "common/SharedState.h"
#include "common/UnicodeFunctions.h"
#include "common/UserPaths.h"
#include "form/frmGlidetrak.h"
#include "programs/ProgramFiles.h"
#include "strings/ResourceText.h"
#include "strings/ShowMessage.h"
#include "track/ModeAndDirection.h"

namespace glidetrak {

namespace {

/// The same for both dialogs, although with it a saving dialog asks for a file that is there; the
/// dialogs take new names all the same.
constexpr int iDialogFlags = dlgFileMustExist | dlgHideReadOnly;

QString StartFolder() {
  const QString sFolder = TrimBlanks(sUserFolder);
  return sFolder.isEmpty() ? GetDocumentsFolder() : sFolder;
}

QString ProgramFilter() {
  return LoadText(idControlProgramFile) + " (*.GTP)|*.GTP";
}

QString OpenFilter() {
  return ProgramFilter() + u'|' + LoadText(idControlProgramFile) + LoadText(idVersionOne) +
         " (*.TXT)|*.TXT";
}

void AskForOpenName() {
  cmLoad.InitDir = StartFolder();
  cmLoad.FileName = "*.GTP";
  cmLoad.Filter = OpenFilter();
  cmLoad.FilterIndex = 1;
  cmLoad.DialogTitle = LoadText(idOpenProgram);
  cmLoad.Flags = iDialogFlags;
  cmLoad.DefaultExt = "TXT";
  cmLoad.CancelError = true;
  cmLoad.ShowOpen();
}

void AskForSaveName() {
  cmSave.InitDir = StartFolder();
  cmSave.FileName = sProgramFile;
  cmSave.Filter = ProgramFilter();
  cmSave.DialogTitle = LoadText(idSaveProgram);
  cmSave.Flags = iDialogFlags;
  cmSave.DefaultExt = "GTP";
  cmSave.ShowSave();
}

bool IsProgramExtension(const QString& sExtension) {
  return sExtension == u"GTP" || sExtension == u"TXT";
}

/// The name of a program to open, "" when there is none. A path of three characters or fewer keeps
/// the extension of the pass before.
QString ChooseProgram() {
  QString sExtension;
  while (true) {
    AskForOpenName();
    QString sPath = cmLoad.FileName;
    if (sPath.isEmpty()) return {};
    sUserFolder = GetFolderOfPath(sPath);
    if (sPath.size() > 3) sExtension = UpperCase(sPath.right(3));
    if (IsProgramExtension(sExtension)) return sPath;
    ShowMessage(idOpenNotAProgram, idOpenProgram, BoxIcon::Exclamation);
  }
}

void OpenChosen(const QString& sPath) {
  bool bSuccess = false;
  LoadProgramFile(sPath, bSuccess);
  if (!bSuccess) {
    screen.MousePointer = ptrDefault;
    ShowMessage(idOpenError, idUnableToOpenProgram, BoxIcon::Exclamation);
    return;
  }
  iControlMode = modeProgram;
  SetControlStates();
  bProgramDirty = false;
}

/// False when the user gave no name. A refused name stays the program's path.
bool ChooseTarget() {
  while (true) {
    AskForSaveName();
    if (cmSave.FileName.isEmpty()) return false;
    sProgramFile = cmSave.FileName;
    if ((cmSave.Flags & dlgExtensionDifferent) != 0) {
      ShowMessage(idSaveNotAProgram, idSaveProgram, BoxIcon::Exclamation);
    } else if (!FileExists(sProgramFile) || IsFileReadOnly(sProgramFile) == 0) {
      return true;
    }
  }
}

/// Writes the editor's text; true, or false after the message.
bool WriteProgram() {
  bool bSuccess = false;
  WriteProgramFile(sProgramFile, txtProgram.Text(), bSuccess);
  screen.MousePointer = ptrDefault;
  bSaveBeforeExit = false;
  if (!bSuccess) ShowMessage(idSaveError, idSaveProgram, BoxIcon::Exclamation);
  return bSuccess;
}

bool HasWritableFile() {
  return !TrimBlanks(sProgramFile).isEmpty() && FileExists(sProgramFile) &&
         IsFileReadOnly(sProgramFile) == 0;
}

}  // namespace

bool AskSaveChanges(const QString& sTitle) {
  return AskYesNo(LoadText(idChangesNotSaved) + "\r\n" + LoadText(idChangesWillBeLost) + "\r\n" +
                      LoadText(idSaveChanges),
                  sTitle);
}

void PromptSaveChanges(const QString& sTitle) {
  if (AskSaveChanges(sTitle)) SaveProgram();
}

void NewProgram() {
  if (bProgramRunning) return;
  if (bProgramDirty) PromptSaveChanges(LoadText(idNewProgram));
  screen.MousePointer = ptrHourglass;
  ResetProgramState();
  iControlMode = modeProgram;
  SetControlStates();
  SetFileMenuStates(true);
  bProgramDirty = false;
  sProgramFile.clear();
  ShowPlainTitle();
  screen.MousePointer = ptrDefault;
}

void OpenProgram() {
  if (bProgramRunning) return;
  if (bProgramDirty) PromptSaveChanges(LoadText(idOpenProgram));
  try {
    const QString sPath = ChooseProgram();
    if (!sPath.isEmpty()) OpenChosen(sPath);
  } catch (const RuntimeError&) {
    screen.MousePointer = ptrDefault;
  }
}

void SaveProgram() {
  if (bProgramRunning) return;
  screen.MousePointer = ptrHourglass;
  if (HasWritableFile()) {
    WriteProgram();
  } else {
    screen.MousePointer = ptrDefault;
    SaveProgramAs();
  }
}

void SaveProgramAs() {
  if (bProgramRunning) return;
  try {
    const bool bNamed = ChooseTarget();
    screen.MousePointer = ptrDefault;
    if (bNamed && WriteProgram()) ShowFileInTitle(cmSave.FileTitle);
  } catch (const RuntimeError&) {
    screen.MousePointer = ptrDefault;
    bSaveBeforeExit = false;
  }
}

void SetFileMenuStates(bool bEnable) {
  const bool bHasText = !txtProgram.Text().isEmpty();
  MNUNEWPROG.Enabled = bEnable;
  MNULOADPROG.Enabled = bEnable;
  MNUSAVEPROG.Enabled = bEnable && bHasText;
  MNUSAVEPROGAS.Enabled = bEnable && bHasText;
}

void MNUNEWPROG_Click() {
  NewProgram();
}

void MNULOADPROG_Click() {
  OpenProgram();
}

void MNUSAVEPROG_Click() {
  SaveProgram();
}

void MNUSAVEPROGAS_Click() {
  SaveProgramAs();
}

void MNUEXIT_Click() {
  if (!bProgramRunning) frmGlidetrak.Unload();
}

}  // namespace glidetrak
