// The device class's states: New, Open, Mute, Stale, Closed, and what leads from one to the next.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string_view>

#include "hardware/clsUSBHID.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"

namespace glidetrak {
namespace {

/// The three acts by which a device that is not open is opened.
struct Act : NamedRow {
  void (*act)(clsUSBHID&);
};

const Act aActs[] = {
    {"Connected", [](clsUSBHID& device) { device.bDeviceConnected(); }},
    {"Write", [](clsUSBHID& device) { device.WriteReport("x"); }},
    {"Read", [](clsUSBHID& device) { device.ReadReport(); }},
};

class UsbHidLife : public testing::Test {
 protected:
  UsbHidLife() {
    rig.AttachUsb();
    device.iProductID = 70;
  }

  VirtualHid& Hid() { return rig.aDevices[0]; }

  /// An open device that answers once more: the reply stands ready.
  void OpenWithReply() {
    ASSERT_TRUE(device.WriteReport("x"));
    ASSERT_EQ(rig.aOpenHandles.size(), 2u);
    rig.aOpenedPaths.clear();
    rig.iEnumerations = 0;
  }

  void GoStale() {
    OpenWithReply();
    Hid().mood = HidMood::Vanished;
    ASSERT_FALSE(device.ReadReport().has_value());
    ASSERT_EQ(rig.aOpenHandles.size(), 2u);
    ASSERT_EQ(rig.iEnumerations, 0);
  }

  void GoClosed() {
    OpenWithReply();
    ASSERT_TRUE(device.ReadReport().has_value());
    ASSERT_FALSE(device.ReadReport().has_value());  // nothing more to read
    ASSERT_EQ(rig.aOpenHandles.size(), 0u);
    ASSERT_EQ(rig.iEnumerations, 0);
  }

  WatchedPlatform platform;
  VirtualRig& rig = platform.rig;
  clsUSBHID device;
};

class UsbHidStates : public UsbHidLife, public testing::WithParamInterface<Act> {
 protected:
  void Act() { GetParam().act(device); }
  bool ActIs(std::string_view sName) { return GetParam().sName == sName; }
};

INSTANTIATE_TEST_SUITE_P(Acts, UsbHidStates, testing::ValuesIn(aActs), RowName());

TEST_P(UsbHidStates, NewOpensWithTheFirstAct) {
  Act();
  EXPECT_EQ(rig.iEnumerations, 1);
  EXPECT_EQ(rig.iHandlesOpened, 2);
}

TEST_P(UsbHidStates, NewStaysClosedWithoutADevice) {
  Hid().mood = HidMood::Vanished;
  Act();
  EXPECT_EQ(rig.iEnumerations, 1);
  EXPECT_EQ(rig.iHandlesOpened, 0);
  EXPECT_TRUE(rig.aWriteHandles.empty());
  EXPECT_TRUE(rig.aReadHandles.empty());
}

TEST_P(UsbHidStates, OpenIsOpenedAfreshByTheQuestionAlone) {
  OpenWithReply();
  Act();
  const bool bQuestion = ActIs("Connected");
  EXPECT_EQ(rig.iEnumerations, bQuestion ? 1 : 0);
  EXPECT_EQ(rig.iHandlesOpened, bQuestion ? 4 : 2);
  EXPECT_EQ(rig.aOpenHandles.size(), 2u);
}

TEST_P(UsbHidStates, StaleClosesItsHandlesBeforeItLooksForTheDevice) {
  GoStale();
  size_t iOpen = 99;
  rig.OnEnumerate = [&] { iOpen = rig.aOpenHandles.size(); };
  Act();
  EXPECT_EQ(iOpen, 0u);
  EXPECT_EQ(rig.iEnumerations, 1);
}

TEST_P(UsbHidStates, StaleReopensWhenTheDeviceIsBack) {
  GoStale();
  Hid().mood = ActIs("Read") ? HidMood::Silent : HidMood::Answers;
  Act();
  EXPECT_EQ(rig.iHandlesOpened, 4);
  EXPECT_EQ(rig.aOpenHandles.size(), ActIs("Read") ? 0u : 2u);  // nothing was asked, so no reply
}

TEST_P(UsbHidStates, StaleEndsClosedWhileTheDeviceIsGone) {
  GoStale();
  Act();
  EXPECT_TRUE(rig.aOpenHandles.empty());
  EXPECT_FALSE(device.bDeviceConnected());
}

TEST_P(UsbHidStates, ClosedReopensWithTheNextAct) {
  GoClosed();
  Act();
  EXPECT_EQ(rig.iEnumerations, 1);
  EXPECT_EQ(rig.iHandlesOpened, 4);
}

TEST_P(UsbHidStates, GoneIsLookedForOnceInEachAct) {
  GoStale();
  for (int i = 1; i <= 5; ++i) {
    Act();
    EXPECT_EQ(rig.iEnumerations, i);
  }
}

TEST_F(UsbHidLife, TimedOutReadClosesAndTheNextWriteReopens) {
  GoClosed();
  EXPECT_TRUE(device.WriteReport("x"));
  EXPECT_EQ(rig.aOpenHandles.size(), 2u);
  EXPECT_TRUE(device.ReadReport().has_value());
}

TEST_F(UsbHidLife, FailedWriteLeavesItOpen) {
  OpenWithReply();
  Hid().mood = HidMood::Vanished;
  EXPECT_FALSE(device.WriteReport("x"));
  EXPECT_FALSE(device.WriteReport("x"));
  EXPECT_EQ(rig.iEnumerations, 0);
  EXPECT_EQ(rig.aOpenHandles.size(), 2u);
}

TEST_F(UsbHidLife, RefusedWriteLeavesItOpen) {
  OpenWithReply();
  EXPECT_FALSE(device.WriteReport(QByteArray(65, 'd')));
  EXPECT_FALSE(device.WriteReport({}));
  EXPECT_TRUE(device.WriteReport(QByteArray(64, 'd')));
  EXPECT_EQ(rig.iEnumerations, 0);
}

TEST_F(UsbHidLife, WithoutAReadHandleItWritesAndReadsNothing) {
  int iOpenings = 0;
  rig.MayOpen = [&] { return ++iOpenings != 2; };
  EXPECT_TRUE(device.bDeviceConnected());
  EXPECT_TRUE(device.WriteReport("x"));
  EXPECT_FALSE(device.ReadReport().has_value());
  EXPECT_TRUE(rig.aReadHandles.empty());
  EXPECT_EQ(rig.iEnumerations, 1);
}

TEST_F(UsbHidLife, ReadsTheReportLengthsAfreshWhenItReopens) {
  GoClosed();
  Hid().lengths = {4, 4};
  EXPECT_FALSE(device.WriteReport(QByteArray(4, 'd')));
  EXPECT_TRUE(device.WriteReport(QByteArray(3, 'd')));
  EXPECT_EQ(device.ReadReport()->size(), 3);
}

TEST_F(UsbHidLife, ClosedKeepsTheReportLengthsThatCannotBeLearntAgain) {
  Hid().lengths = {4, 5};
  GoClosed();
  Hid().bTellsLengths = false;
  EXPECT_FALSE(device.WriteReport(QByteArray(5, 'd')));
  EXPECT_TRUE(device.WriteReport(QByteArray(4, 'd')));
  EXPECT_EQ(device.ReadReport()->size(), 3);
  EXPECT_EQ(rig.iEnumerations, 1);
}

TEST_F(UsbHidLife, StaleKeepsTheReportLengthsThatCannotBeLearntAgain) {
  GoStale();
  Hid().mood = HidMood::Answers;
  Hid().bTellsLengths = false;
  EXPECT_TRUE(device.WriteReport(QByteArray(64, 'd')));
  EXPECT_EQ(device.ReadReport()->size(), 64);
}

class UsbHidMute : public UsbHidLife {
 protected:
  UsbHidMute() {
    Hid().bTellsLengths = false;
    EXPECT_TRUE(device.bDeviceConnected());
  }
};

TEST_F(UsbHidMute, ExchangesNothing) {
  EXPECT_FALSE(device.WriteReport("x"));
  EXPECT_FALSE(device.ReadReport().has_value());
  EXPECT_TRUE(rig.aWriteHandles.empty());
  EXPECT_TRUE(rig.aReadHandles.empty());
  EXPECT_EQ(rig.aOpenHandles.size(), 2u);
}

TEST_F(UsbHidMute, LearnsTheLengthsWithTheNextReport) {
  Hid().bTellsLengths = true;
  EXPECT_TRUE(device.WriteReport(QByteArray(64, 'd')));
  EXPECT_EQ(device.ReadReport()->size(), 64);
  EXPECT_EQ(rig.aOpenHandles.size(), 2u);
}

TEST_F(UsbHidMute, FindsTheDeviceThatCameBackInAnotherPlace) {
  VirtualHid again;
  again.path = "again";
  Hid().mood = HidMood::Vanished;
  rig.aDevices.push_back(again);
  EXPECT_TRUE(device.WriteReport("x"));
  EXPECT_TRUE(device.ReadReport().has_value());
}

TEST_F(UsbHidLife, IsNotMuteWhenTheDeviceTellsThatItHasNoReports) {
  Hid().lengths = {0, 0};
  EXPECT_FALSE(device.WriteReport("x"));
  EXPECT_FALSE(device.ReadReport().has_value());
  EXPECT_FALSE(device.WriteReport("x"));
  EXPECT_EQ(rig.iEnumerations, 1);
}

TEST_F(UsbHidLife, ReleaseClosesAnOpenDevice) {
  {
    clsUSBHID other;
    other.iProductID = 70;
    ASSERT_TRUE(other.bDeviceConnected());
    ASSERT_EQ(rig.aOpenHandles.size(), 2u);
  }
  EXPECT_TRUE(rig.aOpenHandles.empty());
}

TEST_F(UsbHidLife, ReleaseClosesAStaleDevice) {
  {
    clsUSBHID other;
    other.iProductID = 70;
    ASSERT_TRUE(other.bDeviceConnected());
    Hid().mood = HidMood::Vanished;
    ASSERT_FALSE(other.ReadReport().has_value());
    ASSERT_EQ(rig.aOpenHandles.size(), 2u);
  }
  EXPECT_TRUE(rig.aOpenHandles.empty());
}

TEST_F(UsbHidLife, LeaksNoHandleOverTwoHundredPlugCycles) {
  for (int i = 0; i < 200; ++i) {
    Hid().mood = HidMood::Answers;
    ASSERT_TRUE(device.WriteReport("x"));
    ASSERT_TRUE(device.ReadReport().has_value());
    ASSERT_EQ(rig.aOpenHandles.size(), 2u);
    Hid().mood = HidMood::Vanished;
    ASSERT_FALSE(device.WriteReport("x"));
    ASSERT_FALSE(device.ReadReport().has_value());  // stale
    ASSERT_FALSE(device.ReadReport().has_value());  // closed, and looked for in vain
    ASSERT_EQ(rig.aOpenHandles.size(), 0u);
  }
  EXPECT_EQ(rig.iHandlesOpened, 400);
}

TEST_F(UsbHidLife, LeaksNoHandleOverTwoHundredTimeOuts) {
  for (int i = 0; i < 200; ++i) {
    Hid().mood = HidMood::Silent;
    ASSERT_TRUE(device.WriteReport("x"));
    ASSERT_FALSE(device.ReadReport().has_value());
    ASSERT_EQ(rig.aOpenHandles.size(), 0u);
  }
  EXPECT_EQ(rig.iHandlesOpened, 400);
}

}  // namespace
}  // namespace glidetrak
