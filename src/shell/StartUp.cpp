#include "shell/StartUp.h"

#include "authoring/Document.h"
#include "authoring/ProgramEditor.h"
#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "language/CommandNames.h"
#include "language/CompilePass.h"
#include "platform/Platform.h"
#include "programs/ProgramFiles.h"
#include "shell/Captions.h"
#include "track/DebugPanel.h"
#include "track/OperatingPanel.h"
#include "track/OutputImage.h"
#include "track/SystemTick.h"

namespace glidetrak {

namespace {

void PrepareState() {
  lInputImage = 0;
  lOutputImage = 0;
  bNeedCompile = true;
  iLastPowerRequest = -1;
  FillLampColours();
  ResetProgramState();
}

/// Shows the link's state whatever it is, and starts or stops the retry.
void ShowFirstLinkState() {
  bLinkUpShown = !bLinkUp;
  ShowLinkState();
}

void StartTick() {
  tmrSystem.Interval = iIdleInterval;
  tmrSystem.Enabled = true;
}

/// The direction starts at 0 so that setting it to forward really writes bit 4.
void PreparePanel() {
  iDirection = 0;
  SetDirection(1);
  SetPower(0);
  SetControlStates();
}

void LoadFirstProgram() {
  bool bSuccess = false;
  if (!sCommandLineFile.isEmpty()) LoadProgramFile(sCommandLineFile, bSuccess);
  iControlMode = modeManual;
  txtProgram.Visible = true;
}

void FinishLoading() {
  bProgramDirty = false;
  screen.MousePointer = ptrDefault;
  bLoading = false;
}

}  // namespace

void Form_Load(const QString& sCommandLine) {
  bLoading = true;
  SkipOnError([&] { ParseCommandLine(sCommandLine); });
  SkipOnError([] { CheckHardware(); });
  SkipOnError(ShowFirstLinkState);
  SkipOnError([] { screen.MousePointer = ptrHourglass; });
  SkipOnError(PrepareState);
  SkipOnError(LoadCaptions);
  SkipOnError(BuildCommandNames);
  SkipOnError(PreparePanel);
  SkipOnError(LoadFirstProgram);
  SkipOnError(StartTick);
  SkipOnError([] { frmGlidetrak.Show(); });
  FinishLoading();
}

void Form_Unload() {
  pMachine->EndProcess();
}

void ParseCommandLine(const QString& sCommandLine) {
  const QString sText = TrimBlanks(UpperCase(sCommandLine));
  if (!sText.isEmpty()) sCommandLineFile = ResolveFileArgument(sText);
}

}  // namespace glidetrak
