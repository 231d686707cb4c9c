// The three acts that the rooms above see of the rig: read the input, read the analog value, write
// the output.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Ports : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;
  VirtualRig& rig = station.rig;

  void Connect(RigLink link) {
    station.Attach(link);
    ASSERT_TRUE(CheckHardware());
    station.Forget();
  }
};

struct ReadRow : NamedRow {
  std::deque<qint32> aReadings;
  bool bFail;
  qint32 lValue;
  int iReads;
};

class ParallelReads : public Ports, public testing::WithParamInterface<ReadRow> {};

TEST_P(ParallelReads, GoOnUntilTheRigIsPresent) {
  const ReadRow& row = GetParam();
  Connect(RigLink::Parallel);
  rig.aReadings = row.aReadings;
  bool bFail = !row.bFail;
  qint32 lValue = 4711;
  ReadInputPort(bFail, lValue);
  EXPECT_EQ(bFail, row.bFail);
  EXPECT_EQ(lValue, row.lValue);
  EXPECT_EQ(station.Calls("ReadAdapter"), row.iReads);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParallelReads,
    testing::Values(ReadRow{"FirstTime", {0x85}, false, 0x85, 1},
                    ReadRow{"PresentAndNothingElse", {0x80}, false, 0x80, 1},
                    ReadRow{"SecondTime", {0x05, 0xFF}, false, 0xFF, 2},
                    ReadRow{"NinthTime", {1, 2, 3, 4, 5, 6, 7, 8, 0x89}, false, 0x89, 9},
                    ReadRow{"NotInNine", {1, 2, 3, 4, 5, 6, 7, 8, 9, 0x8A}, true, 9, 9},
                    ReadRow{"NotInNineAndZeroLast", {1, 1, 1, 1, 1, 1, 1, 1, 0}, true, 0, 9},
                    ReadRow{"MinusOneHasTheBit", {-1}, false, -1, 1},
                    ReadRow{"BitsBeyondTheByteAreNoPresence",
                            {256, 256, 256, 256, 256, 256, 256, 256, 0x100},
                            true,
                            0x100,
                            9}),
    RowName());

TEST_F(Ports, ReadZeroAndFailWithoutALibrary) {
  Connect(RigLink::Parallel);
  rig.bLibraryThere = false;
  bool bFail = false;
  qint32 lValue = 4711;
  ReadInputPort(bFail, lValue);
  EXPECT_TRUE(bFail);
  EXPECT_EQ(lValue, 0);
  EXPECT_THAT(platform.aBoxes, IsEmpty());
}

TEST_F(Ports, ReadZeroAndFailWhenTheLibraryGoesAmongTheNineReads) {
  Connect(RigLink::Parallel);
  rig.aReadings = {1, 2, 3, 0x84};
  int iCalls = 0;
  platform.OnCall = [&](const QByteArray&) { rig.bLibraryThere = ++iCalls < 3; };
  bool bFail = false;
  qint32 lValue = 4711;
  ReadInputPort(bFail, lValue);
  EXPECT_TRUE(bFail);
  EXPECT_EQ(lValue, 0);
  EXPECT_EQ(iCalls, 3);
}

TEST_F(Ports, ReadTheInputByteOfUsbWhole) {
  Connect(RigLink::Usb);
  for (const qint32 lInput : {0x00, 0x41, 0x7F, 0x80, 0xFF}) {
    rig.lInput = lInput;
    bool bFail = false;
    qint32 lValue = 4711;
    ReadInputPort(bFail, lValue);
    EXPECT_EQ(lValue, lInput);
    EXPECT_FALSE(bFail);
  }
}

TEST_F(Ports, LeaveTheFailureFlagAloneOnUsb) {
  Connect(RigLink::Usb);
  bool bFail = true;
  qint32 lValue = 0;
  ReadInputPort(bFail, lValue);
  EXPECT_TRUE(bFail);
}

TEST_F(Ports, ReadZeroWithoutFailureFromADeadUsbDevice) {
  for (const HidMood mood : {HidMood::Silent, HidMood::Vanished, HidMood::Locked}) {
    Connect(RigLink::Usb);
    rig.lInput = 0x7F;
    rig.aDevices[0].mood = mood;
    if (mood == HidMood::Locked) rig.aOpenHandles.clear();
    bool bFail = false;
    qint32 lValue = 4711;
    ReadInputPort(bFail, lValue);
    EXPECT_EQ(lValue, 0);
    EXPECT_FALSE(bFail);
    EXPECT_TRUE(bLinkUp);
    rig.aDevices.clear();
  }
}

TEST_F(Ports, ReadTheParallelAnalogValueOnce) {
  Connect(RigLink::Parallel);
  for (const qint32 lAnalog : {0, 7, 15, -1, 4711}) {
    station.Forget();
    rig.lAnalog = lAnalog;
    EXPECT_EQ(ReadAnalogPort(), lAnalog);
    EXPECT_THAT(rig.aCalls, ElementsAre("ReadAtoD 888 50000"));
    EXPECT_EQ(iUsbAnalog, 0);
  }
}

TEST_F(Ports, ReadTheHighNibbleOfTheUsbAnalogByte) {
  Connect(RigLink::Usb);
  const std::pair<char, int> aRows[] = {{'\xF0', 15}, {'\x0F', 0}, {'\x00', 0}, {'\xFF', 15},
                                        {'\x10', 1},  {'\x1F', 1}, {'\x80', 8}, {'\x7F', 7}};
  for (const auto& [cByte, iValue] : aRows) {
    rig.OnReply = [cByte](QByteArray& report) { report[4] = cByte; };
    EXPECT_EQ(ReadAnalogPort(), iValue);
    EXPECT_EQ(iUsbAnalog, iValue);
  }
  EXPECT_THAT(rig.aCalls, IsEmpty());
}

TEST_F(Ports, ReadZeroAnalogFromADeadUsbDevice) {
  Connect(RigLink::Usb);
  iUsbAnalog = 9;
  rig.aDevices[0].mood = HidMood::Vanished;
  EXPECT_EQ(ReadAnalogPort(), 0);
  EXPECT_EQ(iUsbAnalog, 0);
}

TEST_F(Ports, WriteTheWholeImageToTheParallelAdapter) {
  Connect(RigLink::Parallel);
  lOutputImage = 0xFF;
  WriteOutputPort();
  EXPECT_THAT(rig.aCalls, ElementsAre("WriteAdapter 888 255"));
}

TEST_F(Ports, WriteTheImageToTheUsbAdapter) {
  Connect(RigLink::Usb);
  lOutputImage = 0x1F;
  WriteOutputPort();
  ASSERT_EQ(rig.aReports.size(), 1u);
  QByteArray expected(65, '\0');
  expected[1] = 4;
  expected[2] = 1;
  expected[17] = 0x1F;
  EXPECT_EQ(rig.aReports[0], expected);
}

TEST_F(Ports, WriteEachTimeTheyAreAsked) {
  Connect(RigLink::Parallel);
  lOutputImage = 3;
  WriteOutputPort();
  WriteOutputPort();
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(3, 3));
}

}  // namespace
}  // namespace glidetrak
