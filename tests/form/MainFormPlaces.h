#pragma once

// The design of the main window, control by control: kind, container, left, top, width and height
// in twips. What has no place on the form, and an array whose members are placed one by one, has
// zeros.

#include "form/ControlTable.h"

namespace glidetrak {

template <class Kind>
bool Is(const ControlRef& control) {
  return std::holds_alternative<Kind*>(control);
}

struct PlaceRow {
  const char* sName;
  bool (*isKind)(const ControlRef&);
  const char* sContainer;
  float fLeft, fTop, fWidth, fHeight;
};

inline const PlaceRow MainFormPlaces[] = {
    {"tmrEmergencyFlash", Is<Timer>, "frmGlidetrak", 0, 0, 0, 0},
    {"tmrReconnect", Is<Timer>, "frmGlidetrak", 0, 0, 0, 0},
    {"tmrSystem", Is<Timer>, "frmGlidetrak", 0, 0, 0, 0},
    {"imgPanels", Is<ImageList>, "frmGlidetrak", 0, 0, 0, 0},
    {"imgListBar", Is<ImageList>, "frmGlidetrak", 0, 0, 0, 0},
    {"imgListSwitches", Is<ImageList>, "frmGlidetrak", 0, 0, 0, 0},
    {"cmSave", Is<FileDialog>, "frmGlidetrak", 0, 0, 0, 0},
    {"cmLoad", Is<FileDialog>, "frmGlidetrak", 0, 0, 0, 0},
    {"picHardware", Is<PictureBox>, "frmGlidetrak", 0, 0, 4215, 2055},
    {"lblHWState", Is<Label>, "picHardware", 240, 1560, 3855, 375},
    {"imgHardware", Is<Image>, "picHardware", 0, 0, 1575, 1215},
    {"picSensors", Is<PictureBox>, "frmGlidetrak", 0, 3840, 3735, 5895},
    {"imgSensors", Is<Image>, "picSensors", 0, 0, 3735, 5895},
    {"lblTimerTitle", Is<Label>, "picSensors", 1800, 90, 1215, 420},
    {"lblTimer", Is<Label>, "picSensors", 1800, 930, 1575, 375},
    {"picTogTimer", Is<PictureBox>, "picSensors", 400, 800, 1050, 1245},
    {"btnTmrReset", Is<Image>, "picSensors", 2760, 1560, 450, 450},
    {"lblOn1", Is<Label>, "picSensors", 590, 450, 375, 300},
    {"lblOff", Is<Label>, "picSensors", 550, 2000, 435, 300},
    {"lblImpactTitle", Is<Label>, "picSensors", 1800, 2640, 1305, 420},
    {"lblImpact", Is<Label>, "picSensors", 1560, 5040, 615, 375},
    {"imgBarGraph", Is<Image>, "picSensors", 2880, 3100, 645, 2535},
    {"picTogImpact", Is<PictureBox>, "picSensors", 400, 3120, 1050, 1245},
    {"lblOn2", Is<Label>, "picSensors", 590, 2780, 375, 300},
    {"lblOff2", Is<Label>, "picSensors", 550, 4320, 435, 300},
    {"lblImpact2", Is<Label>, "picSensors", 285, 5090, 1035, 315},
    {"picControls", Is<PictureBox>, "frmGlidetrak", 3720, 3840, 5385, 5865},
    {"imgControls", Is<Image>, "picControls", 0, 0, 5350, 5895},
    {"lblControlTitle", Is<Label>, "picControls", 1560, 1320, 1995, 315},
    {"lblPowerTitle", Is<Label>, "picControls", 600, 3480, 1005, 315},
    {"imgLever", Is<Image>, "picControls", 230, 4200, 1815, 735},
    {"cmdManual", Is<ImageButton>, "picControls", 720, 360, 1530, 390},
    {"cmdProgram", Is<ImageButton>, "picControls", 3120, 360, 1530, 390},
    {"cmdForward", Is<ImageButton>, "picControls", 3480, 2400, 1530, 390},
    {"cmdBackward", Is<ImageButton>, "picControls", 3480, 2880, 1530, 390},
    {"lblEmergStop1", Is<Label>, "picControls", 3120, 3840, 1485, 315},
    {"lblEmergStop2", Is<Label>, "picControls", 3600, 4150, 615, 315},
    {"btnEmergency", Is<PictureBox>, "picControls", 3480, 4560, 1245, 1245},
    {"btnRstStop", Is<PictureBox>, "picControls", 4560, 4560, 450, 450},
    {"pnlProgramBox", Is<PictureBox>, "frmGlidetrak", 9360, 3840, 6615, 5955},
    {"imgProgBoxBack", Is<Image>, "pnlProgramBox", 600, 0, 6525, 5985},
    {"txtProgram", Is<TextBox>, "pnlProgramBox", 120, 150, 4695, 3825},
    {"lblExamples", Is<Label>, "pnlProgramBox", 4920, 210, 1530, 225},
    {"cmdShowExamples", Is<ImageButton>, "pnlProgramBox", 4890, 690, 1530, 390},
    {"cmbExamples", Is<ComboBox>, "pnlProgramBox", 4890, 1140, 1530, 315},
    {"cmdProgCommands", Is<ImageButton>, "pnlProgramBox", 4890, 2280, 1530, 390},
    {"cmdSingleStep", Is<ImageButton>, "pnlProgramBox", 4890, 2700, 1530, 390},
    {"cmdRunProgram", Is<ImageButton>, "pnlProgramBox", 4890, 3150, 1530, 390},
    {"btnStopProg", Is<ImageButton>, "pnlProgramBox", 4890, 3585, 1530, 390},
    {"txtFocusGrab", Is<TextBox>, "pnlProgramBox", 1170, 1680, 765, 225},
    {"pnlMessage", Is<PictureBox>, "frmGlidetrak", 6000, 1680, 4800, 2400},
    {"lblMsgTitle", Is<Label>, "pnlMessage", 90, 60, 4640, 315},
    {"lblMessage", Is<Label>, "pnlMessage", 210, 570, 4455, 1725},
    {"pnlCommandSel", Is<PictureBox>, "frmGlidetrak", 5640, 30, 7140, 4305},
    {"CommandSelTitle", Is<Label>, "pnlCommandSel", 90, 60, 6675, 315},
    {"imgAddCmdClose", Is<Image>, "pnlCommandSel", 6810, 60, 270, 270},
    {"lblCommandSelListTitle", Is<Label>, "pnlCommandSel", 150, 420, 2745, 255},
    {"lstProgCommands", Is<ListBox>, "pnlCommandSel", 150, 630, 4425, 1620},
    {"btnSelectComSel", Is<ImageButton>, "pnlCommandSel", 5490, 570, 1515, 345},
    {"btnCloseComSel", Is<ImageButton>, "pnlCommandSel", 5490, 1050, 1515, 345},
    {"fraHelp", Is<Label>, "pnlCommandSel", 150, 2370, 6855, 1860},
    {"lblHELPFormatTitle", Is<Label>, "pnlCommandSel", 270, 2460, 840, 225},
    {"lblHELPFormat", Is<Label>, "pnlCommandSel", 1170, 2460, 5745, 225},
    {"lblHELPDescTitle", Is<Label>, "pnlCommandSel", 270, 2700, 1095, 225},
    {"lblCompDesc", Is<Label>, "pnlCommandSel", 270, 2910, 6645, 465},
    {"lblHELPExampleTitle", Is<Label>, "pnlCommandSel", 270, 3420, 825, 225},
    {"txtHELPExample", Is<TextBox>, "pnlCommandSel", 1170, 3390, 5715, 795},
    {"pnlDebug", Is<PictureBox>, "frmGlidetrak", 4320, -240, 5250, 3015},
    {"imgCloseDebug", Is<Image>, "pnlDebug", 4860, 75, 270, 270},
    {"txtDebug", Is<TextBox>, "pnlDebug", 960, 430, 3300, 1410},
    {"lblInputTitle", Is<Label>, "pnlDebug", 90, 410, 795, 195},
    {"lblInput", Is<Label>, "pnlDebug", 495, 645, 300, 210},
    {"ledInput", Is<Shape>, "pnlDebug", 0, 0, 0, 0},
    {"lblOutputTitle", Is<Label>, "pnlDebug", 4360, 410, 795, 195},
    {"lblOutput", Is<Label>, "pnlDebug", 4770, 2675, 375, 175},
    {"ledOutput", Is<Shape>, "pnlDebug", 0, 0, 0, 0},
    {"optDirection", Is<OptionButton>, "pnlDebug", 1020, 1960, 1055, 275},
    {"chkTiming", Is<CheckBox>, "pnlDebug", 1030, 2260, 900, 315},
    {"chkAnalog", Is<CheckBox>, "pnlDebug", 1030, 2620, 900, 305},
    {"pnlClock", Is<Label>, "pnlDebug", 2130, 2340, 1155, 260},
    {"lblAnalogVal", Is<Label>, "pnlDebug", 2130, 2670, 1155, 270},
    {"cmdTimerReset", Is<PictureBox>, "pnlDebug", 3420, 2280, 795, 315},
    {"lblPowerLevel", Is<Label>, "pnlDebug", 3540, 1980, 675, 225},
    {"lblDebugAppVer", Is<Label>, "pnlDebug", 3480, 2670, 795, 255},
    {"imgDefBtn", Is<Image>, "frmGlidetrak", 3480, 9960, 1530, 390},
    {"imgDefBtnWF", Is<Image>, "frmGlidetrak", 6360, 9960, 1530, 390},
    {"imgDefBtnGo", Is<Image>, "frmGlidetrak", 1680, 9960, 1530, 390},
    {"imgDefBtnGoWF", Is<Image>, "frmGlidetrak", 8520, 9960, 1530, 390},
    {"imgDefBtnStop", Is<Image>, "frmGlidetrak", 8190, 10320, 1530, 390},
    {"imgDefBtnStopWF", Is<Image>, "frmGlidetrak", 9000, 10320, 1530, 390},
    {"imgDiagBtn", Is<Image>, "frmGlidetrak", 6390, 10320, 1500, 360},
    {"imgDiagBtnWF", Is<Image>, "frmGlidetrak", 6000, 10320, 1500, 360},
};

}  // namespace glidetrak
