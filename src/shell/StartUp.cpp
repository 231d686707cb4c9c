#include "shell/StartUp.h"

#include <algorithm>

#include "authoring/CommandCatalogue.h"
#include "authoring/Document.h"
#include "authoring/ProgramEditor.h"
#include "common/Settings.h"
#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "common/UnicodeFunctions.h"
#include "common/UserPaths.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "language/CompilePass.h"
#include "platform/Platform.h"
#include "programs/FileMenu.h"
#include "programs/PresetCatalogue.h"
#include "programs/ProgramFiles.h"
#include "shell/AboutBox.h"
#include "shell/Captions.h"
#include "shell/CommandLine.h"
#include "shell/Placement.h"
#include "strings/LanguageFunctions.h"
#include "strings/ResourceText.h"
#include "strings/ShowMessage.h"
#include "track/DebugPanel.h"
#include "track/ModeAndDirection.h"
#include "track/OutputImage.h"
#include "track/SystemTick.h"

namespace glidetrak {

namespace {

constexpr double fBeyondLanguages = 100;  ///< greater than every language index
constexpr int iHandCursor = 6;            ///< in imgListSwitches

void BeginLoading() {
  bLoading = true;
  sAppPath = WithBackslash(pMachine->ExecutableFolder());
}

void TakeSystemLanguage() {
  sLanguageIndex = QString::number(LanguageIndexFromCode(GetSystemLanguage()));
}

/// /LANG takes any number; one too large for an index must not wrap round to a language.
int LanguageIndex() {
  return static_cast<int>(std::clamp(NumericPrefix(sLanguageIndex), -1.0, fBeyondLanguages));
}

/// Id 10 tells which texts came out: without a table of its own a language counts as English.
void DropLanguageWithoutTexts() {
  if (LoadText(idLanguageMark) == "1" && NumericPrefix(sLanguageIndex) > 2) sLanguageIndex = "0";
}

void ChooseLanguageFolder() {
  const int iIndex = LanguageIndex();
  sLanguageFolder = iIndex > 1 ? "Language\\" + LanguageFolderCode(iIndex) + u'\\' : QString();
  if (!FileExists(ConfigurationFile())) sLanguageFolder.clear();
}

void SetHandCursor() {
  const PictureId hand = imgListSwitches.ListImage(iHandCursor);
  for (Control* pControl :
       std::initializer_list<Control*>{&frmGlidetrak, &imgLever, &picTogTimer, &picTogImpact,
                                       &btnEmergency, &btnRstStop, &btnTmrReset}) {
    pControl->MouseIcon = hand;
  }
}

/// Shows the link's state whatever it is, and starts or stops the retry.
void ShowFirstLinkState() {
  bLinkUpShown = !bLinkUp;
  ShowLinkState();
}

void ReadFolders() {
  sSimulationFile = GetIniString("MiscSettings", "SWFILE", "glidetrak.swf", ConfigurationFile());
  sUserFolder = GetDocumentsFolder();
}

void HideWhileLoading() {
  frmGlidetrak.Visible = false;
  screen.MousePointer = ptrHourglass;
}

void PrepareState() {
  lInputImage = 0;
  lOutputImage = 0;
  bNeedCompile = true;
  iLastPowerRequest = -1;
  FillLampColours();
  ResetProgramState();
}

/// The direction starts at 0 so that setting it to forward really writes bit 4.
void PreparePanel() {
  iDirection = 0;
  SetDirection(1);
  SetPower(0);
  SetControlStates();
  SetFileMenuStates(true);
}

/// The program of the command line, else the first pre-set whether it is listed or not.
void LoadFirstProgram() {
  if (!sCommandLineFile.isEmpty()) {
    bool bSuccess = false;
    LoadProgramFile(sCommandLineFile, bSuccess);
  } else if (Presets.size() > 1) {
    txtProgram.SetText(Presets[1].sProgramText);
  }
}

void ShowManualMode() {
  iControlMode = modeManual;
  SetProgramBoxVisible(true);
}

void StartTick() {
  tmrSystem.Interval = iIdleInterval;
  tmrSystem.Enabled = true;
}

void FinishLoading() {
  bProgramDirty = false;
  screen.MousePointer = ptrDefault;
  bLoading = false;
}

}  // namespace

void Form_Load(const QString& sCommandLine) {
  SkipOnError(BeginLoading);
  SkipOnError([] { pMachine->SetCurrentFolder(sAppPath); });
  SkipOnError(TakeSystemLanguage);
  SkipOnError([&] { ParseCommandLine(sCommandLine); });
  SkipOnError(DropLanguageWithoutTexts);
  SkipOnError(ChooseLanguageFolder);
  SkipOnError(SetHandCursor);
  SkipOnError(LoadPresetCatalogue);
  SkipOnError([] { CheckHardware(); });
  SkipOnError(ShowFirstLinkState);
  SkipOnError(ReadFolders);
  // Behind the search for the adapter: a second copy touches the port before it gives up.
  SkipOnError(CheckSingleInstance);
  SkipOnError(HideWhileLoading);
  SkipOnError(PrepareState);
  SkipOnError(LoadCaptions);
  SkipOnError(BuildCommandCatalogue);
  SkipOnError(PreparePanel);
  SkipOnError(RestorePlacement);
  SkipOnError(LoadFirstProgram);
  SkipOnError(ShowManualMode);
  SkipOnError(StartTick);
  SkipOnError([] { frmGlidetrak.Show(); });
  SkipOnError(ShowStartupBox);
  FinishLoading();
}

void CheckSingleInstance() {
  if (pMachine->TakeSingleInstance()) return;
  bRigLetGo = true;  // the rig is the first copy's
  ShowMessage(idAlreadyRunning, idProgramName, BoxIcon::Exclamation);
  application.Title = "Exists";  // so that the search for the other copy does not find this one
  pDesktop->PumpEvents();
  pMachine->ActivateOtherCopy();
  pMachine->EndProcess();
}

}  // namespace glidetrak
