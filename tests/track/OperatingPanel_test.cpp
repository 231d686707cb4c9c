// The operating panel: what SetControlStates shows, and when its buttons do something.

#include "track/Lever.h"
#include "track/ModeAndDirection.h"

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/Station.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

constexpr int lYellowText = 192 + 192 * 256;
constexpr int lGreyText = 192 + 192 * 256 + 192 * 65536;
constexpr int lWhiteText = 0xFFFFFF;

class OperatingPanel : public ::testing::Test {
 protected:
  void SetUp() override { station.Start(RigLink::Parallel); }

  Station station;
};

struct StateRow {
  qint16 iMode;
  qint16 iDirection;
  PictureId forward, backward;
  int lForwardText, lBackwardText;
};

const StateRow DirectionRows[] = {
    {modeManual, 1, PictureId::DefBtn, PictureId::DefBtnWF, lYellowText, lWhiteText},
    {modeManual, 0, PictureId::DefBtnWF, PictureId::DefBtn, lWhiteText, lYellowText},
    {modeProgram, 1, PictureId::DefBtn, PictureId::DefBtnWF, lGreyText, lGreyText},
    {modeProgram, 0, PictureId::DefBtnWF, PictureId::DefBtn, lGreyText, lGreyText},
};

TEST_F(OperatingPanel, ShowsTheDirectionInBothModes) {
  for (const StateRow& row : DirectionRows) {
    iControlMode = row.iMode;
    iDirection = row.iDirection;
    SetControlStates();
    SCOPED_TRACE(row.iMode * 2 + row.iDirection);
    EXPECT_EQ(cmdForward.Picture, row.forward);
    EXPECT_EQ(cmdBackward.Picture, row.backward);
    EXPECT_EQ(cmdForward.ForeColor, row.lForwardText);
    EXPECT_EQ(cmdBackward.ForeColor, row.lBackwardText);
  }
}

struct ModeRow {
  qint16 iMode;
  PictureId program, manual;
  int lProgramText, lManualText, lTitleText;
  bool bProgramBox;
  PictureId background;
};

const ModeRow ModeRows[] = {
    {modeProgram, PictureId::DefBtn, PictureId::DefBtnWF, lYellowText, lWhiteText, lWhiteText, true,
     PictureId::ControlsProgram},
    {modeManual, PictureId::DefBtnWF, PictureId::DefBtn, lWhiteText, lYellowText, lGreyText, false,
     PictureId::ControlsManual},
};

TEST_F(OperatingPanel, ShowsTheMode) {
  for (const ModeRow& row : ModeRows) {
    iControlMode = row.iMode;
    SetControlStates();
    SCOPED_TRACE(row.iMode);
    EXPECT_EQ(cmdProgram.Picture, row.program);
    EXPECT_EQ(cmdManual.Picture, row.manual);
    EXPECT_EQ(cmdProgram.ForeColor, row.lProgramText);
    EXPECT_EQ(cmdManual.ForeColor, row.lManualText);
    EXPECT_EQ(lblControlTitle.ForeColor, row.lTitleText);
    EXPECT_EQ(pnlProgramBox.Visible, row.bProgramBox);
    EXPECT_EQ(imgControls.Picture, row.background);
  }
}

TEST_F(OperatingPanel, TakesBackAHoverPicture) {
  cmdForward.Picture = PictureId::DiagBtnWF;
  cmdManual.Picture = PictureId::DiagBtnWF;
  SetControlStates();
  EXPECT_EQ(cmdForward.Picture, PictureId::DefBtn);
  EXPECT_EQ(cmdManual.Picture, PictureId::DefBtn);
}

TEST_F(OperatingPanel, StopsTheMotorOnceForAChangeOfMode) {
  SetPower(9);
  station.Forget();
  iControlMode = modeProgram;
  SetControlStates();
  SetControlStates();
  EXPECT_EQ(station.WrittenBytes(), std::vector<qint32>{16});
  EXPECT_EQ(iPower, 0);
}

TEST_F(OperatingPanel, StopsTheMotorAheadOfShowingTheProgramBox) {
  bool bHiddenAtWrite = false;
  station.platform.rig.OnWrite = [&](qint32) { bHiddenAtWrite = !pnlProgramBox.Visible; };
  iControlMode = modeProgram;
  SetControlStates();
  EXPECT_TRUE(bHiddenAtWrite);
}

/// A button is clicked in that state; the mode and the direction that come of it.
struct ButtonRow {
  const char* sButton;
  qint16 iMode;
  qint16 iDirection;
  bool bRunning;
  qint16 iModeAfter;
  qint16 iDirectionAfter;
};

const ButtonRow ButtonsThatAct[] = {
    {"cmdProgram", modeManual, 1, false, modeProgram, 1},
    {"cmdManual", modeProgram, 0, false, modeManual, 0},
    {"cmdForward", modeManual, 0, false, modeManual, 1},
    {"cmdBackward", modeManual, 1, false, modeManual, 0},
    {"cmdBackward", modeManual, 1, true, modeManual, 0},
};

const ButtonRow ButtonsThatDoNothing[] = {
    {"cmdProgram", modeProgram, 1, false, modeProgram, 1},
    {"cmdManual", modeManual, 1, false, modeManual, 1},
    {"cmdProgram", modeManual, 1, true, modeManual, 1},
    {"cmdManual", modeProgram, 1, true, modeProgram, 1},
    {"cmdForward", modeManual, 1, false, modeManual, 1},
    {"cmdBackward", modeManual, 0, false, modeManual, 0},
    {"cmdForward", modeProgram, 0, false, modeProgram, 0},
    {"cmdBackward", modeProgram, 1, false, modeProgram, 1},
};

/// Puts the panel into the row's state and clicks.
void ClickInState(Station& station, const ButtonRow& row) {
  iControlMode = row.iMode;
  SetDirection(row.iDirection);
  SetControlStates();
  bProgramRunning = row.bRunning;
  station.Forget();
  station.Click(row.sButton);
  bProgramRunning = false;
}

TEST_F(OperatingPanel, ActsOnItsButtons) {
  for (const ButtonRow& row : ButtonsThatAct) {
    ClickInState(station, row);
    SCOPED_TRACE(row.sButton);
    EXPECT_EQ(iControlMode, row.iModeAfter);
    EXPECT_EQ(iDirection, row.iDirectionAfter);
    EXPECT_EQ(station.WrittenBytes().size(), 1U);
    EXPECT_EQ(pnlProgramBox.Visible, row.iModeAfter == modeProgram);
  }
}

TEST_F(OperatingPanel, IgnoresAButtonThatDoesNotApply) {
  for (const ButtonRow& row : ButtonsThatDoNothing) {
    ClickInState(station, row);
    SCOPED_TRACE(row.sButton);
    EXPECT_EQ(iControlMode, row.iModeAfter);
    EXPECT_EQ(iDirection, row.iDirectionAfter);
    EXPECT_TRUE(station.WrittenBytes().empty());
  }
}

}  // namespace
}  // namespace glidetrak
