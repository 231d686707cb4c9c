#include "programs/PresetCatalogue.h"

#include "authoring/Document.h"
#include "authoring/ProgramEditor.h"
#include "common/CheckedArithmetic.h"
#include "common/Settings.h"
#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "common/UnicodeFunctions.h"
#include "common/UserPaths.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "programs/FileMenu.h"
#include "programs/ProgramFiles.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

QString ReadKey(const QString& sSection, const QString& sKey, const QString& sDefault) {
  return GetIniString(sSection, sKey, sDefault, ConfigurationFile());
}

/// 0 for what is no number, below 0 or beyond 16 bits.
int ReadCount() {
  qint16 iCount = 0;
  SkipOnError([&] {
    iCount = RoundToInt16(NumericPrefix(TrimBlanks(ReadKey("MiscSettings", "HW_EXAMPLES", "0"))));
  });
  return iCount > 0 ? iCount : 0;
}

PresetRecord ReadPreset(int n) {
  const QString sSection = "HW_PRESET" + QString::number(n);
  const QString sDefault = "EXAMPLE" + QString::number(n);
  PresetRecord preset;
  preset.sFileName = ReadKey(sSection, "FILENAME", sDefault + ".GTP");
  preset.sTitle = ReadKey(sSection, "TITLE", sDefault);
  preset.sHelp = ReadKey(sSection, "HELP", sDefault);
  preset.sProgramText = ReadPresetText(preset.sFileName);
  return preset;
}

void TakePreset(qint16 iIndex) {
  if (iIndex < 0 || iIndex >= static_cast<int>(Presets.size())) return;
  txtProgram.SetText(Presets[static_cast<size_t>(iIndex)].sProgramText);
}

void ShowPresetList() {
  cmbExamples.Visible = true;
  cmdShowExamples.Caption = LoadText(idHidePresets);
  cmdShowExamples.ToolTipText = LoadText(idHidePresetsTip);
  cmbExamples.OpenDropDown(true);
  cmbExamples.SetFocus();
}

}  // namespace

void LoadPresetCatalogue() {
  const int iCount = ReadCount();
  cmbExamples.ToolTipText = LoadText(idPresetListTip) + LoadText(idHardwareTrack);
  Presets.assign(static_cast<size_t>(iCount) + 1, {});
  for (int n = 1; n <= iCount; ++n) Presets[static_cast<size_t>(n)] = ReadPreset(n);
  RefreshPresetList();
}

QString ReadPresetText(const QString& sFileName) {
  const QString sPath = DataFolder() + "Examples\\" + sFileName;
  QString sText;
  SkipOnError([&] {
    if (FileExists(sPath)) sText = FromCodePage(ReadThroughSlot(sPath));
  });
  return sText;
}

void RefreshPresetList() {
  QStringList aTitles;
  cmbExamples.ItemData.clear();
  for (size_t n = 1; n < Presets.size(); ++n) {
    if (TrimBlanks(Presets[n].sProgramText).isEmpty()) continue;
    aTitles.append(Presets[n].sTitle);
    cmbExamples.ItemData.push_back(static_cast<int>(n));
  }
  cmbExamples.List = aTitles;
  cmbExamples.ListIndex = aTitles.isEmpty() ? -1 : 0;
}

void LoadPreset(qint16 iIndex) {
  if (bProgramRunning) return;
  if (bProgramDirty) PromptSaveChanges(LoadText(idLoadPreset));
  screen.MousePointer = ptrHourglass;
  ResetProgramState();
  TakePreset(iIndex);
  bProgramDirty = false;
  sProgramFile.clear();
  ShowPlainTitle();
  screen.MousePointer = ptrDefault;
}

void HidePresetList() {
  cmbExamples.Visible = false;
  cmdShowExamples.Caption = LoadText(idShowPresets);
  cmdShowExamples.ToolTipText = LoadText(idShowPresetsTip);
}

void SetProgramBoxVisible(bool bShow) {
  for (Control* pControl : std::initializer_list<Control*>{
           &btnStopProg, &cmdRunProgram, &cmdSingleStep, &cmdProgCommands, &cmdShowExamples,
           &lblExamples, &txtProgram, &txtFocusGrab}) {
    pControl->Visible = bShow;
  }
}

void cmbExamples_Click() {
  LoadPreset(static_cast<qint16>(cmbExamples.ListIndex + 1));
  HidePresetList();
  bNeedCompile = true;
}

void cmbExamples_LostFocus() {
  cmbExamples.OpenDropDown(false);
  HidePresetList();
}

void cmdShowExamples_Click() {
  if (bProgramRunning) return;
  if (cmbExamples.Visible) {
    HidePresetList();
  } else {
    ShowPresetList();
  }
}

}  // namespace glidetrak
