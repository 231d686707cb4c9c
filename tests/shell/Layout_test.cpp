// The layout of the main window, from its client area.

#include "shell/Layout.h"

#include <gtest/gtest.h>

#include "common/MiscCode.h"
#include "form/frmGlidetrak.h"
#include "shell/Events.h"
#include "virtual/VirtualPlatform.h"

namespace glidetrak {

namespace {

// Design sizes, twips.
constexpr float fSensorsWidth = 3735, fControlsWidth = 5385, fPanelHeight = 5895;
constexpr float fButtonWidth = 1530;

class LayoutTest : public ::testing::Test {
 protected:
  void SetUp() override { WireEvents(); }

  /// The layout for that client area, whatever the window's own size.
  void LayOut(float fWidth, float fHeight) {
    frmGlidetrak.ScaleWidth = fWidth;
    frmGlidetrak.ScaleHeight = fHeight;
    Form_Resize();
  }

  void ExpectBottomAt(float fTop) {
    for (const Control* pPanel :
         std::initializer_list<const Control*>{&picSensors, &picControls, &pnlProgramBox}) {
      EXPECT_FLOAT_EQ(pPanel->Top, fTop);
      EXPECT_FLOAT_EQ(pPanel->Height, fPanelHeight);
    }
  }

  VirtualPlatform platform;
};

struct BandRow {
  float fWidth, fHeight;  ///< of the client area
  float fBand;            ///< height of the top band
};

TEST_F(LayoutTest, BandTakesTheHeightThatThePanelsLeave) {
  const BandRow rows[] = {
      {14400, 9385, 3490},  {14400, 8895, 3000},  {14400, 8894, 3000},   {14400, 5000, 3000},
      {16320, 10320, 4425}, {28800, 15885, 9990}, {14400, 40000, 34105}, {60000, 8896, 3001},
  };
  for (const BandRow& row : rows) {
    LayOut(row.fWidth, row.fHeight);
    EXPECT_FLOAT_EQ(picHardware.Width, row.fWidth);
    EXPECT_FLOAT_EQ(picHardware.Height, row.fBand);
    EXPECT_FLOAT_EQ(imgHardware.Height, row.fBand);
    EXPECT_FLOAT_EQ(imgHardware.Width, row.fBand * 2.8F);
    EXPECT_NEAR(imgHardware.Left, (row.fWidth - row.fBand * 2.8F) / 2, 0.01);
    EXPECT_FLOAT_EQ(lblHWState.Left, row.fWidth - 3855 - 120);
    EXPECT_FLOAT_EQ(lblHWState.Top, row.fBand - 375 - 30);
    ExpectBottomAt(row.fBand);
  }
}

TEST_F(LayoutTest, PanelsStandSideBySide) {
  LayOut(16320, 10320);
  EXPECT_FLOAT_EQ(picSensors.Left, 0);
  EXPECT_FLOAT_EQ(picSensors.Width, fSensorsWidth);
  EXPECT_FLOAT_EQ(picControls.Left, fSensorsWidth);
  EXPECT_FLOAT_EQ(picControls.Width, fControlsWidth);
  EXPECT_FLOAT_EQ(pnlProgramBox.Left, fSensorsWidth + fControlsWidth);
}

struct BoxRow {
  float fRoom;  ///< behind the control panel
  float fBox;   ///< width of the program box
};

TEST_F(LayoutTest, ProgramBoxTakesItsRoomBetweenTwoLimits) {
  const BoxRow rows[] = {{-9120, 5000}, {4000, 5000}, {4999, 5000}, {5000, 5000},
                         {5001, 5001},  {5280, 5280}, {6599, 6599}, {6600, 6600},
                         {6601, 6600},  {7200, 6600}, {50000, 6600}};
  for (const BoxRow& row : rows) {
    LayOut(fSensorsWidth + fControlsWidth + row.fRoom, 10320);
    EXPECT_FLOAT_EQ(pnlProgramBox.Width, row.fBox) << row.fRoom;
    EXPECT_FLOAT_EQ(imgProgBoxBack.Left, 0) << row.fRoom;
    EXPECT_FLOAT_EQ(imgProgBoxBack.Width, row.fBox) << row.fRoom;
    EXPECT_FLOAT_EQ(imgProgBoxBack.Height, fPanelHeight) << row.fRoom;
    EXPECT_FLOAT_EQ(txtProgram.Width, row.fBox - fButtonWidth - 360) << row.fRoom;
    EXPECT_FLOAT_EQ(txtProgram.Height, fPanelHeight - 320) << row.fRoom;
    for (const Control* pControl : std::initializer_list<const Control*>{
             &cmdShowExamples, &cmdProgCommands, &cmdSingleStep, &cmdRunProgram, &btnStopProg,
             &cmbExamples, &lblExamples}) {
      EXPECT_FLOAT_EQ(pControl->Left, row.fBox - fButtonWidth - 150) << row.fRoom;
    }
  }
}

TEST_F(LayoutTest, ColumnStandsOnAWholeNumber) {
  LayOut(fSensorsWidth + fControlsWidth + 5280.25F, 10320);
  EXPECT_FLOAT_EQ(pnlProgramBox.Width, 5280.25F);
  EXPECT_FLOAT_EQ(cmdRunProgram.Left, 3600);
}

TEST_F(LayoutTest, FloatingPanelsAreCentred) {
  LayOut(16320, 10320);
  EXPECT_FLOAT_EQ(pnlCommandSel.Left, (16320 - 7140) / 2);
  EXPECT_FLOAT_EQ(pnlCommandSel.Top, 3008);  // 3007.5, the even neighbour
  EXPECT_FLOAT_EQ(pnlMessage.Left, (16320 - 4800) / 2);
  EXPECT_FLOAT_EQ(pnlMessage.Top, (10320 - 2400) / 2);
}

TEST_F(LayoutTest, LayoutHoldsNoStateOfItsOwn) {
  LayOut(16320, 10320);
  const float fLeft = imgHardware.Left, fColumn = cmdRunProgram.Left;
  LayOut(60000, 40000);
  LayOut(14400, 9385);
  LayOut(16320, 10320);
  EXPECT_FLOAT_EQ(imgHardware.Left, fLeft);
  EXPECT_FLOAT_EQ(cmdRunProgram.Left, fColumn);
}

TEST_F(LayoutTest, WindowUnderTheSmallestSizeSnapsBack) {
  const struct {
    float fWidth, fHeight, fNewWidth, fNewHeight;
  } rows[] = {
      {14399, 9699, 14400, 9700},   {0, 0, 14400, 9700},        {12000, 8850, 14400, 9700},
      {14400, 9700, 14400, 9700},   {20000, 5000, 20000, 9700}, {5000, 12000, 14400, 12000},
      {28800, 16200, 28800, 16200},
  };
  for (const auto& row : rows) {
    frmGlidetrak.Width = row.fWidth;
    frmGlidetrak.Height = row.fHeight;
    EXPECT_FLOAT_EQ(frmGlidetrak.Width, row.fNewWidth) << row.fWidth;
    EXPECT_FLOAT_EQ(frmGlidetrak.Height, row.fNewHeight) << row.fHeight;
    EXPECT_FLOAT_EQ(picHardware.Width, row.fNewWidth) << row.fWidth;
  }
}

TEST_F(LayoutTest, MinimisedWindowIsNotLaidOut) {
  LayOut(16320, 10320);
  frmGlidetrak.WindowState = stateMinimised;
  for (const bool bTicking : {true, false}) {
    tmrSystem.Enabled = bTicking;
    LayOut(100, 100);
    EXPECT_FLOAT_EQ(picHardware.Width, 16320);
    EXPECT_EQ(tmrSystem.Enabled, bTicking);
  }
}

TEST_F(LayoutTest, ResizeStopsTheTickAndStartsItWhateverItWas) {
  bool bTicking = true;
  const auto moved = picHardware.Width.addNotifier([&] { bTicking = tmrSystem.Enabled; });
  float fWidth = 20000;
  for (const bool bBefore : {true, false}) {
    tmrSystem.Enabled = bBefore;
    bTicking = true;
    LayOut(++fWidth, 10320);
    EXPECT_FALSE(bTicking);
    EXPECT_TRUE(tmrSystem.Enabled);
  }
}

TEST_F(LayoutTest, PanelIsCentredOnWholeTwips) {
  frmGlidetrak.ScaleWidth = 10000;
  frmGlidetrak.ScaleHeight = 8000;
  CentreControl(pnlMessage);
  EXPECT_FLOAT_EQ(pnlMessage.Left, 2600);
  EXPECT_FLOAT_EQ(pnlMessage.Top, 2800);
  frmGlidetrak.ScaleHeight = 8002;
  CentreControl(pnlMessage);
  EXPECT_FLOAT_EQ(pnlMessage.Left, 2600);
  EXPECT_FLOAT_EQ(pnlMessage.Top, 2801);
}

TEST_F(LayoutTest, PanelLargerThanTheWindowIsCentredBeyondItsEdges) {
  frmGlidetrak.ScaleWidth = 4000;
  frmGlidetrak.ScaleHeight = 2000;
  CentreControl(pnlMessage);
  EXPECT_FLOAT_EQ(pnlMessage.Left, -400);
  EXPECT_FLOAT_EQ(pnlMessage.Top, -200);
}

}  // namespace

}  // namespace glidetrak
