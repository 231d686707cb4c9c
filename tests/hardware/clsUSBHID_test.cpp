// Which device the class takes, and what a report looks like on the wire.

#include "hardware/clsUSBHID.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "station/NamedRow.h"
#include "station/RigStation.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;

VirtualHid Hid(const QByteArray& path, HidAttributes attributes = {3326, 67, 0x0100}) {
  VirtualHid device;
  device.path = path;
  device.attributes = attributes;
  return device;
}

class UsbHid : public testing::Test {
 protected:
  WatchedPlatform platform;
  VirtualRig& rig = platform.rig;

  void AttachWithLengths(quint16 iInput, quint16 iOutput) {
    rig.aDevices = {Hid("first")};
    rig.aDevices[0].lengths = {iInput, iOutput};
  }
};

TEST_F(UsbHid, HasItsDefaultsWhenNew) {
  const clsUSBHID device;
  EXPECT_EQ(device.iVendorID, 3326);
  EXPECT_EQ(device.iProductID, 67);
  EXPECT_EQ(device.iVersionNumber, -1);
}

TEST_F(UsbHid, OpensNothingWhenNew) {
  rig.aDevices = {Hid("first")};
  const clsUSBHID device;
  EXPECT_EQ(rig.iEnumerations, 0);
  EXPECT_EQ(rig.iHandlesOpened, 0);
}

struct AcceptRow : NamedRow {
  HidAttributes wanted;
  HidAttributes present;
  bool bAccepted;
};

class UsbHidAcceptance : public UsbHid, public testing::WithParamInterface<AcceptRow> {};

TEST_P(UsbHidAcceptance, GoesByVendorProductAndVersion) {
  const AcceptRow& row = GetParam();
  rig.aDevices = {Hid("first", row.present)};
  clsUSBHID device;
  device.iVendorID = row.wanted.iVendorID;
  device.iProductID = row.wanted.iProductID;
  device.iVersionNumber = row.wanted.iVersionNumber;
  EXPECT_EQ(device.bDeviceConnected(), row.bAccepted);
  EXPECT_EQ(rig.aOpenHandles.size(), row.bAccepted ? 2u : 0u);
  EXPECT_EQ(device.iVersionNumber,
            row.bAccepted ? row.present.iVersionNumber : row.wanted.iVersionNumber);
}

constexpr qint16 iNegativeID = static_cast<qint16>(0xFEDC);

INSTANTIATE_TEST_SUITE_P(
    Rows, UsbHidAcceptance,
    testing::Values(AcceptRow{"AnyVersion", {3326, 70, -1}, {3326, 70, 0x0123}, true},
                    AcceptRow{"SameVersion", {3326, 70, 0x0100}, {3326, 70, 0x0100}, true},
                    AcceptRow{"OtherVersion", {3326, 70, 0x0100}, {3326, 70, 0x0200}, false},
                    AcceptRow{"VersionZero", {3326, 70, 0}, {3326, 70, 0}, true},
                    AcceptRow{"VersionZeroIsNotAny", {3326, 70, 0}, {3326, 70, 1}, false},
                    AcceptRow{"OtherVendor", {3326, 70, -1}, {3327, 70, 0x0100}, false},
                    AcceptRow{"OtherProduct", {3326, 70, -1}, {3326, 67, 0x0100}, false},
                    AcceptRow{"IdsSwapped", {3326, 70, -1}, {70, 3326, 0x0100}, false},
                    AcceptRow{"IdsAbove32767",
                              {iNegativeID, iNegativeID, -1},
                              {iNegativeID, iNegativeID, iNegativeID},
                              true}),
    RowName());

TEST_F(UsbHid, TakesTheFirstDeviceThatMatches) {
  rig.aDevices = {Hid("other", {1, 2, 3}), Hid("first"), Hid("second")};
  clsUSBHID device;
  EXPECT_TRUE(device.bDeviceConnected());
  EXPECT_THAT(rig.aOpenedPaths, ElementsAre("first", "first"));
}

TEST_F(UsbHid, OpensOnlyWhatIsListedAsTheWantedDevice) {
  rig.aDevices = {Hid("vendor", {3327, 67, 0x0100}), Hid("product", {3326, 70, 0x0100}),
                  Hid("version", {3326, 67, 0x0200}), Hid("first")};
  clsUSBHID device;
  device.iVersionNumber = 0x0100;
  EXPECT_TRUE(device.bDeviceConnected());
  EXPECT_THAT(rig.aOpenedPaths, ElementsAre("version", "first", "first"));
}

TEST_F(UsbHid, SkipsADeviceThatIsAnotherOnceItIsOpen) {
  rig.aDevices = {Hid("changing"), Hid("second")};
  rig.OnOpen = [&](const QByteArray& path) {
    if (path == "changing") rig.aDevices[0].attributes.iProductID = 1;
  };
  clsUSBHID device;
  EXPECT_TRUE(device.bDeviceConnected());
  EXPECT_THAT(rig.aOpenedPaths, ElementsAre("changing", "second", "second"));
  EXPECT_EQ(rig.aOpenHandles.size(), 2u);
}

TEST_F(UsbHid, TakesADeviceOnceThatIsListedTwice) {
  rig.aDevices = {Hid("first"), Hid("first")};
  clsUSBHID device;
  EXPECT_TRUE(device.bDeviceConnected());
  EXPECT_THAT(rig.aOpenedPaths, ElementsAre("first", "first"));
  EXPECT_EQ(rig.aOpenHandles.size(), 2u);
}

TEST_F(UsbHid, ClosesTheHandleOfADeviceItSkips) {
  rig.aDevices = {Hid("old", {3326, 67, 0x0200}), Hid("first", {3326, 67, 0x0100})};
  size_t iOpenAtSecond = 99;
  rig.OnOpen = [&](const QByteArray& path) {
    if (path == "first" && iOpenAtSecond == 99) iOpenAtSecond = rig.aOpenHandles.size();
  };
  clsUSBHID device;
  device.iVersionNumber = 0x0100;
  EXPECT_TRUE(device.bDeviceConnected());
  EXPECT_EQ(iOpenAtSecond, 0u);
  EXPECT_EQ(rig.iHandlesOpened, 3);
  EXPECT_EQ(rig.aOpenHandles.size(), 2u);
}

TEST_F(UsbHid, SkipsADeviceThatIsLocked) {
  rig.aDevices = {Hid("locked"), Hid("second")};
  rig.aDevices[0].mood = HidMood::Locked;
  clsUSBHID device;
  EXPECT_TRUE(device.bDeviceConnected());
  EXPECT_THAT(rig.aOpenedPaths, ElementsAre("locked", "second", "second"));
}

TEST_F(UsbHid, IsNotConnectedWhenTheOnlyDeviceIsLocked) {
  rig.aDevices = {Hid("locked")};
  rig.aDevices[0].mood = HidMood::Locked;
  clsUSBHID device;
  EXPECT_FALSE(device.bDeviceConnected());
  EXPECT_FALSE(device.WriteReport("x"));
  EXPECT_FALSE(device.ReadReport().has_value());
  EXPECT_TRUE(rig.aOpenHandles.empty());
}

TEST_F(UsbHid, SkipsADeviceThatGoesBetweenListingAndOpening) {
  rig.aDevices = {Hid("going"), Hid("second")};
  rig.OnOpen = [&](const QByteArray& path) {
    if (path == "going") rig.aDevices[0].mood = HidMood::Vanished;
  };
  clsUSBHID device;
  EXPECT_TRUE(device.bDeviceConnected());
  EXPECT_THAT(rig.aOpenedPaths, ElementsAre("going", "second", "second"));
}

TEST_F(UsbHid, HoldsOnToTheVersionThatItAcceptedFirst) {
  rig.aDevices = {Hid("first", {3326, 67, 0x0100})};
  clsUSBHID device;
  EXPECT_TRUE(device.bDeviceConnected());
  rig.aDevices = {Hid("other", {3326, 67, 0x0200})};
  EXPECT_FALSE(device.bDeviceConnected());
  rig.aDevices = {Hid("again", {3326, 67, 0x0100})};
  EXPECT_TRUE(device.bDeviceConnected());
}

struct LengthRow {
  quint16 iOutput;  ///< the declared length, the report id counted
  int iData;
  bool bSent;

  friend void PrintTo(const LengthRow& row, std::ostream* pStream) {
    *pStream << row.iData << " bytes in " << row.iOutput;
  }
};

class UsbHidWriteLength : public UsbHid, public testing::WithParamInterface<LengthRow> {};

TEST_P(UsbHidWriteLength, SendsUpToTheDeclaredLengthLessOne) {
  const LengthRow& row = GetParam();
  AttachWithLengths(65, row.iOutput);
  clsUSBHID device;
  EXPECT_EQ(device.WriteReport(QByteArray(row.iData, 'd')), row.bSent);
  EXPECT_EQ(rig.aReports.size(), row.bSent ? 1u : 0u);
}

INSTANTIATE_TEST_SUITE_P(Rows, UsbHidWriteLength,
                         testing::Values(LengthRow{65, 0, false}, LengthRow{65, 1, true},
                                         LengthRow{65, 63, true}, LengthRow{65, 64, true},
                                         LengthRow{65, 65, false}, LengthRow{65, 66, false},
                                         LengthRow{20, 19, true}, LengthRow{20, 20, false},
                                         LengthRow{0, 0, false}, LengthRow{0, 1, false},
                                         LengthRow{1, 1, false}, LengthRow{2, 1, true},
                                         LengthRow{2, 2, false}, LengthRow{65535, 65534, true},
                                         LengthRow{65535, 65535, false}),
                         [](const auto& row) {
                           return "Declared" + std::to_string(row.param.iOutput) + "Data" +
                                  std::to_string(row.param.iData);
                         });

TEST_F(UsbHid, FillsAReportWithZerosBehindTheReportId) {
  AttachWithLengths(65, 9);
  clsUSBHID device;
  EXPECT_TRUE(device.WriteReport("\x03\x7F\xFF"));
  EXPECT_THAT(rig.aReports, ElementsAre(QByteArray("\x00\x03\x7F\xFF\x00\x00\x00\x00\x00", 9)));
}

TEST_F(UsbHid, WritesZerosInTheDataToo) {
  AttachWithLengths(65, 4);
  clsUSBHID device;
  EXPECT_TRUE(device.WriteReport(QByteArray("\x03\x00\x00", 3)));
  EXPECT_THAT(rig.aReports, ElementsAre(QByteArray("\x00\x03\x00\x00", 4)));
}

TEST_F(UsbHid, ReadsOneByteLessThanTheDeclaredLength) {
  AttachWithLengths(65, 65);
  clsUSBHID device;
  device.WriteReport(QByteArray("\x03\x00\x00", 3));
  const auto reply = device.ReadReport();
  ASSERT_TRUE(reply.has_value());
  EXPECT_EQ(reply->size(), 64);
  EXPECT_THAT(rig.aReadLengths, ElementsAre(65));
}

TEST_F(UsbHid, TakesTheReportIdOffAReport) {
  AttachWithLengths(5, 65);
  rig.OnReply = [](QByteArray& report) { report = QByteArray("\x00\x11\x22\x33\x44", 5); };
  clsUSBHID device;
  device.WriteReport("x");
  EXPECT_EQ(device.ReadReport(), QByteArray("\x11\x22\x33\x44"));
}

TEST_F(UsbHid, LeavesZeroWhatTheDeviceDidNotSend) {
  AttachWithLengths(8, 65);
  rig.lInput = 0x41;
  rig.lAnalog = 9;
  clsUSBHID device;
  device.WriteReport(QByteArray("\x03\x00\x00", 3));
  EXPECT_EQ(device.ReadReport(), QByteArray("\x00\x00\x41\x90\x00\x00\x00", 7));
}

TEST_F(UsbHid, ReadsNothingFromADeviceWithoutInputReports) {
  AttachWithLengths(0, 65);
  clsUSBHID device;
  EXPECT_TRUE(device.WriteReport("x"));
  EXPECT_FALSE(device.ReadReport().has_value());
  EXPECT_TRUE(rig.aReadHandles.empty());
}

TEST_F(UsbHid, WritesOnOneHandleAndReadsOnTheOther) {
  rig.aDevices = {Hid("first")};
  clsUSBHID device;
  device.WriteReport("x");
  device.ReadReport();
  ASSERT_EQ(rig.aWriteHandles.size(), 1u);
  ASSERT_EQ(rig.aReadHandles.size(), 1u);
  EXPECT_NE(rig.aWriteHandles[0], rig.aReadHandles[0]);
}

TEST_F(UsbHid, WaitsOneSecondForAReport) {
  rig.aDevices = {Hid("first")};
  rig.aDevices[0].mood = HidMood::Silent;
  clsUSBHID device;
  device.WriteReport("x");
  const qint64 lStart = platform.lNow;
  EXPECT_FALSE(device.ReadReport().has_value());
  EXPECT_EQ(platform.lNow - lStart, 1000);
  EXPECT_THAT(rig.aReadTimeOuts, ElementsAre(1000));
}

}  // namespace
}  // namespace glidetrak
