// What ResetForms leaves behind.

#include <gtest/gtest.h>

#include <set>

#include "form/ControlTable.h"
#include "form/DesignState.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

class DesignState : public ::testing::Test {
 protected:
  void SetUp() override { ResetForms(); }
};

TEST_F(DesignState, PutsEachControlAtThePlaceOfItsRow) {
  for (const ControlRow& row : MainFormTable()) {
    const Control* pControl = AsControl(row.control);
    if (row.iMembers > 1 || pControl == nullptr) continue;
    const Control& control = *pControl;
    EXPECT_EQ(control.Left, row.fLeft) << row.sName;
    EXPECT_EQ(control.Top, row.fTop) << row.sName;
    EXPECT_EQ(control.Width, row.fWidth) << row.sName;
    EXPECT_EQ(control.Height, row.fHeight) << row.sName;
  }
  for (const MemberRow& row : MemberTable()) {
    EXPECT_EQ(AsControl(row.control)->Top, row.fTop) << row.sArray << row.iIndex;
  }
}

TEST_F(DesignState, PutsAMovedControlBack) {
  imgLever.Top = 1;
  ResetForms();
  EXPECT_EQ(imgLever.Top, 4200);
}

TEST_F(DesignState, SizesBothClientAreas) {
  EXPECT_EQ(frmGlidetrak.ScaleWidth, 16320);
  EXPECT_EQ(frmGlidetrak.ScaleHeight, 10635);
  EXPECT_EQ(frmAbout.ScaleWidth, 5235);
  EXPECT_EQ(frmAbout.ScaleHeight, 3240);
}

TEST_F(DesignState, ShowsNeitherFormYet) {
  EXPECT_FALSE(frmGlidetrak.Visible);
  EXPECT_FALSE(frmAbout.Visible);
}

const std::set<QString> Hidden{
    "pnlProgramBox", "pnlMessage",    "pnlCommandSel", "pnlDebug",        "cmbExamples",
    "txtProgram",    "btnTmrReset",   "imgDefBtn",     "imgDefBtnWF",     "imgDefBtnGo",
    "imgDefBtnGoWF", "imgDefBtnStop", "imgDiagBtn",    "imgDefBtnStopWF", "imgDiagBtnWF",
};

TEST_F(DesignState, HidesWhatShowsItselfLaterAndNothingElse) {
  for (const ControlRow& row : MainFormTable()) {
    const Control* pControl = AsControl(row.control);
    if (pControl == nullptr) continue;
    EXPECT_NE(pControl->Visible, Hidden.contains(row.sName)) << row.sName;
  }
}

TEST_F(DesignState, EnablesEverythingButTheTimers) {
  for (const ControlRow& row : MainFormTable()) {
    if (const Control* pControl = AsControl(row.control)) {
      EXPECT_TRUE(pControl->Enabled) << row.sName;
    } else if (Timer* const* ppTimer = std::get_if<Timer*>(&row.control)) {
      EXPECT_FALSE((*ppTimer)->Enabled) << row.sName;
    }
  }
}

struct TimerRow {
  Timer* pTimer;
  int iInterval;
};

TEST_F(DesignState, SetsTheIntervalsOfTheMainFormsTimersAndLeavesThemOff) {
  const TimerRow aRows[] = {{&tmrSystem, 5}, {&tmrReconnect, 5000}, {&tmrEmergencyFlash, 500}};
  for (const TimerRow& row : aRows) {
    EXPECT_EQ(row.pTimer->Interval, row.iInterval);
    EXPECT_FALSE(row.pTimer->Enabled) << row.iInterval;
  }
}

TEST_F(DesignState, SetsTheIntervalsOfTheAboutBoxsTimers) {
  EXPECT_EQ(tmrUpdate.Interval, 3000);
  EXPECT_EQ(TmrAbout.Interval, 6000);
  EXPECT_FALSE(TmrAbout.Enabled);
}

TEST_F(DesignState, FillsThePictureLists) {
  EXPECT_EQ(imgPanels.Pictures.size(), 2U);
  EXPECT_EQ(imgListSwitches.Pictures.size(), 6U);
  EXPECT_EQ(imgListBar.Pictures.size(), 16U);
}

TEST_F(DesignState, NumbersThePicturesFromOne) {
  EXPECT_EQ(imgPanels.ListImage(1), PictureId::ControlsManual);
  EXPECT_EQ(imgPanels.ListImage(2), PictureId::ControlsProgram);
  EXPECT_EQ(imgListSwitches.ListImage(1), PictureId::ToggleOn);
  EXPECT_EQ(imgListSwitches.ListImage(2), PictureId::ToggleOff);
  EXPECT_EQ(imgListSwitches.ListImage(3), PictureId::EmergencyIdle);
  EXPECT_EQ(imgListSwitches.ListImage(4), PictureId::EmergencyPressed);
  EXPECT_EQ(imgListSwitches.ListImage(5), PictureId::EmergencyFlash);
  EXPECT_EQ(imgListSwitches.ListImage(6), PictureId::HandCursor);
  EXPECT_EQ(imgListBar.ListImage(1), PictureId::Bar0);
  EXPECT_EQ(imgListBar.ListImage(16), PictureId::Bar15);
}

struct CaptionRow {
  const QProperty<QString>* pProperty;
  const char* sText;
};

TEST_F(DesignState, WritesTheCaptionsThatStay) {
  const CaptionRow aRows[] = {
      {&lblMsgTitle.Caption, "Message"},
      {&lblInputTitle.Caption, "INPUTS"},
      {&lblOutputTitle.Caption, "OUTPUTS"},
      {&chkTiming.Caption, "Timing:"},
      {&chkAnalog.Caption, "Impact:"},
      {&lblHWState.Caption, "Glidetrak interface not detected"},
      {&pnlClock.Caption, "-- . --"},
      {&lblTimer.Caption, "00"},
      {&lblImpact.Caption, "00"},
      {&lblPowerLevel.Caption, "0"},
      {&lblAnalogVal.Caption, "0"},
      {&lblDebugAppVer.Caption, "app ver"},
      {&lblPowerLevel.ToolTipText, "Power Level"},
      {&lblAnalogVal.ToolTipText, "Impact Value"},
      {&imgCloseDebug.ToolTipText, "Close this window"},
      {&txtDebug.ToolTipText, "Debug Information"},
      {&optDirection[0].Caption, "Backward"},
      {&optDirection[1].Caption, "Forward"},
      {&lblInput[0].Caption, "PA0"},
      {&lblInput[7].Caption, "PA7"},
      {&lblOutput[0].Caption, "PB0"},
      {&lblOutput[7].Caption, "PB7"},
  };
  for (const CaptionRow& row : aRows) EXPECT_EQ(row.pProperty->value(), row.sText);
}

TEST_F(DesignState, ChoosesForward) {
  EXPECT_TRUE(optDirection[1].Value);
  EXPECT_FALSE(optDirection[0].Value);
}

TEST_F(DesignState, ColoursThePanels) {
  const int lDark = 60 + 57 * 256 + 70 * 65536;
  EXPECT_EQ(frmGlidetrak.BackColor, lDark);
  EXPECT_EQ(picSensors.BackColor, lDark);
  EXPECT_EQ(picControls.BackColor, lDark);
  EXPECT_EQ(pnlProgramBox.BackColor, 0);
  EXPECT_EQ(txtProgram.BackColor, 0xFFFFFF);
}

TEST_F(DesignState, WritesImageButtonsInTheirColour) {
  const int lLight = 220 + 220 * 256 + 214 * 65536;
  EXPECT_EQ(cmdRunProgram.ForeColor, lLight);
  EXPECT_EQ(btnSelectComSel.ForeColor, lLight);
}

TEST_F(DesignState, PutsThePicturesAtRest) {
  EXPECT_EQ(cmdRunProgram.Picture, PictureId::DefBtnGo);
  EXPECT_EQ(btnStopProg.Picture, PictureId::DefBtnStop);
  EXPECT_EQ(cmdProgCommands.Picture, PictureId::DefBtn);
  EXPECT_EQ(cmdSingleStep.Picture, PictureId::DefBtn);
  EXPECT_EQ(cmdShowExamples.Picture, PictureId::DefBtn);
  EXPECT_EQ(btnSelectComSel.Picture, PictureId::DiagBtn);
  EXPECT_EQ(btnCloseComSel.Picture, PictureId::DiagBtn);
  EXPECT_EQ(btnEmergency.Picture, PictureId::EmergencyIdle);
}

TEST_F(DesignState, GivesSixControlsTheCustomPointer) {
  const std::set<const Control*> custom{&imgLever,     &picTogTimer, &picTogImpact,
                                        &btnEmergency, &btnRstStop,  &btnTmrReset};
  for (const ControlRow& row : MainFormTable()) {
    const Control* pControl = AsControl(row.control);
    if (pControl == nullptr) continue;
    EXPECT_EQ(pControl->MousePointer == ptrCustom, custom.contains(pControl)) << row.sName;
  }
}

}  // namespace
}  // namespace glidetrak
