// The link's state as it is shown, lost and found again.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int lRetry = 5000;  ///< milliseconds between two retries
const QString sLost = "Communication with the hardware is not currently available.";

class Link : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;
  VirtualRig& rig = station.rig;

  void ExpectShown(bool bDetected) {
    EXPECT_EQ(lblHWState.Caption.value(), bDetected ? sDetected : sNotDetected);
    EXPECT_EQ(tmrReconnect.Enabled.value(), !bDetected);
    EXPECT_EQ(bLinkUpShown, bDetected);
    EXPECT_EQ(bLinkUp, bDetected);
  }
};

struct ShowRow {
  bool bUp, bShown;
  bool bWritten;
};

TEST_F(Link, IsShownOnlyWhenItHasChanged) {
  for (const ShowRow& row : {ShowRow{true, true, false},
                             {false, false, false},
                             {true, false, true},
                             {false, true, true}}) {
    lblHWState.Caption = "before";
    tmrReconnect.Enabled = row.bUp;
    bLinkUp = row.bUp;
    bLinkUpShown = row.bShown;
    ShowLinkState();
    EXPECT_EQ(lblHWState.Caption.value(), !row.bWritten ? QString("before")
                                          : row.bUp     ? sDetected
                                                        : sNotDetected);
    EXPECT_EQ(tmrReconnect.Enabled.value(), row.bWritten ? !row.bUp : row.bUp);
    EXPECT_EQ(bLinkUpShown, row.bUp);
  }
}

struct StartRow : NamedRow {
  RigLink link;
  bool bUp, bUsb;
};

class LinkAtStart : public Link, public testing::WithParamInterface<StartRow> {};

TEST_P(LinkAtStart, IsShownWhateverItIs) {
  const StartRow& row = GetParam();
  station.Start(row.link);
  ExpectShown(row.bUp);
  EXPECT_EQ(bUsbLink, row.bUsb);
  EXPECT_EQ(tmrReconnect.Interval.value(), lRetry);
  EXPECT_FALSE(bLinkMessageShown);
}

INSTANTIATE_TEST_SUITE_P(Rows, LinkAtStart,
                         testing::Values(StartRow{"None", RigLink::None, false, false},
                                         StartRow{"Parallel", RigLink::Parallel, true, false},
                                         StartRow{"Usb", RigLink::Usb, true, true}),
                         RowName());

TEST_F(Link, AtStartWithoutARigComesWithoutAMessage) {
  station.Start(RigLink::None);
  EXPECT_THAT(platform.aBoxes, IsEmpty());
}

TEST_F(Link, OfNoRigIsToldOfOnceByTheFirstTick) {
  station.Start(RigLink::None);
  platform.RunFor(25);
  ASSERT_EQ(platform.aBoxes.size(), 1u);
  EXPECT_EQ(platform.aBoxes[0].sText, sLost);
  EXPECT_EQ(platform.aBoxes[0].sTitle, "Glidetrak Control");
  EXPECT_EQ(platform.aBoxes[0].icon, BoxIcon::Warning);
  platform.RunFor(20'000);
  EXPECT_EQ(platform.aBoxes.size(), 1u);
  ExpectShown(false);
}

TEST_F(Link, IsMarkedAsToldWhenTheBoxHasBeenClosed) {
  station.Start();
  bool bShownInside = true;
  platform.OnBox = [&](const VirtualBox&) { bShownInside = bLinkMessageShown; };
  rig.Detach();
  platform.RunFor(25);
  EXPECT_FALSE(bShownInside);
  EXPECT_TRUE(bLinkMessageShown);
}

TEST_F(Link, IsShownAsLostBeforeTheBoxOpens) {
  station.Start();
  platform.OnBox = [&](const VirtualBox&) { ExpectShown(false); };
  rig.Detach();
  platform.RunFor(25);
  EXPECT_EQ(station.BoxTexts(), QStringList{sLost});
}

TEST_F(Link, LostTwiceIsToldOnceAndShownTwice) {
  station.Start();
  rig.Detach();
  platform.RunFor(25);
  station.Attach(RigLink::Parallel);
  platform.RunFor(lRetry);
  ExpectShown(true);
  rig.Detach();
  platform.RunFor(25);
  ExpectShown(false);
  EXPECT_EQ(platform.aBoxes.size(), 1u);
}

TEST_F(Link, IsRetriedEachFiveSeconds) {
  station.Start(RigLink::None);
  platform.RunFor(lRetry - 1);
  EXPECT_EQ(station.Calls("LPTAvailable"), 0);
  platform.RunFor(1);
  EXPECT_EQ(station.Calls("LPTAvailable"), 1);
  platform.RunFor(3 * lRetry);
  EXPECT_EQ(station.Calls("LPTAvailable"), 4);
}

class LinkFound : public Link, public testing::WithParamInterface<StartRow> {};

TEST_P(LinkFound, WithinFiveSecondsAndWithoutAMessage) {
  station.Start(RigLink::None);
  platform.RunFor(1000);
  station.Forget();
  station.Attach(GetParam().link);
  platform.RunFor(lRetry - 1000);
  ExpectShown(true);
  EXPECT_EQ(bUsbLink, GetParam().bUsb);
  EXPECT_THAT(platform.aBoxes, IsEmpty());
  const int iLooks = rig.iEnumerations;
  platform.RunFor(2 * lRetry);
  EXPECT_EQ(rig.iEnumerations, iLooks);  // the retry has stopped
}

INSTANTIATE_TEST_SUITE_P(Rows, LinkFound,
                         testing::Values(StartRow{"Parallel", RigLink::Parallel, true, false},
                                         StartRow{"Usb", RigLink::Usb, true, true}),
                         RowName());

TEST_F(Link, FoundOnThePortGetsZeroAndNotTheImage) {
  station.Start();
  SetPower(9);
  station.Forget();
  rig.Detach();
  platform.RunFor(25);
  station.Attach(RigLink::Parallel);
  platform.RunFor(2 * lRetry);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0));
  EXPECT_EQ(lOutputImage, 0x19);
}

TEST_F(Link, FoundOnUsbGetsNothing) {
  station.Start(RigLink::None);
  platform.RunFor(100);
  SetPower(9);
  station.Attach(RigLink::Usb);
  platform.RunFor(2 * lRetry);
  EXPECT_TRUE(bLinkUp);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
}

TEST_F(Link, DownGoesOnBeingReadAtTheFullRate) {
  station.Start();
  rig.Detach();
  platform.RunFor(25);
  station.Forget();
  platform.RunFor(250);
  EXPECT_EQ(station.Calls("ReadAdapter"), 90);
  EXPECT_EQ(rig.aCalls[0], "ReadAdapter 888");
}

TEST_F(Link, DownFromTheStartIsReadAtAddressZero) {
  station.Start(RigLink::None);
  platform.RunFor(25);
  EXPECT_EQ(rig.aCalls.at(0), "ReadAdapter 0");
}

TEST_F(Link, WhoseCheckFailsThoughAnAdapterIsThereIsShownAndLostByTheTick) {
  station.Attach(RigLink::Parallel);
  rig.bPresent = false;
  station.StartUp();
  ExpectShown(true);
  platform.RunFor(25);
  ExpectShown(false);
  EXPECT_EQ(station.BoxTexts(), QStringList{sLost});
}

TEST_F(Link, WithoutALibraryIsToldOfAtEachRetry) {
  rig.bLibraryThere = false;
  station.Start(RigLink::None);
  platform.RunFor(25);
  station.Forget();
  platform.RunFor(3 * lRetry);
  const QString sUnable = "Unable to communicate with the Hardware.";
  EXPECT_EQ(station.BoxTexts(), (QStringList{sUnable, sUnable, sUnable}));
}

TEST_F(Link, WithoutALibraryIsToldOfInOneBoxAtATime) {
  rig.bLibraryThere = false;
  station.Start(RigLink::None);
  platform.RunFor(25);
  station.Forget();
  int iMost = 0;
  platform.OnPump = [&] { iMost = std::max(iMost, platform.iOpenBoxes); };
  platform.iBoxMilliseconds = 6 * lRetry;
  platform.RunFor(lRetry);
  EXPECT_EQ(platform.aBoxes.size(), 1u);
  platform.RunFor(lRetry);
  EXPECT_EQ(platform.aBoxes.size(), 2u) << "the box has been closed: retries go on";
  EXPECT_EQ(iMost, 1);
}

TEST_F(Link, OnUsbDrivesTheRigThoughItsReportLengthsCannotBeLearntAgain) {
  station.Start(RigLink::Usb);
  VirtualHid& device = rig.aDevices[0];
  device.mood = HidMood::Silent;
  platform.RunFor(25);
  ASSERT_TRUE(rig.aOpenHandles.empty());
  device.mood = HidMood::Answers;
  device.bTellsLengths = false;
  SetPower(9);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x19));
  rig.lInput = 0x2A;
  platform.RunFor(25);
  EXPECT_EQ(lInputImage, 0x2A);
}

TEST_F(Link, OnUsbFoundWithoutItsReportLengthsHealsWithTheNextTick) {
  station.Start(RigLink::None);
  platform.RunFor(25);
  station.Attach(RigLink::Usb);
  rig.aDevices[0].bTellsLengths = false;
  platform.RunFor(lRetry);
  ExpectShown(true);
  rig.aDevices[0].bTellsLengths = true;
  rig.lInput = 0x2A;
  platform.RunFor(25);
  EXPECT_EQ(lInputImage, 0x2A);
}

TEST_F(Link, OnUsbIsNotLostWithItsDevice) {
  station.Start(RigLink::Usb);
  rig.lInput = 0x7F;
  platform.RunFor(25);
  EXPECT_EQ(lInputImage, 0x7F);
  rig.Detach();
  platform.RunFor(20'000);
  EXPECT_EQ(lInputImage, 0);
  ExpectShown(true);
  EXPECT_TRUE(bUsbLink);
  EXPECT_THAT(platform.aBoxes, IsEmpty());
}

TEST_F(Link, OnUsbHealsByItselfWithTheNextTick) {
  station.Start(RigLink::Usb);
  platform.RunFor(25);
  rig.Detach();
  platform.RunFor(1000);
  rig.aDevices[0].mood = HidMood::Answers;
  rig.lInput = 0x2A;
  platform.RunFor(25);
  EXPECT_EQ(lInputImage, 0x2A);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
}

TEST_F(Link, OnUsbStallsOneSecondInEachTickOfASilentDevice) {
  station.Start(RigLink::Usb);
  rig.aDevices[0].mood = HidMood::Silent;
  platform.RunFor(24);
  const qint64 lStart = platform.lNow;
  platform.RunFor(1);
  EXPECT_EQ(platform.lNow - lStart, 1001);
  ExpectShown(true);
}

}  // namespace
}  // namespace glidetrak
