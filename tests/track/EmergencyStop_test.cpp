// The emergency stop, its flash and its reset.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/RigStation.h"
#include "track/EmergencyStop.h"
#include "track/OutputImage.h"
#include "track/PropertyWatch.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Emergency : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;

  void FullPower() {
    imgLever.MouseMove(mouseLeft, 0, -30000);
    platform.RunFor(25);
    ASSERT_EQ(iPower, 15);
    station.Forget();
  }

  void Press(int iButton = mouseLeft) { btnEmergency.MouseDown(iButton, 100, 100); }
};

TEST_F(Emergency, IsIdleAtStart) {
  station.Start();
  EXPECT_EQ(btnEmergency.Picture.value(), PictureId::EmergencyIdle);
  EXPECT_FALSE(bEmergencyStop);
  EXPECT_FALSE(tmrEmergencyFlash.Enabled);
}

TEST_F(Emergency, AtFullPowerDropsTheLeverAtOnce) {
  station.Start();
  FullPower();
  Press();
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x10));
  EXPECT_EQ(imgLever.Top.value(), 4760);
  EXPECT_EQ(iLeverLevel, 0);
  EXPECT_EQ(iPower, 0);
  EXPECT_EQ(btnEmergency.Picture.value(), PictureId::EmergencyPressed);
  EXPECT_TRUE(tmrEmergencyFlash.Enabled);
}

TEST_F(Emergency, LocksTheLeverUntilTheReset) {
  station.Start();
  FullPower();
  Press();
  station.Forget();
  imgLever.MouseMove(mouseLeft, 0, -30000);
  platform.RunFor(1000);
  EXPECT_EQ(imgLever.Top.value(), 4760);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
  station.Click("btnRstStop");
  platform.RunFor(1000);
  EXPECT_EQ(imgLever.Top.value(), 4760);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
  imgLever.MouseMove(mouseLeft, 0, -30000);
  platform.RunFor(25);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x1F));
}

TEST_F(Emergency, WritesZeroEachTimeItIsPressed) {
  station.Start();
  Press();
  Press();
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x10, 0x10));
}

TEST_F(Emergency, ActsOnThePressOfAnyButton) {
  station.Start();
  for (const int iButton : {int{mouseLeft}, int{mouseRight}, int{mouseMiddle}}) {
    station.Click("btnRstStop");
    Press(iButton);
    EXPECT_TRUE(bEmergencyStop) << iButton;
  }
}

TEST_F(Emergency, FlashesEachHalfSecond) {
  station.Start();
  Press();
  const PictureId aPictures[] = {PictureId::EmergencyPressed, PictureId::EmergencyFlash,
                                 PictureId::EmergencyPressed, PictureId::EmergencyFlash};
  for (const PictureId picture : aPictures) {
    platform.RunFor(499);
    const PictureId before = btnEmergency.Picture;
    EXPECT_NE(before, PictureId::EmergencyIdle);
    platform.RunFor(1);
    EXPECT_EQ(btnEmergency.Picture.value(), picture);
  }
}

TEST_F(Emergency, KeepsItsFlashPhaseFromOneStopToTheNext) {
  station.Start();
  Press();
  platform.RunFor(500);  // the phase is true now
  station.Click("btnRstStop");
  Press();
  platform.RunFor(500);
  EXPECT_EQ(btnEmergency.Picture.value(), PictureId::EmergencyFlash);
}

TEST_F(Emergency, DoesNotRestartItsFlashWhenPressedAgain) {
  station.Start();
  Press();
  platform.RunFor(1300);  // flash, then pressed at 1500
  EXPECT_EQ(btnEmergency.Picture.value(), PictureId::EmergencyFlash);
  Press();
  EXPECT_EQ(btnEmergency.Picture.value(), PictureId::EmergencyPressed);
  platform.RunFor(200);
  EXPECT_EQ(btnEmergency.Picture.value(), PictureId::EmergencyPressed);
  platform.RunFor(500);
  EXPECT_EQ(btnEmergency.Picture.value(), PictureId::EmergencyFlash);
}

TEST_F(Emergency, IsResetToIdle) {
  station.Start();
  Press();
  platform.RunFor(700);
  station.Click("btnRstStop");
  EXPECT_EQ(btnEmergency.Picture.value(), PictureId::EmergencyIdle);
  EXPECT_FALSE(bEmergencyStop);
  EXPECT_EQ(imgLever.MousePointer.value(), ptrCustom);
  platform.RunFor(2000);
  EXPECT_EQ(btnEmergency.Picture.value(), PictureId::EmergencyIdle);
}

TEST_F(Emergency, ResetWithoutAStopHasNoEffect) {
  station.Start();
  FullPower();
  platform.RunFor(100);
  QStringList aChanges;
  PropertyWatch watch([&](const QString& sName) { aChanges.append(sName); });
  station.Click("btnRstStop");
  EXPECT_THAT(aChanges, IsEmpty());
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
}

TEST_F(Emergency, StopsARunningProgramAtOnce) {
  station.Start();
  station.EnterProgram({"POWER 9", "WAIT 1000", "POWER 12"});
  bool bLockedBehindIt = false;
  station.After(300, [&] {
    Press();
    EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x19, 0x10));
    EXPECT_FALSE(bProgramRunning);
    bLockedBehindIt = !txtProgram.Enabled && !cmdRunProgram.Enabled;
  });
  station.Click("cmdRunProgram");
  EXPECT_TRUE(bLockedBehindIt);
  EXPECT_TRUE(txtProgram.Enabled);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x19, 0x10, 0x10));
  EXPECT_TRUE(bEmergencyStop);
}

TEST_F(Emergency, LetsAProgramStartAndItsPowerReachTheRig) {
  station.Start();
  Press();
  station.Run({"POWER 9", "WAIT 100"});
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x19, 0x10));
  EXPECT_TRUE(bEmergencyStop);
}

TEST_F(Emergency, InProgramModeShowsTheNoDropPointerAcrossTheReset) {
  station.Start();
  station.Click("cmdProgram");
  Press();
  EXPECT_EQ(imgLever.MousePointer.value(), ptrNoDrop);
  station.Click("btnRstStop");
  EXPECT_EQ(imgLever.MousePointer.value(), ptrNoDrop);
}

TEST_F(Emergency, WithoutALinkWritesNothingAndLatches) {
  station.Start(RigLink::None);
  platform.RunFor(25);
  station.Forget();
  Press();
  EXPECT_TRUE(bEmergencyStop);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
}

}  // namespace
}  // namespace glidetrak
