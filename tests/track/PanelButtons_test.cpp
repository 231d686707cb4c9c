// Mode and direction buttons, hover and the timing toggle: what they do to the panel and to the
// rig's wire.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"
#include "track/InputDecoding.h"
#include "track/Lever.h"
#include "track/ModeAndDirection.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Panel : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;

  /// Mode and direction as the panel shows them; the looks of each stand in the panel's own rows.
  void ExpectShown(bool bProgram, bool bForward) {
    EXPECT_EQ(iControlMode, bProgram ? modeProgram : modeManual);
    EXPECT_EQ(pnlProgramBox.Visible.value(), bProgram);
    EXPECT_EQ(cmdForward.Picture, bForward ? PictureId::DefBtn : PictureId::DefBtnWF);
    EXPECT_EQ(cmdBackward.Picture, bForward ? PictureId::DefBtnWF : PictureId::DefBtn);
  }

  void FullPower() {
    imgLever.MouseMove(mouseLeft, 0, -30000);
    platform.RunFor(25);
    station.Forget();
  }
};

TEST_F(Panel, StartsInManualModeForward) {
  station.Start();
  ExpectShown(false, true);
}

TEST_F(Panel, StopsTheMotorAtEachChangeOfMode) {
  station.Start();
  FullPower();
  station.Click("cmdProgram");
  ExpectShown(true, true);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x10));
  EXPECT_EQ(imgLever.Top.value(), 4760);
  station.Click("cmdManual");
  ExpectShown(false, true);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x10, 0x10));
}

TEST_F(Panel, ChangesTheDirectionAtFullPowerStraightOnTheWire) {
  station.Start();
  FullPower();
  station.Click("cmdBackward");
  ExpectShown(false, false);
  station.Click("cmdForward");
  ExpectShown(false, true);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x0F, 0x1F));
}

/// A redraw would take a hover picture back.
TEST_F(Panel, NeitherWritesNorRedrawsForTheDirectionInForce) {
  station.Start();
  for (const char* sButton : {"cmdForward", "cmdBackward"}) {
    station.Click(sButton);
    station.Forget();
    cmdManual.Picture = PictureId::DiagBtnWF;
    station.Click(sButton);
    EXPECT_THAT(station.WrittenBytes(), IsEmpty()) << sButton;
    EXPECT_EQ(cmdManual.Picture.value(), PictureId::DiagBtnWF) << sButton;
  }
}

TEST_F(Panel, ChangesTheDirectionWhileLatched) {
  station.Start();
  btnEmergency.MouseDown(mouseLeft, 0, 0);
  station.Forget();
  station.Click("cmdBackward");
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x00));
  ExpectShown(false, false);
}

TEST_F(Panel, ChangesTheModeWhileLatched) {
  station.Start();
  btnEmergency.MouseDown(mouseLeft, 0, 0);
  station.Click("cmdProgram");
  EXPECT_EQ(iControlMode, modeProgram);
  EXPECT_TRUE(bEmergencyStop);
}

// Hover.

struct HoverRow : NamedRow {
  ImageButton* pButton;
  bool bInManual, bInProgram, bDuringRun;
};

class PanelHover : public Panel, public testing::WithParamInterface<HoverRow> {
 protected:
  ImageButton& button = *GetParam().pButton;

  void ExpectHover(bool bHover) {
    const PictureId before = button.Picture;
    button.MouseMove(0, 10, 10);
    EXPECT_EQ(bButtonHover, bHover);
    EXPECT_EQ(button.Picture.value(), bHover ? PictureId::DiagBtnWF : before);
    imgControls.MouseMove(0, 10, 10);
    EXPECT_FALSE(bButtonHover);
    EXPECT_EQ(button.Picture.value(), before);
  }
};

TEST_P(PanelHover, GoesByModeAndRun) {
  station.Start();
  ExpectHover(GetParam().bInManual);
  station.EnterProgram({"WAIT 1000"});
  ExpectHover(GetParam().bInProgram);
  int iTried = 0;
  station.After(100, [&] {
    ++iTried;
    ExpectHover(GetParam().bDuringRun);
  });
  station.Click("cmdRunProgram");
  EXPECT_EQ(iTried, 1);
}

INSTANTIATE_TEST_SUITE_P(Rows, PanelHover,
                         testing::Values(HoverRow{"Manual", &cmdManual, true, true, false},
                                         HoverRow{"Program", &cmdProgram, true, true, false},
                                         HoverRow{"Forward", &cmdForward, true, false, false},
                                         HoverRow{"Backward", &cmdBackward, true, false, false}),
                         RowName());

TEST_F(Panel, LetsOneButtonHoverUntilThePanelIsTouched) {
  station.Start();
  cmdForward.MouseMove(0, 10, 10);
  cmdBackward.MouseMove(0, 10, 10);
  cmdManual.MouseMove(0, 10, 10);
  EXPECT_EQ(cmdForward.Picture.value(), PictureId::DiagBtnWF);
  EXPECT_EQ(cmdBackward.Picture.value(), PictureId::DefBtnWF);
  EXPECT_EQ(cmdManual.Picture.value(), PictureId::DefBtn);
  imgControls.MouseMove(0, 10, 10);
  cmdBackward.MouseMove(0, 10, 10);
  EXPECT_EQ(cmdBackward.Picture.value(), PictureId::DiagBtnWF);
}

TEST_F(Panel, KeepsTheHoverFlagThoughAClickTakesThePictureBack) {
  station.Start();
  cmdBackward.MouseMove(0, 10, 10);
  station.Click("cmdBackward");
  EXPECT_EQ(cmdBackward.Picture.value(), PictureId::DefBtn);
  EXPECT_TRUE(bButtonHover);
}

TEST_F(Panel, IsNotRedrawnByTheMouseWithoutAHover) {
  station.Start();
  cmdForward.Picture = PictureId::DiagBtn;  // a redraw would take it back
  imgControls.MouseMove(0, 10, 10);
  EXPECT_EQ(cmdForward.Picture.value(), PictureId::DiagBtn);
}

// The timing toggle.

TEST_F(Panel, SwitchesTimingOnAndOff) {
  station.Start();
  EXPECT_EQ(picTogTimer.Picture.value(), PictureId::ToggleOff);
  EXPECT_FALSE(btnTmrReset.Visible);
  station.Click("picTogTimer");
  EXPECT_EQ(picTogTimer.Picture.value(), PictureId::ToggleOn);
  EXPECT_TRUE(btnTmrReset.Visible);
  EXPECT_EQ(iTimingEnabled, 1);
  EXPECT_TRUE(bTimerArmed);
  station.Click("picTogTimer");
  EXPECT_EQ(picTogTimer.Picture.value(), PictureId::ToggleOff);
  EXPECT_FALSE(btnTmrReset.Visible);
  EXPECT_EQ(iTimingEnabled, 0);
  EXPECT_TRUE(bTimerArmed);
}

TEST_F(Panel, ResetsTheJourneyWithItsButton) {
  station.Start();
  station.Click("picTogTimer");
  lElapsedMs = 900;
  bTimerStarted = true;
  station.Click("btnTmrReset");
  EXPECT_EQ(lElapsedMs, 0);
  EXPECT_FALSE(bTimerStarted);
}

TEST_F(Panel, ResetsTheJourneyFromTheDebugPanelInDebugModeOnly) {
  station.Start();
  station.Click("picTogTimer");
  lElapsedMs = 900;
  cmdTimerReset.Click();
  EXPECT_EQ(lElapsedMs, 900);
  bDebugMode = true;
  cmdTimerReset.Click();
  EXPECT_EQ(lElapsedMs, 0);
}

TEST_F(Panel, KeepsItsTogglesLiveDuringARunAndWhileLatched) {
  station.Start();
  btnEmergency.MouseDown(mouseLeft, 0, 0);
  station.EnterProgram({"WAIT 1000"});
  station.After(100, [&] {
    station.Click("picTogTimer");
    station.Click("picTogImpact");
  });
  station.Click("cmdRunProgram");
  EXPECT_EQ(iTimingEnabled, 1);
  EXPECT_EQ(iAnalogEnabled, 1);
}

}  // namespace
}  // namespace glidetrak
