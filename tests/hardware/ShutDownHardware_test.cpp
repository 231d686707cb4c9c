// How the rig is let go.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "station/RigStation.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ShutDown : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;
  VirtualRig& rig = station.rig;
};

TEST_F(ShutDown, OnThePortWritesZeroStrobesAndCloses) {
  station.Start();
  SetPower(15);
  station.Forget();
  ShutDownHardware();
  EXPECT_THAT(rig.aCalls, ElementsAre("WriteAdapter 888 0", "SetStrobe 888", "CloseLPT 101"));
  EXPECT_EQ(lOutputImage, 0x1F);
}

TEST_F(ShutDown, OnUsbWritesZeroAndCloses) {
  station.Start(RigLink::Usb);
  SetPower(15);
  station.Forget();
  ShutDownHardware();
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0));
  EXPECT_EQ(rig.aReports.size(), 1u);
  EXPECT_TRUE(rig.aOpenHandles.empty());
  EXPECT_THAT(rig.aCalls, IsEmpty());
}

TEST_F(ShutDown, WithTheLinkDownTouchesNoHardware) {
  station.Start(RigLink::None);
  platform.RunFor(25);
  station.Forget();
  const int iLooks = rig.iEnumerations;
  ShutDownHardware();
  EXPECT_THAT(rig.aCalls, IsEmpty());
  EXPECT_THAT(rig.aReports, IsEmpty());
  EXPECT_EQ(rig.iEnumerations, iLooks);
}

TEST_F(ShutDown, WaitsTwoHundredMillisecondsWithTheTickSuspended) {
  station.Start();
  int iPumps = 0, iEnabled = 0, iMarked = 0;
  platform.OnPump = [&] {
    ++iPumps;
    if (tmrSystem.Enabled) ++iEnabled;
    if (bShuttingDown) ++iMarked;
  };
  const qint64 lStart = platform.lNow;
  ShutDownHardware();
  EXPECT_EQ(platform.lNow - lStart, 200);
  EXPECT_EQ(iPumps, 200);
  EXPECT_EQ(iEnabled, 0);
  EXPECT_EQ(iMarked, 200);
}

TEST_F(ShutDown, IsMarkedOnlyWhenTheRigHasBeenLetGo) {
  station.Start();
  int iMarked = 0;
  platform.OnCall = [&](const QByteArray&) { iMarked += bShuttingDown || tmrSystem.Enabled; };
  ShutDownHardware();
  EXPECT_EQ(iMarked, 0);
  EXPECT_TRUE(bShuttingDown);
}

TEST_F(ShutDown, LeavesTheTickEnabledAndInert) {
  station.Start();
  ShutDownHardware();
  station.Forget();
  lInputImage = 77;
  EXPECT_TRUE(tmrSystem.Enabled);
  platform.RunFor(1000);
  EXPECT_EQ(lInputImage, 77);
  EXPECT_THAT(rig.aCalls, IsEmpty());
}

TEST_F(ShutDown, PassesOverEachFailingStep) {
  for (const QByteArray operation : {"WriteAdapter", "SetStrobe", "CloseLPT"}) {
    bShuttingDown = false;
    bRigLetGo = false;
    rig.aMissingOperations.clear();
    station.Start();
    rig.aMissingOperations = {operation};
    ShutDownHardware();
    EXPECT_EQ(rig.aCalls.size(), 2u) << operation.constData();
    EXPECT_TRUE(bShuttingDown);
  }
}

TEST_F(ShutDown, OnADeadUsbDeviceTakesOneSecondMore) {
  station.Start(RigLink::Usb);
  rig.aDevices[0].mood = HidMood::Silent;
  const qint64 lStart = platform.lNow;
  ShutDownHardware();
  EXPECT_EQ(platform.lNow - lStart, 1200);
  EXPECT_TRUE(rig.aOpenHandles.empty());
}

TEST_F(ShutDown, LetsNoTickThroughAtTheBusyIntervalEither) {
  station.Start();
  tmrSystem.Interval = 5;
  station.After(100, [] { lInputImage = 48; });
  ShutDownHardware();
  EXPECT_EQ(lInputImage, 48);  // no tick has read the rig over it
}

}  // namespace
}  // namespace glidetrak
