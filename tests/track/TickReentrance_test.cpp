// Ticks inside a tick, and ticks whose steps fail.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "station/RigStation.h"
#include "track/InputDecoding.h"
#include "track/OutputImage.h"
#include "track/SystemTick.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;

class HeldTick : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;
  VirtualRig& rig = station.rig;

  /// The link's loss, whose box stays open that long.
  void LoseLink(int iBoxMilliseconds) {
    platform.iBoxMilliseconds = iBoxMilliseconds;
    rig.Detach();
    platform.RunFor(25);
  }
};

TEST_F(HeldTick, ReadsTheClockOnceAndReturns) {
  station.Start();
  int iCallsAtOpening = 0, iClockAtOpening = 0;
  platform.OnBox = [&](const VirtualBox&) {
    iCallsAtOpening = station.Calls("ReadAdapter");
    platform.iClockReads = 0;
    station.After(1000, [&] {
      EXPECT_EQ(station.Calls("ReadAdapter"), iCallsAtOpening);
      iClockAtOpening = platform.iClockReads;
    });
  };
  LoseLink(1000);
  EXPECT_EQ(iClockAtOpening, 40);
  EXPECT_EQ(platform.aBoxes.size(), 1u);
}

TEST_F(HeldTick, IsFreeWhenTheBoxHasBeenClosed) {
  station.Start();
  LoseLink(1000);
  station.Forget();
  platform.RunFor(25);
  EXPECT_EQ(station.Calls("ReadAdapter"), 9);
}

TEST_F(HeldTick, LetsTheRetryHealTheLinkUnderTheBox) {
  station.Start();
  QString sUnderTheBox;
  station.After(2000, [&] { station.Attach(RigLink::Parallel); });
  station.After(6000, [&] {
    EXPECT_EQ(platform.iOpenBoxes, 1);
    sUnderTheBox = lblHWState.Caption;
  });
  LoseLink(8000);
  EXPECT_EQ(sUnderTheBox, sDetected);
  EXPECT_TRUE(bLinkUp);
  EXPECT_FALSE(tmrReconnect.Enabled);
  EXPECT_TRUE(bLinkMessageShown);
}

TEST_F(HeldTick, GoesOnWithItsSlowerWorkWhenTheLinkWasHealedUnderTheBox) {
  station.Start();
  station.After(2000, [&] { station.Attach(RigLink::Parallel); });
  LoseLink(8000);
  EXPECT_EQ(lblTimer.Caption.value(), "--.--");  // its first: the stamp was still 0
}

TEST_F(HeldTick, CarriesTheLeverThatWasMovedUnderTheBoxBehindIt) {
  station.Start();
  station.After(2000, [&] { station.Attach(RigLink::Parallel); });
  station.After(7000, [&] {
    imgLever.MouseMove(mouseLeft, 0, -30000);
    EXPECT_EQ(iPower, 0);
  });
  LoseLink(8000);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x00, 0x1F));
}

TEST_F(HeldTick, LetsTheEmergencyStopThroughUnderTheBox) {
  station.Start();
  imgLever.MouseMove(mouseLeft, 0, -30000);
  platform.RunFor(25);
  station.After(500, [&] { btnEmergency.MouseDown(mouseLeft, 0, 0); });
  LoseLink(1000);
  EXPECT_EQ(iPower, 0);
  EXPECT_EQ(iLeverLevel, 0);
}

TEST_F(HeldTick, LetsAProgramStartAndEndUnderTheBox) {
  station.Start();
  station.EnterProgram({"LET A=1"});
  bool bRan = false;
  station.After(500, [&] {
    station.Click("cmdRunProgram");
    bRan = true;
  });
  LoseLink(3000);
  EXPECT_TRUE(bRan);
  EXPECT_FALSE(bProgramRunning);
}

/// Everything that a tick can do, so that each of its clock reads takes place.
class FailingTick : public testing::TestWithParam<int> {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;

  void Begin() {
    station.Start();
    tmrSystem.Enabled = false;
    station.Click("picTogTimer");
    station.Click("picTogImpact");
    station.rig.lInput = 0x10;
    cmdProgram.Picture = PictureId::DiagBtnWF;
    platform.lNow += 25;
  }

  void ExpectNextTickWorks() {
    station.Forget();
    platform.lNow += 25;
    tmrSystem_Timer();
    EXPECT_GE(station.Calls("ReadAdapter"), 1);
  }
};

TEST_P(FailingTick, GoesOnBehindAClockReadThatFails) {
  Begin();
  platform.iFailingClockRead = platform.iClockReads + GetParam();
  tmrSystem_Timer();
  EXPECT_GE(platform.iClockReads, platform.iFailingClockRead);
  EXPECT_EQ(station.Calls("ReadAdapter"), 1);
  EXPECT_EQ(station.Calls("ReadAtoD"), 1);
  EXPECT_EQ(lblTimer.Caption.value(), "0.00");
  EXPECT_EQ(cmdProgram.Picture.value(), PictureId::DefBtnWF);
  EXPECT_EQ(tmrSystem.Interval.value(), 5);
  ExpectNextTickWorks();
}

// The tick's own, the journey's start, the stamps of the 50 ms and the 500 ms work.
INSTANTIATE_TEST_SUITE_P(ClockRead, FailingTick, testing::Range(1, 5));

class FailingLibrary : public FailingTick {};

TEST_F(FailingLibrary, DoesNotKeepTheTickFromItsLaterSteps) {
  for (const QByteArray operation : {"WriteAdapter", "ReadAtoD"}) {
    station.rig.aMissingOperations = {};
    Begin();
    station.rig.aMissingOperations = {operation};
    iLeverLevel = 15;
    tmrSystem.Interval = 25;
    tmrSystem_Timer();
    EXPECT_EQ(iPower, 15);
    EXPECT_EQ(lOutputImage & 15, 15);
    EXPECT_TRUE(bMotorOn);
    EXPECT_EQ(cmdProgram.Picture.value(), PictureId::DefBtnWF) << operation.constData();
    EXPECT_EQ(tmrSystem.Interval.value(), 5);
    ExpectNextTickWorks();
    station.Click("picTogTimer");
    station.Click("picTogImpact");
  }
}

TEST_F(FailingLibrary, IsWrittenToOnceForARequestThatItMissed) {
  Begin();
  station.rig.aMissingOperations = {"WriteAdapter"};
  int iTried = 0;
  platform.OnCall = [&](const QByteArray& operation) { iTried += operation == "WriteAdapter"; };
  iLeverLevel = 15;
  tmrSystem_Timer();
  ExpectNextTickWorks();
  EXPECT_EQ(iTried, 1);
}

}  // namespace
}  // namespace glidetrak
