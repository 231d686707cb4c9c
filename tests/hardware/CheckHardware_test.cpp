// Which adapter is chosen, and what is called of the library on the way.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr qint32 lFirstAddress = 888;  ///< the virtual rig's ports lie at 888, 1144 and 1400

class Adapter : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;
  VirtualRig& rig = station.rig;
};

TEST_F(Adapter, OnUsbWinsOverTheParallelPort) {
  station.Attach(RigLink::Parallel);
  station.Attach(RigLink::Usb);
  EXPECT_TRUE(CheckHardware());
  EXPECT_TRUE(bUsbLink);
  EXPECT_TRUE(bLinkUp);
  EXPECT_THAT(rig.aCalls, IsEmpty());
  EXPECT_EQ(lPortAddress, 0);
}

TEST_F(Adapter, OnUsbIsNotWrittenToByTheCheck) {
  station.Attach(RigLink::Usb);
  lOutputImage = 31;
  EXPECT_TRUE(CheckHardware());
  EXPECT_THAT(rig.aReports, IsEmpty());
}

TEST_F(Adapter, OnTheParallelPortIsOpenedWrittenToAndRead) {
  station.Attach(RigLink::Parallel);
  EXPECT_TRUE(CheckHardware());
  EXPECT_FALSE(bUsbLink);
  EXPECT_TRUE(bLinkUp);
  EXPECT_EQ(lPortAddress, lFirstAddress);
  EXPECT_EQ(lPortHandle, 101);
  EXPECT_THAT(rig.aCalls, ElementsAre("LPTAvailable", "LPTAddress 1", "IsAdapterConnected 888",
                                      "OpenLPT 1", "WriteAdapter 888 0", "ReadAdapter 888"));
}

TEST_F(Adapter, OnTheParallelPortGetsZeroAndNotTheImage) {
  station.Attach(RigLink::Parallel);
  lOutputImage = 31;
  EXPECT_TRUE(CheckHardware());
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0));
  EXPECT_EQ(lOutputImage, 31);
}

struct PortRow : NamedRow {
  qint32 lMask;
  std::vector<int> aConnected;  ///< ports with an adapter
  bool bFound;
  std::vector<QByteArray> aCalls;  ///< behind LPTAvailable, up to OpenLPT
  qint32 lAddress;                 ///< left in lPortAddress
};

class AdapterPorts : public Adapter, public testing::WithParamInterface<PortRow> {};

TEST_P(AdapterPorts, AreProbedInOrder) {
  const PortRow& row = GetParam();
  rig.lAvailable = row.lMask;
  for (const int iPort : row.aConnected) rig.aConnected[iPort] = true;
  EXPECT_EQ(DetectAdapter(), row.bFound);
  EXPECT_EQ(bLinkUp, row.bFound);
  EXPECT_FALSE(bUsbLink);
  std::vector<QByteArray> aExpected{"LPTAvailable"};
  aExpected.insert(aExpected.end(), row.aCalls.begin(), row.aCalls.end());
  EXPECT_THAT(rig.aCalls, ElementsAreArray(aExpected));
  EXPECT_EQ(lPortAddress, row.lAddress);
  EXPECT_THAT(platform.aBoxes, IsEmpty());
}

const std::vector<QByteArray> aProbe1{"LPTAddress 1", "IsAdapterConnected 888"};
const std::vector<QByteArray> aProbe3{"LPTAddress 3", "IsAdapterConnected 1400"};

INSTANTIATE_TEST_SUITE_P(
    Rows, AdapterPorts,
    testing::Values(PortRow{"None", 0, {1, 2, 3}, false, {}, 0},
                    PortRow{"NegativeMask", -1, {1, 2, 3}, false, {}, 0},
                    PortRow{"NegativeMaskWithBits", -2147483647, {1, 2, 3}, false, {}, 0},
                    PortRow{"FourthPortOnly", 8, {1, 2, 3}, false, {}, 0},
                    PortRow{"FirstOfThree",
                            7,
                            {1, 2, 3},
                            true,
                            {"LPTAddress 1", "IsAdapterConnected 888", "OpenLPT 1"},
                            888},
                    PortRow{"SecondOfThree",
                            7,
                            {2, 3},
                            true,
                            {"LPTAddress 1", "IsAdapterConnected 888", "LPTAddress 2",
                             "IsAdapterConnected 1144", "OpenLPT 2"},
                            1144},
                    PortRow{"ThirdOfThree",
                            7,
                            {3},
                            true,
                            {"LPTAddress 1", "IsAdapterConnected 888", "LPTAddress 2",
                             "IsAdapterConnected 1144", "LPTAddress 3", "IsAdapterConnected 1400",
                             "OpenLPT 3"},
                            1400},
                    PortRow{"UnusablePortIsNotProbed", 4, {1, 2}, false, aProbe3, 1400},
                    PortRow{"FirstAndThirdUsable",
                            5,
                            {2, 3},
                            true,
                            {"LPTAddress 1", "IsAdapterConnected 888", "LPTAddress 3",
                             "IsAdapterConnected 1400", "OpenLPT 3"},
                            1400},
                    PortRow{"NoAdapterOnTheOnlyPort", 1, {}, false, aProbe1, 888},
                    PortRow{"BitsBeyondThePorts",
                            0x71,
                            {1},
                            true,
                            {"LPTAddress 1", "IsAdapterConnected 888", "OpenLPT 1"},
                            888}),
    RowName());

TEST_F(Adapter, IsFoundByAnyNonZeroAnswer) {
  station.Attach(RigLink::Parallel);
  for (const qint32 lAnswer : {1, -1, 2, 256}) {
    platform.aResults["IsAdapterConnected"] = lAnswer;
    EXPECT_TRUE(DetectAdapter()) << lAnswer;
  }
}

TEST_F(Adapter, KeepsTheHandleThatTheLibraryGave) {
  station.Attach(RigLink::Parallel);
  platform.aResults["OpenLPT"] = -1;
  EXPECT_TRUE(DetectAdapter());
  EXPECT_EQ(lPortHandle, -1);
}

TEST_F(Adapter, TakesTheLinkDownWhenNoneIsFound) {
  bLinkUp = true;
  bUsbLink = true;
  EXPECT_FALSE(CheckHardware());
  EXPECT_FALSE(bLinkUp);
  EXPECT_FALSE(bUsbLink);
  EXPECT_THAT(platform.aBoxes, IsEmpty());
}

TEST_F(Adapter, ThatDoesNotAnswerFailsTheCheckAndKeepsTheLink) {
  station.Attach(RigLink::Parallel);
  rig.bPresent = false;
  EXPECT_FALSE(CheckHardware());
  EXPECT_TRUE(bLinkUp);
  EXPECT_EQ(station.Calls("ReadAdapter"), 9);
}

TEST_F(Adapter, MayChangeFromUsbToParallel) {
  station.Attach(RigLink::Usb);
  ASSERT_TRUE(CheckHardware());
  rig.Detach();
  station.Attach(RigLink::Parallel);
  EXPECT_TRUE(CheckHardware());
  EXPECT_FALSE(bUsbLink);
  EXPECT_TRUE(bLinkUp);
}

TEST_F(Adapter, IsLookedForTwiceOnUsbBeforeThePort) {
  CheckHardware();
  EXPECT_EQ(rig.iEnumerations, 2);
}

// The device that comes between the two looks is taken by the second one, which leaves bLinkUp as
// it stands.
class LateDevice : public Adapter {
 protected:
  LateDevice() {
    rig.OnEnumerate = [this] {
      if (rig.iEnumerations == 1) station.Attach(RigLink::Usb);
    };
  }
};

TEST_F(LateDevice, IsTakenAndReadThoughTheLinkStaysDown) {
  rig.lInput = 5;
  EXPECT_TRUE(CheckHardware());
  EXPECT_TRUE(bUsbLink);
  EXPECT_FALSE(bLinkUp);
  EXPECT_THAT(rig.aCalls, ElementsAre("WriteAdapter 0 0"));
}

TEST_F(LateDevice, FailsTheCheckSilentlyWithoutALibrary) {
  rig.bLibraryThere = false;
  EXPECT_FALSE(CheckHardware());
  EXPECT_TRUE(bUsbLink);
  EXPECT_THAT(platform.aBoxes, IsEmpty());
}

TEST_F(Adapter, WithoutALibraryIsToldOfAtEachAttempt) {
  rig.bLibraryThere = false;
  for (size_t i = 1; i <= 3; ++i) {
    EXPECT_FALSE(CheckHardware());
    ASSERT_EQ(platform.aBoxes.size(), i);
    const VirtualBox& box = platform.aBoxes.back();
    EXPECT_EQ(box.sText, "Unable to communicate with the Hardware.");
    EXPECT_EQ(box.sTitle, "Hardware Communication");
    EXPECT_EQ(box.icon, BoxIcon::Warning);
    EXPECT_EQ(box.buttons, BoxButtons::Ok);
  }
}

TEST_F(Adapter, OnUsbNeedsNoLibrary) {
  rig.bLibraryThere = false;
  station.Attach(RigLink::Usb);
  EXPECT_TRUE(CheckHardware());
  EXPECT_THAT(platform.aBoxes, IsEmpty());
}

struct MissingRow : NamedRow {  // named for the operation
  bool bResult;                 ///< of CheckHardware
  bool bLink;                   ///< the link afterwards; it was up before
  int iBoxes;
};

class MissingOperation : public Adapter, public testing::WithParamInterface<MissingRow> {};

TEST_P(MissingOperation, EndsTheCheck) {
  const MissingRow& row = GetParam();
  station.Attach(RigLink::Parallel);
  rig.aMissingOperations = {row.sName};
  bLinkUp = true;
  EXPECT_EQ(CheckHardware(), row.bResult);
  EXPECT_EQ(bLinkUp, row.bLink);
  EXPECT_EQ(platform.aBoxes.size(), static_cast<size_t>(row.iBoxes));
  EXPECT_FALSE(bUsbLink);
}

INSTANTIATE_TEST_SUITE_P(Rows, MissingOperation,
                         testing::Values(MissingRow{"LPTAvailable", false, false, 1},
                                         MissingRow{"LPTAddress", false, false, 1},
                                         MissingRow{"IsAdapterConnected", false, false, 1},
                                         MissingRow{"OpenLPT", false, false, 1},
                                         MissingRow{"WriteAdapter", false, true, 0},
                                         MissingRow{"ReadAdapter", false, true, 0},
                                         MissingRow{"ReadAtoD", true, true, 0},
                                         MissingRow{"SetStrobe", true, true, 0},
                                         MissingRow{"CloseLPT", true, true, 0}),
                         RowName());

}  // namespace
}  // namespace glidetrak
