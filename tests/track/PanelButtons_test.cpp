// Mode and direction buttons, hover and the timing toggle: what they do to the panel and to the
// rig's wire.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "hardware/RigStation.h"
#include "station/NamedRow.h"
#include "track/InputDecoding.h"
#include "track/OperatingPanel.h"
#include "track/OutputImage.h"
#include "track/PropertyWatch.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int lYellow = 192 + 192 * 256;
constexpr int lGreyText = lYellow + 192 * 65536;
constexpr int lWhiteText = 0xFFFFFF;

class Panel : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;

  void FullPower() {
    imgLever.MouseMove(mouseLeft, 0, -30000);
    platform.RunFor(25);
    station.Forget();
  }

  void ExpectMode(bool bProgram) {
    EXPECT_EQ(iControlMode, bProgram ? modeProgram : modeManual);
    EXPECT_EQ(pnlProgramBox.Visible.value(), bProgram);
    EXPECT_EQ(cmdProgram.Picture, bProgram ? PictureId::DefBtn : PictureId::DefBtnWF);
    EXPECT_EQ(cmdManual.Picture, bProgram ? PictureId::DefBtnWF : PictureId::DefBtn);
    EXPECT_EQ(cmdProgram.ForeColor, bProgram ? lYellow : lWhiteText);
    EXPECT_EQ(cmdManual.ForeColor, bProgram ? lWhiteText : lYellow);
    EXPECT_EQ(lblControlTitle.ForeColor, bProgram ? lWhiteText : lGreyText);
    EXPECT_EQ(imgControls.Picture,
              bProgram ? PictureId::ControlsProgram : PictureId::ControlsManual);
    EXPECT_EQ(imgLever.MousePointer, bProgram ? ptrNoDrop : ptrCustom);
  }

  void ExpectDirection(bool bForward, int lForwardText, int lBackwardText) {
    EXPECT_EQ(cmdForward.Picture, bForward ? PictureId::DefBtn : PictureId::DefBtnWF);
    EXPECT_EQ(cmdBackward.Picture, bForward ? PictureId::DefBtnWF : PictureId::DefBtn);
    EXPECT_EQ(cmdForward.ForeColor, lForwardText);
    EXPECT_EQ(cmdBackward.ForeColor, lBackwardText);
  }
};

TEST_F(Panel, StartsInManualModeForward) {
  station.Start();
  ExpectMode(false);
  ExpectDirection(true, lYellow, lWhiteText);
}

TEST_F(Panel, StopsTheMotorAtEachChangeOfMode) {
  station.Start();
  FullPower();
  station.Click("cmdProgram");
  ExpectMode(true);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x10));
  EXPECT_EQ(imgLever.Top.value(), 4760);
  station.Click("cmdManual");
  ExpectMode(false);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x10, 0x10));
}

TEST_F(Panel, DoesNothingForTheModeInForce) {
  station.Start();
  FullPower();
  station.Click("cmdManual");
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
  station.Click("cmdProgram");
  station.Forget();
  station.Click("cmdProgram");
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
  ExpectMode(true);
}

TEST_F(Panel, ChangesNoModeDuringARun) {
  station.Start();
  station.EnterProgram({"POWER 5", "WAIT 1000"});
  station.After(100, [&] {
    station.Click("cmdManual");
    station.Click("cmdProgram");
    ExpectMode(true);
    EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x15));
  });
  station.Click("cmdRunProgram");
  ExpectMode(true);
}

TEST_F(Panel, ChangesTheDirectionAtFullPowerStraightOnTheWire) {
  station.Start();
  FullPower();
  station.Click("cmdBackward");
  ExpectDirection(false, lWhiteText, lYellow);
  station.Click("cmdForward");
  ExpectDirection(true, lYellow, lWhiteText);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x0F, 0x1F));
}

TEST_F(Panel, NeitherWritesNorRedrawsForTheDirectionInForce) {
  station.Start();
  QStringList aChanges;
  PropertyWatch watch([&](const QString& sName) { aChanges.append(sName); });
  station.Click("cmdForward");
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
  EXPECT_THAT(aChanges, IsEmpty());
  station.Click("cmdBackward");
  station.Forget();
  aChanges.clear();
  station.Click("cmdBackward");
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
  EXPECT_THAT(aChanges, IsEmpty());
}

TEST_F(Panel, IgnoresTheDirectionButtonsInProgramMode) {
  station.Start();
  station.Click("cmdProgram");
  station.Forget();
  station.Click("cmdBackward");
  ExpectDirection(true, lGreyText, lGreyText);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
}

TEST_F(Panel, ChangesTheDirectionWhileLatched) {
  station.Start();
  btnEmergency.MouseDown(mouseLeft, 0, 0);
  station.Forget();
  station.Click("cmdBackward");
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x00));
  ExpectDirection(false, lWhiteText, lYellow);
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
  QStringList aChanges;
  PropertyWatch watch([&](const QString& sName) { aChanges.append(sName); });
  cmdForward.Picture = PictureId::DiagBtn;  // a redraw would take it back
  aChanges.clear();
  imgControls.MouseMove(0, 10, 10);
  EXPECT_THAT(aChanges, IsEmpty());
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
