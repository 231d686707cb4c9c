#pragma once

// Who may change the variables that the rooms share. Every variable that a header of src/ declares
// stands here once; a file that is to write one more must say so here.

namespace glidetrak {

struct SharedVariable {
  const char* sName;
  /// Files below src/ that may assign to it or hand it over by reference, with blanks between; *
  /// stands for any part of a file's name.
  const char* sWriters;
};

inline constexpr SharedVariable SharedVariables[]{
    // platform/Hid.h
    {"pHid", "main.cpp"},
    // platform/Platform.h
    {"pMachine", "main.cpp"},
    {"pDesktop", "main.cpp"},
    // platform/linux/LinuxPaths.h
    {"aNamedFiles", "platform/linux/LinuxPaths.cpp"},
    // common/SharedState.h
    {"bProgramRunning",
     "authoring/ProgramEditor.cpp language/ResolveGoto.cpp language/RunControl.cpp "
     "language/Statements.cpp track/AbortProgram.cpp view/TextBoxWidget.cpp"},
    {"lInputImage", "shell/StartUp.cpp track/InputDecoding.cpp track/SystemTick.cpp"},
    {"lOutputImage", "shell/StartUp.cpp track/OutputImage.cpp"},
    {"bLinkUp", "hardware/AdapterLayer.cpp"},
    {"bUsbLink", "hardware/AdapterLayer.cpp"},
    {"iControlMode", "programs/FileMenu.cpp shell/StartUp.cpp track/ModeAndDirection.cpp"},
    {"bDebugMode", "shell/CommandLine.cpp"},
    {"bShuttingDown", "hardware/AdapterLayer.cpp"},
    // common/UserPaths.h
    {"sAppPath", "shell/StartUp.cpp"},
    {"sLanguageFolder", "shell/StartUp.cpp"},
    {"sUserFolder", "programs/FileMenu.cpp shell/StartUp.cpp"},
    {"sLanguageIndex", "shell/CommandLine.cpp shell/StartUp.cpp"},
    // strings/LanguageFunctions.h
    {"iUILanguage", "strings/LanguageFunctions.cpp"},
    // hardware/AdapterLayer.h
    {"bLinkUpShown", "hardware/AdapterLayer.cpp shell/StartUp.cpp"},
    {"lPortAddress", "hardware/AdapterLayer.cpp"},
    {"lPortHandle", "hardware/AdapterLayer.cpp"},
    {"bLinkMessageShown", "hardware/AdapterLayer.cpp"},
    {"bRigLetGo", "hardware/AdapterLayer.cpp shell/StartUp.cpp"},
    {"iUsbAnalog", "hardware/AdapterLayer.cpp"},
    // track/DebugPanel.h
    {"aOutputLampColour", "track/DebugPanel.cpp"},
    // track/InputDecoding.h
    {"iTimingEnabled", "track/TogglesAndTimer.cpp"},
    {"bTimerArmed", "track/InputDecoding.cpp"},
    {"bTimerStarted", "track/InputDecoding.cpp"},
    {"lElapsedMs", "track/InputDecoding.cpp"},
    {"lTimerLastTick", "track/InputDecoding.cpp"},
    {"iStopGateMask", "track/InputDecoding.cpp"},
    {"iAnalogEnabled", "track/TogglesAndTimer.cpp"},
    // track/Lever.h
    {"bEmergencyStop", "track/EmergencyStop.cpp"},
    // track/ModeAndDirection.h
    {"bButtonHover", "track/ModeAndDirection.cpp"},
    // track/TogglesAndTimer.h
    {"bTimerToggle", "track/TogglesAndTimer.cpp"},
    {"bImpactToggle", "track/TogglesAndTimer.cpp"},
    // track/OutputImage.h
    {"iPower", "track/OutputImage.cpp track/ReportStateChanges.cpp"},
    {"iLastPowerRequest", "shell/StartUp.cpp track/OutputImage.cpp"},
    {"iLeverLevel", "track/Lever.cpp track/OutputImage.cpp"},
    {"iDirection", "authoring/ProgramEditor.cpp shell/StartUp.cpp track/OutputImage.cpp"},
    {"bMotorOn", "track/OutputImage.cpp"},
    // language/CommandNames.h
    {"CommandNameTable", "authoring/CommandCatalogue.cpp"},
    // language/CompilePass.h
    {"LineTable", "language/CompilePass.cpp language/ResolveGoto.cpp"},
    {"lLineCount", "language/CompilePass.cpp"},
    {"LabelTable", "language/CompilePass.cpp"},
    {"iNextLabel", "language/CompilePass.cpp"},
    {"bNeedCompile",
     "authoring/ProgramEditor.cpp language/CompilePass.cpp programs/PresetCatalogue.cpp "
     "shell/StartUp.cpp"},
    // language/Expressions.h
    {"lExprResult", "language/Expressions.cpp"},
    // language/Keywords.h
    {"KeywordTable", "language/Keywords.cpp"},
    // language/RunState.h
    {"lCurrentLine",
     "authoring/ProgramEditor.cpp language/RunControl.cpp language/RunState.cpp "
     "language/Statements.cpp"},
    {"bInIfBlock",
     "authoring/ProgramEditor.cpp language/LetAndIf.cpp language/RunControl.cpp "
     "language/RunState.cpp language/Statements.cpp"},
    {"bIfCondition",
     "authoring/ProgramEditor.cpp language/LetAndIf.cpp language/RigStatements.cpp "
     "language/RunControl.cpp language/Statements.cpp"},
    {"bTraceArmed", "authoring/ProgramEditor.cpp language/RunControl.cpp"},
    {"bRunUnderWay", "language/RunControl.cpp"},
    {"sKeyPressed", "language/KeyCapture.cpp language/Statements.cpp"},
    // language/Variables.h
    {"iVariables", "language/Variables.cpp language/Variables.h"},
    // authoring/CommandCatalogue.h
    {"CommandHelpTable", "authoring/CommandCatalogue.cpp"},
    // authoring/Document.h
    {"sProgramFile",
     "authoring/ProgramEditor.cpp programs/FileMenu.cpp programs/PresetCatalogue.cpp "
     "programs/ProgramFiles.cpp"},
    {"bProgramDirty",
     "authoring/ProgramEditor.cpp programs/FileMenu.cpp programs/PresetCatalogue.cpp "
     "programs/ProgramFiles.cpp shell/StartUp.cpp"},
    {"bLoading", "shell/StartUp.cpp"},
    {"bSaveBeforeExit", "programs/FileMenu.cpp shell/Closing.cpp"},
    // authoring/ProgramEditor.h
    {"bEditorHasFocus", "authoring/ProgramEditor.cpp"},
    {"lSavedSelStart", "authoring/ProgramEditor.cpp"},
    {"lSavedSelLength", "authoring/ProgramEditor.cpp"},
    {"sSavedSelText", "authoring/CommandPicker.cpp authoring/ProgramEditor.cpp"},
    // programs/PresetCatalogue.h
    {"Presets", "programs/PresetCatalogue.cpp"},
    // programs/ProgramFiles.h
    {"bFileSlotOpen", "programs/ProgramFiles.cpp"},
    // shell/CommandLine.h
    {"sCommandLineFile", "shell/CommandLine.cpp"},
    {"bSimStart", "shell/CommandLine.cpp"},
    {"sUnits", "shell/CommandLine.cpp"},
    // shell/StartUp.h
    {"sSimulationFile", "shell/StartUp.cpp"},
};

}  // namespace glidetrak
