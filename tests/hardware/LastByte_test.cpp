// The last byte of a process that ends by another road than shut-down.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "station/RigStation.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LastByte : public testing::Test {
 protected:
  /// Full power on that link; what led there is forgotten.
  void Drive(RigLink link) {
    station.Start(link);
    SetPower(15);
    station.Forget();
    rig.aReadHandles.clear();
    rig.aOpenedPaths.clear();
  }

  RigStation station;
  WatchedPlatform& platform = station.platform;
  VirtualRig& rig = station.rig;
};

class OnEitherRoad : public LastByte, public testing::WithParamInterface<void (*)()> {};

TEST_P(OnEitherRoad, IsOneZeroOnThePort) {
  Drive(RigLink::Parallel);
  GetParam()();
  GetParam()();
  EXPECT_THAT(rig.aCalls, ElementsAre("WriteAdapter 888 0"));
}

TEST_P(OnEitherRoad, IsOneZeroOnUsb) {
  Drive(RigLink::Usb);
  GetParam()();
  GetParam()();
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0));
}

TEST_P(OnEitherRoad, TakesNoTime) {
  Drive(RigLink::Parallel);
  const qint64 lStart = platform.lNow;
  GetParam()();
  EXPECT_EQ(platform.lNow, lStart);
}

TEST_P(OnEitherRoad, IsNotOwedWithTheLinkDown) {
  station.Start(RigLink::None);
  platform.RunFor(25);
  station.Forget();
  GetParam()();
  EXPECT_THAT(rig.aCalls, IsEmpty());
}

TEST_P(OnEitherRoad, IsNotOwedBehindTheHardwareSideOfShutDown) {
  Drive(RigLink::Parallel);
  ShutDownHardware();
  station.Forget();
  GetParam()();
  EXPECT_THAT(rig.aCalls, IsEmpty());
}

TEST_P(OnEitherRoad, IsNotOwedByACopyThatGivesUp) {
  for (const RigLink link : {RigLink::Parallel, RigLink::Usb}) {
    Drive(link);
    bRigLetGo = true;
    GetParam()();
    EXPECT_THAT(rig.aCalls, IsEmpty());
    EXPECT_THAT(rig.aReports, IsEmpty());
    bRigLetGo = false;
  }
}

TEST_P(OnEitherRoad, SurvivesALibraryThatIsGone) {
  Drive(RigLink::Parallel);
  rig.bLibraryThere = false;
  EXPECT_NO_THROW(GetParam()());
}

INSTANTIATE_TEST_SUITE_P(Rows, OnEitherRoad, testing::Values(StopRigAtEnd, StopRigInCrash),
                         [](const auto& info) { return info.index == 0 ? "AtEnd" : "InCrash"; });

TEST_F(LastByte, OfAnEndFindsALostDeviceAgain) {
  Drive(RigLink::Usb);
  rig.aDevices[0].mood = HidMood::Silent;
  SetPower(14);  // the time-out closes the device
  rig.aDevices[0].mood = HidMood::Answers;
  station.Forget();
  StopRigAtEnd();
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0));
}

TEST_F(LastByte, OfACrashIsOneWriteToTheOpenDeviceAndNothingElse) {
  Drive(RigLink::Usb);
  const int iLooks = rig.iEnumerations;
  StopRigInCrash();
  ASSERT_EQ(rig.aReports.size(), 1U);
  EXPECT_EQ(rig.aReports[0], QByteArray("\0\4\1", 3) + QByteArray(62, '\0'));
  EXPECT_EQ(rig.iEnumerations, iLooks);
  EXPECT_THAT(rig.aOpenedPaths, IsEmpty());
  EXPECT_THAT(rig.aReadHandles, IsEmpty());
}

TEST_F(LastByte, OfACrashOpensNoDevice) {
  Drive(RigLink::Usb);
  rig.aDevices[0].mood = HidMood::Silent;
  SetPower(14);
  rig.aDevices[0].mood = HidMood::Answers;
  station.Forget();
  rig.aOpenedPaths.clear();
  StopRigInCrash();
  EXPECT_THAT(rig.aReports, IsEmpty());
  EXPECT_THAT(rig.aOpenedPaths, IsEmpty());
}

}  // namespace
}  // namespace glidetrak
