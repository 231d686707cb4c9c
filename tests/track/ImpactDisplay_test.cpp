// The impact bar.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "station/RigStation.h"
#include "track/InputDecoding.h"
#include "track/TogglesAndTimer.h"

namespace glidetrak {
namespace {

PictureId Bar(int iValue) {
  return static_cast<PictureId>(static_cast<int>(PictureId::Bar0) + iValue);
}

class Impact : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;
  VirtualRig& rig = station.rig;

  /// The link up and the analog reading on, without a tick.
  void Begin(RigLink link = RigLink::Parallel) {
    station.Attach(link);
    ASSERT_TRUE(CheckHardware());
    station.Forget();
    iAnalogEnabled = 1;
  }

  void ExpectShown(int iValue) {
    EXPECT_EQ(imgBarGraph.Picture.value(), Bar(iValue)) << iValue;
    EXPECT_EQ(lblImpact.Caption.value(), QString("%1").arg(iValue, 2, 10, QChar(u'0')));
  }
};

TEST_F(Impact, ShowsEachValueWithItsPictureAndTwoDigits) {
  Begin();
  for (int i = 0; i <= 15; ++i) {
    rig.lAnalog = i;
    UpdateImpactDisplay();
    ExpectShown(i);
  }
}

TEST_F(Impact, ShowsTheUsbValueToo) {
  Begin(RigLink::Usb);
  for (int i = 0; i <= 15; ++i) {
    rig.lAnalog = i;
    UpdateImpactDisplay();
    ExpectShown(i);
  }
}

TEST_F(Impact, TakesTheLowFourBits) {
  Begin();
  const std::pair<qint32, int> aRows[] = {{-1, 15}, {16, 0}, {0x7A, 10}, {0x1F, 15}};
  for (const auto& [lReading, iValue] : aRows) {
    rig.lAnalog = lReading;
    UpdateImpactDisplay();
    ExpectShown(iValue);
  }
}

TEST_F(Impact, HoldsNoPeak) {
  Begin();
  rig.lAnalog = 15;
  UpdateImpactDisplay();
  rig.lAnalog = 2;
  UpdateImpactDisplay();
  ExpectShown(2);
}

TEST_F(Impact, PutsItsBitsOverTheFirstFourSensors) {
  Begin();
  lInputImage = 0xA2;
  rig.lAnalog = 5;
  UpdateImpactDisplay();
  EXPECT_EQ(lInputImage, 0xA7);
}

TEST_F(Impact, PutsAllFourBitsOnForMinusOne) {
  Begin();
  lInputImage = 0x80;
  rig.lAnalog = -1;
  UpdateImpactDisplay();
  EXPECT_EQ(lInputImage, 0x8F);
}

TEST_F(Impact, TakesItsBitsBackWithTheNextTicksRead) {
  station.Start();
  station.Click("picTogImpact");
  rig.lAnalog = 5;
  rig.lInput = 0x20;
  platform.RunFor(25);
  EXPECT_EQ(lInputImage, 0xA5);
  platform.RunFor(25);
  EXPECT_EQ(lInputImage, 0xA0);
}

TEST_F(Impact, IsReadOnceAnUpdate) {
  Begin();
  rig.lAnalog = -1;
  UpdateImpactDisplay();
  EXPECT_THAT(rig.aCalls, testing::ElementsAre("ReadAtoD 888 50000"));
}

TEST_F(Impact, IsTakenFromTheInputImageWhileTheLinkIsDown) {
  Begin();
  bLinkUp = false;
  lInputImage = 0xAB;
  rig.lAnalog = 4;
  UpdateImpactDisplay();
  ExpectShown(0x0B);
  EXPECT_EQ(lInputImage, 0xAB);
  EXPECT_THAT(rig.aCalls, testing::IsEmpty());
}

TEST_F(Impact, IsNotReadBeforeItIsSwitchedOn) {
  for (const RigLink link : {RigLink::Parallel, RigLink::Usb}) {
    rig.Detach();
    station.Start(link);
    rig.lAnalog = 9;
    platform.RunFor(2000);
    EXPECT_EQ(station.Calls("ReadAtoD"), 0);
    EXPECT_EQ(lblImpact.Caption.value(), "00");
    EXPECT_EQ(imgBarGraph.Picture.value(), Bar(0));
  }
}

TEST_F(Impact, OnUsbTakesOneExchangeMoreEachHalfSecond) {
  station.Start(RigLink::Usb);
  platform.RunFor(1000);
  const size_t iWithout = rig.aReports.size();
  station.Click("picTogImpact");
  platform.RunFor(1000);
  EXPECT_EQ(rig.aReports.size(), 2 * iWithout + 2);
}

TEST_F(Impact, StaysOnWhenTheToggleIsSwitchedOff) {
  station.Start();
  EXPECT_EQ(picTogImpact.Picture.value(), PictureId::ToggleOff);
  station.Click("picTogImpact");
  EXPECT_EQ(picTogImpact.Picture.value(), PictureId::ToggleOn);
  EXPECT_EQ(iAnalogEnabled, 1);
  station.Click("picTogImpact");
  EXPECT_EQ(picTogImpact.Picture.value(), PictureId::ToggleOff);
  EXPECT_FALSE(bImpactToggle);
  EXPECT_EQ(iAnalogEnabled, 1);
  rig.lAnalog = 12;
  platform.RunFor(550);
  ExpectShown(12);
}

TEST_F(Impact, KeepsItsDisplayWhenTheReadFails) {
  Begin();
  rig.lAnalog = 9;
  UpdateImpactDisplay();
  lInputImage = 0x80;
  rig.bLibraryThere = false;
  UpdateImpactDisplay();
  ExpectShown(9);
  EXPECT_EQ(lInputImage, 0x80);
}

TEST_F(Impact, FillsTheValueOfTheDebugPanelInDebugModeOnly) {
  Begin();
  rig.lAnalog = 7;
  lblAnalogVal.Caption = "before";
  UpdateImpactDisplay();
  EXPECT_EQ(lblAnalogVal.Caption.value(), "before");
  bDebugMode = true;
  UpdateImpactDisplay();
  EXPECT_EQ(lblAnalogVal.Caption.value(), "7");
  iAnalogEnabled = 0;
  UpdateImpactDisplay();
  EXPECT_EQ(lblAnalogVal.Caption.value(), "0");
  ExpectShown(7);
}

TEST_F(Impact, LeavesTheValueOfTheDebugPanelAloneWhenOffAndNotInDebugMode) {
  lblAnalogVal.Caption = "before";
  UpdateImpactDisplay();
  EXPECT_EQ(lblAnalogVal.Caption.value(), "before");
}

}  // namespace
}  // namespace glidetrak
