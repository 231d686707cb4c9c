#include "form/ControlTable.h"

#include <algorithm>
#include <type_traits>

#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"

namespace glidetrak {

namespace {

constexpr Font fontForm{"MS Sans Serif", 8.25F, true};
constexpr Font fontButton{"Verdana", 8.25F, false};
constexpr Font fontCourier{"Courier", 9.75F, false};
constexpr Font fontCourierNew{"Courier New", 9, false};
constexpr Font fontDisplay{"Verdana", 18, true};
constexpr Font fontMessage{"Verdana", 9.75F, true};
constexpr Font fontList{"Verdana", 8.25F, true};
constexpr Font fontPanelTitle{"Malgun Gothic", 15.75F, true};
constexpr Font fontLegend{"Malgun Gothic", 12, true};
constexpr Font fontSwitch{"Malgun Gothic", 11.25F, true};
constexpr Font fontProgName{"Arial Narrow", 14.25F, true};
constexpr Font fontProgVer{"MS Sans Serif", 9.75F, true};

constexpr Style stylePlain{};
constexpr Style styleLegend{.look = Look::Legend};
constexpr Style styleName{.look = Look::Name};
constexpr Style styleRight{.look = Look::RightText};
constexpr Style styleTitle{.look = Look::TitleBar};
constexpr Style styleBorder{.bBorder = true};
constexpr Style styleOneLine{.bOneLine = true};
constexpr Style styleScrollBar{.bScrollBar = true};

// clang-format off
const ControlRow MainRows[] = {
    {"tmrEmergencyFlash", &tmrEmergencyFlash, 1, &frmGlidetrak, 0, 0, 0, 0, fontForm},
    {"tmrReconnect", &tmrReconnect, 1, &frmGlidetrak, 0, 0, 0, 0, fontForm},
    {"tmrSystem", &tmrSystem, 1, &frmGlidetrak, 0, 0, 0, 0, fontForm},
    {"imgPanels", &imgPanels, 1, &frmGlidetrak, 0, 0, 0, 0, fontForm},
    {"imgListBar", &imgListBar, 1, &frmGlidetrak, 0, 0, 0, 0, fontForm},
    {"imgListSwitches", &imgListSwitches, 1, &frmGlidetrak, 0, 0, 0, 0, fontForm},
    {"cmSave", &cmSave, 1, &frmGlidetrak, 0, 0, 0, 0, fontForm},
    {"cmLoad", &cmLoad, 1, &frmGlidetrak, 0, 0, 0, 0, fontForm},
    {"picHardware", &picHardware, 1, &frmGlidetrak, 0, 0, 4215, 2055,
     fontForm, stylePlain, Layer::Front, Role::TopBand},
    {"lblHWState", &lblHWState, 1, &picHardware, 240, 1560, 3855, 375, fontForm, styleRight},
    {"imgHardware", &imgHardware, 1, &picHardware, 0, 0, 1575, 1215,
     fontForm, stylePlain, Layer::Background},
    {"picSensors", &picSensors, 1, &frmGlidetrak, 0, 3840, 3735, 5895, fontForm},
    {"imgSensors", &imgSensors, 1, &picSensors, 0, 0, 3735, 5895,
     fontForm, stylePlain, Layer::Background},
    {"lblTimerTitle", &lblTimerTitle, 1, &picSensors, 1800, 90, 1215, 420,
     fontPanelTitle, styleLegend},
    {"lblTimer", &lblTimer, 1, &picSensors, 1800, 930, 1575, 375, fontDisplay, styleLegend},
    {"picTogTimer", &picTogTimer, 1, &picSensors, 400, 800, 1050, 1245, fontForm},
    {"btnTmrReset", &btnTmrReset, 1, &picSensors, 2760, 1560, 450, 450, fontForm},
    {"lblOn1", &lblOn1, 1, &picSensors, 590, 450, 375, 300, fontSwitch, styleLegend},
    {"lblOff", &lblOff, 1, &picSensors, 550, 2000, 435, 300, fontSwitch, styleLegend},
    {"lblImpactTitle", &lblImpactTitle, 1, &picSensors, 1800, 2640, 1305, 420,
     fontPanelTitle, styleLegend},
    {"lblImpact", &lblImpact, 1, &picSensors, 1560, 5040, 615, 375, fontDisplay, styleLegend},
    {"imgBarGraph", &imgBarGraph, 1, &picSensors, 2880, 3100, 645, 2535, fontForm},
    {"picTogImpact", &picTogImpact, 1, &picSensors, 400, 3120, 1050, 1245, fontForm},
    {"lblOn2", &lblOn2, 1, &picSensors, 590, 2780, 375, 300, fontSwitch, styleLegend},
    {"lblOff2", &lblOff2, 1, &picSensors, 550, 4320, 435, 300, fontSwitch, styleLegend},
    {"lblImpact2", &lblImpact2, 1, &picSensors, 285, 5090, 1035, 315, fontLegend, styleLegend},
    {"picControls", &picControls, 1, &frmGlidetrak, 3720, 3840, 5385, 5865, fontForm},
    {"imgControls", &imgControls, 1, &picControls, 0, 0, 5350, 5895,
     fontForm, stylePlain, Layer::Background},
    {"lblControlTitle", &lblControlTitle, 1, &picControls, 1560, 1320, 1995, 315,
     fontLegend, styleLegend},
    {"lblPowerTitle", &lblPowerTitle, 1, &picControls, 600, 3480, 1005, 315,
     fontLegend, styleLegend},
    {"imgLever", &imgLever, 1, &picControls, 230, 4200, 1815, 735, fontForm},
    {"cmdManual", &cmdManual, 1, &picControls, 720, 360, 1530, 390, fontButton},
    {"cmdProgram", &cmdProgram, 1, &picControls, 3120, 360, 1530, 390, fontButton},
    {"cmdForward", &cmdForward, 1, &picControls, 3480, 2400, 1530, 390, fontButton},
    {"cmdBackward", &cmdBackward, 1, &picControls, 3480, 2880, 1530, 390, fontButton},
    {"lblEmergStop1", &lblEmergStop1, 1, &picControls, 3120, 3840, 1485, 315,
     fontLegend, styleLegend},
    {"lblEmergStop2", &lblEmergStop2, 1, &picControls, 3600, 4150, 615, 315,
     fontLegend, styleLegend},
    {"btnEmergency", &btnEmergency, 1, &picControls, 3480, 4560, 1245, 1245,
     fontForm, stylePlain, Layer::Front, Role::EmergencyStop},
    {"btnRstStop", &btnRstStop, 1, &picControls, 4560, 4560, 450, 450, fontForm},
    {"pnlProgramBox", &pnlProgramBox, 1, &frmGlidetrak, 9360, 3840, 6615, 5955, fontForm},
    {"imgProgBoxBack", &imgProgBoxBack, 1, &pnlProgramBox, 600, 0, 6525, 5985,
     fontForm, stylePlain, Layer::Background},
    {"txtProgram", &txtProgram, 1, &pnlProgramBox, 120, 150, 4695, 3825,
     fontCourier, styleScrollBar},
    {"lblExamples", &lblExamples, 1, &pnlProgramBox, 4920, 210, 1530, 225, fontForm},
    {"cmdShowExamples", &cmdShowExamples, 1, &pnlProgramBox, 4890, 690, 1530, 390, fontButton},
    {"cmbExamples", &cmbExamples, 1, &pnlProgramBox, 4890, 1140, 1530, 315, fontForm},
    {"cmdProgCommands", &cmdProgCommands, 1, &pnlProgramBox, 4890, 2280, 1530, 390, fontButton},
    {"cmdSingleStep", &cmdSingleStep, 1, &pnlProgramBox, 4890, 2700, 1530, 390, fontButton},
    {"cmdRunProgram", &cmdRunProgram, 1, &pnlProgramBox, 4890, 3150, 1530, 390, fontButton},
    {"btnStopProg", &btnStopProg, 1, &pnlProgramBox, 4890, 3585, 1530, 390, fontButton},
    {"txtFocusGrab", &txtFocusGrab, 1, &pnlProgramBox, 1170, 1680, 765, 225,
     fontForm, styleOneLine, Layer::Behind, Role::FocusKeeper, &txtProgram},
    {"pnlMessage", &pnlMessage, 1, &frmGlidetrak, 6000, 1680, 4800, 2400, fontForm, styleBorder},
    {"lblMsgTitle", &lblMsgTitle, 1, &pnlMessage, 90, 60, 4640, 315, fontForm, styleTitle},
    {"lblMessage", &lblMessage, 1, &pnlMessage, 210, 570, 4455, 1725, fontMessage},
    {"pnlCommandSel", &pnlCommandSel, 1, &frmGlidetrak, 5640, 30, 7140, 4305,
     fontForm, styleBorder},
    {"CommandSelTitle", &CommandSelTitle, 1, &pnlCommandSel, 90, 60, 6675, 315,
     fontForm, styleTitle},
    {"imgAddCmdClose", &imgAddCmdClose, 1, &pnlCommandSel, 6810, 60, 270, 270, fontForm},
    {"lblCommandSelListTitle", &lblCommandSelListTitle, 1, &pnlCommandSel,
     150, 420, 2745, 255, fontForm},
    {"lstProgCommands", &lstProgCommands, 1, &pnlCommandSel, 150, 630, 4425, 1620, fontList},
    {"btnSelectComSel", &btnSelectComSel, 1, &pnlCommandSel, 5490, 570, 1515, 345, fontButton},
    {"btnCloseComSel", &btnCloseComSel, 1, &pnlCommandSel, 5490, 1050, 1515, 345, fontButton},
    {"fraHelp", &fraHelp, 1, &pnlCommandSel, 150, 2370, 6855, 1860, fontForm, styleBorder},
    {"lblHELPFormatTitle", &lblHELPFormatTitle, 1, &pnlCommandSel, 270, 2460, 840, 225, fontForm},
    {"lblHELPFormat", &lblHELPFormat, 1, &pnlCommandSel, 1170, 2460, 5745, 225, fontCourierNew},
    {"lblHELPDescTitle", &lblHELPDescTitle, 1, &pnlCommandSel, 270, 2700, 1095, 225, fontForm},
    {"lblCompDesc", &lblCompDesc, 1, &pnlCommandSel, 270, 2910, 6645, 465, fontForm},
    {"lblHELPExampleTitle", &lblHELPExampleTitle, 1, &pnlCommandSel, 270, 3420, 825, 225, fontForm},
    {"txtHELPExample", &txtHELPExample, 1, &pnlCommandSel, 1170, 3390, 5715, 795, fontCourierNew},
    {"pnlDebug", &pnlDebug, 1, &frmGlidetrak, 4320, -240, 5250, 3015, fontForm, styleBorder},
    {"imgCloseDebug", &imgCloseDebug, 1, &pnlDebug, 4860, 75, 270, 270, fontForm},
    {"txtDebug", &txtDebug, 1, &pnlDebug, 960, 430, 3300, 1410, fontCourier},
    {"lblInputTitle", &lblInputTitle, 1, &pnlDebug, 90, 410, 795, 195, fontForm},
    {"lblInput", &lblInput[0], 8, &pnlDebug, 495, 645, 300, 210, fontForm, styleName},
    {"ledInput", &ledInput[0], 8, &pnlDebug, 0, 0, 0, 0, fontForm},
    {"lblOutputTitle", &lblOutputTitle, 1, &pnlDebug, 4360, 410, 795, 195, fontForm},
    {"lblOutput", &lblOutput[0], 8, &pnlDebug, 4770, 2675, 375, 175, fontForm, styleName},
    {"ledOutput", &ledOutput[0], 24, &pnlDebug, 0, 0, 0, 0, fontForm},
    {"optDirection", &optDirection[0], 2, &pnlDebug, 1020, 1960, 1055, 275, fontForm},
    {"chkTiming", &chkTiming, 1, &pnlDebug, 1030, 2260, 900, 315, fontForm},
    {"chkAnalog", &chkAnalog, 1, &pnlDebug, 1030, 2620, 900, 305, fontForm},
    {"pnlClock", &pnlClock, 1, &pnlDebug, 2130, 2340, 1155, 260, fontForm},
    {"lblAnalogVal", &lblAnalogVal, 1, &pnlDebug, 2130, 2670, 1155, 270, fontForm},
    {"cmdTimerReset", &cmdTimerReset, 1, &pnlDebug, 3420, 2280, 795, 315, fontForm},
    {"lblPowerLevel", &lblPowerLevel, 1, &pnlDebug, 3540, 1980, 675, 225, fontForm},
    {"lblDebugAppVer", &lblDebugAppVer, 1, &pnlDebug, 3480, 2670, 795, 255, fontForm},
    {"imgDefBtn", &imgDefBtn, 1, &frmGlidetrak, 3480, 9960, 1530, 390, fontForm},
    {"imgDefBtnWF", &imgDefBtnWF, 1, &frmGlidetrak, 6360, 9960, 1530, 390, fontForm},
    {"imgDefBtnGo", &imgDefBtnGo, 1, &frmGlidetrak, 1680, 9960, 1530, 390, fontForm},
    {"imgDefBtnGoWF", &imgDefBtnGoWF, 1, &frmGlidetrak, 8520, 9960, 1530, 390, fontForm},
    {"imgDefBtnStop", &imgDefBtnStop, 1, &frmGlidetrak, 8190, 10320, 1530, 390, fontForm},
    {"imgDefBtnStopWF", &imgDefBtnStopWF, 1, &frmGlidetrak, 9000, 10320, 1530, 390, fontForm},
    {"imgDiagBtn", &imgDiagBtn, 1, &frmGlidetrak, 6390, 10320, 1500, 360, fontForm},
    {"imgDiagBtnWF", &imgDiagBtnWF, 1, &frmGlidetrak, 6000, 10320, 1500, 360, fontForm},
};

const ControlRow AboutRows[] = {
    {"Image1", &Image1, 1, &frmAbout, 0, 0, 3855, 2295, fontForm},
    {"Picture1", &Picture1, 1, &frmAbout, 3960, 0, 1215, 1335, fontForm},
    {"lblProgName", &lblProgName, 1, &frmAbout, 240, 480, 900, 345, fontProgName, styleName},
    {"lblProgVer", &lblProgVer, 1, &frmAbout, 240, 960, 870, 240, fontProgVer, styleName},
    {"lblCopyright", &lblCopyright, 1, &frmAbout, 1800, 1920, 3255, 255, fontForm, styleRight},
    {"Line1", &Line1, 1, &frmAbout, 0, 2280, 5085, 0, fontForm},
    {"lblplw8Instruct", &lblplw8Instruct, 1, &frmAbout, 120, 2400, 4965, 345, fontForm},
    {"picClose", &picClose, 1, &frmAbout, 3990, 2760, 1140, 390, fontForm},
    {"tmrUpdate", &tmrUpdate, 1, &frmAbout, 0, 0, 0, 0, fontForm},
    {"TmrAbout", &TmrAbout, 1, &frmAbout, 0, 0, 0, 0, fontForm},
};

const MenuRow MenuRows[] = {
    {"MNUMAIN", &MNUMAIN, nullptr},
    {"MNUNEWPROG", &MNUNEWPROG, &MNUMAIN},
    {"MNULOADPROG", &MNULOADPROG, &MNUMAIN},
    {"MNUSAVEPROG", &MNUSAVEPROG, &MNUMAIN},
    {"MNUSAVEPROGAS", &MNUSAVEPROGAS, &MNUMAIN},
    {"MNUEXIT", &MNUEXIT, &MNUMAIN},
    {"MNUPROGRAMOPT", &MNUPROGRAMOPT, nullptr},
    {"MNUCommands", &MNUCommands, &MNUPROGRAMOPT},
    {"MNURUN", &MNURUN, &MNUPROGRAMOPT},
    {"MNUSTOP", &MNUSTOP, &MNUPROGRAMOPT},
    {"MNUSTEPFORWARD", &MNUSTEPFORWARD, &MNUPROGRAMOPT},
    {"MNUHELP", &MNUHELP, nullptr},
    {"MNUShowDebug", &MNUShowDebug, &MNUHELP},
    {"MNUAbout", &MNUAbout, &MNUHELP},
};
// clang-format on

/// Tops of the lamps; the legends beside them stand 15 twips higher, the frames behind them 22.
constexpr float aLampTops[8] = {660, 945, 1245, 1530, 1815, 2115, 2400, 2685};

std::vector<MemberRow> BuildMembers() {
  std::vector<MemberRow> aRows;
  for (int i = 0; i < 8; ++i) {
    const float fTop = aLampTops[i];
    aRows.push_back({"ledInput", i, &ledInput[i], 150, fTop, 270, i < 2 ? 180.0F : 175.0F});
    aRows.push_back({"ledOutput", i, &ledOutput[i], 4410, fTop, 270, i == 0 ? 180.0F : 175.0F});
    aRows.push_back(
        {"ledOutput", 8 + i, &ledOutput[8 + i], 4380, fTop - 22, 315, 220, Layer::Behind});
    aRows.push_back(
        {"ledOutput", 16 + i, &ledOutput[16 + i], 120, fTop - 22, 315, 220, Layer::Behind});
    aRows.push_back({"lblInput", i, &lblInput[i], 495, fTop - 15, 300, 210});
    aRows.push_back({"lblOutput", i, &lblOutput[i], 4770, fTop - 15, 375, 175});
  }
  aRows.push_back({"optDirection", 0, &optDirection[0], 2130, 1960, 1055, 275});
  aRows.push_back({"optDirection", 1, &optDirection[1], 1020, 1960, 1055, 275});
  return aRows;
}

}  // namespace

std::span<const ControlRow> MainFormTable() {
  return MainRows;
}

std::span<const ControlRow> AboutFormTable() {
  return AboutRows;
}

std::span<const MenuRow> MenuTable() {
  return MenuRows;
}

std::span<const MemberRow> MemberTable() {
  static const std::vector<MemberRow> aRows = BuildMembers();
  return aRows;
}

const ControlRow& RowInRole(Role role) {
  return *std::ranges::find(MainRows, role, &ControlRow::role);
}

Control* AsControl(const ControlRef& control) {
  return std::visit(
      [](auto* pComponent) -> Control* {
        if constexpr (std::is_convertible_v<decltype(pComponent), Control*>) return pComponent;
        return nullptr;
      },
      control);
}

Control* FindControl(const QString& sName) {
  for (const ControlRow& row : MainRows) {
    if (sName == row.sName) return AsControl(row.control);
  }
  for (const MemberRow& row : MemberTable()) {
    if (sName == QString("%1_%2").arg(row.sArray).arg(row.iIndex)) return AsControl(row.control);
  }
  return nullptr;
}

}  // namespace glidetrak
