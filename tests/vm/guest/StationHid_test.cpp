// The station on a device that is found, opened, driven, lost and found again.

#include "StationHid.h"

#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>

#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "track/SystemTick.h"

namespace glidetrak {
namespace {

using bench::TrackModel;
using bench::UhidDevice;
using bench::UhidFault;
using bench::WaitForDevices;

constexpr int iAtOnce = 700;  ///< ms: well below a time-out

int OpenDescriptors() {
  return static_cast<int>(QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size());
}

TEST_F(StationHid, FindsNothingWhereNothingIs) {
  m_hid.iProductID = bench::iRigProduct;
  EXPECT_FALSE(m_hid.bDeviceConnected());
  EXPECT_FALSE(m_hid.WriteReport(SetOutput(1)));
  EXPECT_FALSE(m_hid.ReadReport());
}

TEST_F(StationHid, PassesADeviceOfAnotherProductWithoutOpeningIt) {
  Plug();
  EXPECT_FALSE(m_hid.bDeviceConnected()) << "the class asks for product 67 by itself";
  m_hid.iProductID = bench::iRigProduct;
  EXPECT_TRUE(m_hid.bDeviceConnected());
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(1)));
  ASSERT_TRUE(m_hid.ReadReport());  // by now the device has been told of every opening
  EXPECT_EQ(m_device->Counts().iOpened, 1);
}

TEST_F(StationHid, ExchangesWholeReports) {
  PlugAndOpen();
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(0x1A)));
  const auto reply = m_hid.ReadReport();
  ASSERT_TRUE(reply);
  EXPECT_EQ(reply->size(), 64) << "one less than the declared length of 65";
  ASSERT_EQ(ReportsSeen(), 1u);
  EXPECT_EQ(m_device->Counts().aReports[0].size(), 64u) << "zero-filled to the declared length";
  EXPECT_EQ(m_rig.With([](TrackModel& model) { return model.Power(); }), 10);
}

TEST_F(StationHid, SendsWhatFitsAndRefusesOneByteMore) {
  PlugAndOpen({.iOutputLength = 19});
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(5)));
  EXPECT_TRUE(m_hid.ReadReport());
  EXPECT_FALSE(m_hid.WriteReport(SetOutput(5, 20)));
  EXPECT_EQ(ReportsSeen(), 1u);
}

TEST_F(StationHid, ASilentDeviceTimesOutAndIsReopenedByTheNextReport) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Silent);
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(5)));
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(m_hid.ReadReport());
  EXPECT_GE(clock.elapsed(), 950);
  EXPECT_LE(clock.elapsed(), iLongestExchange);
  EXPECT_TRUE(bench::WaitFor([&] { return m_device->Counts().iClosed == 1; }));
  m_device->SetFault(UhidFault::None);
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(6)));
  EXPECT_TRUE(m_hid.ReadReport());
  EXPECT_EQ(m_device->Counts().iOpened, 2);
}

TEST_F(StationHid, ADeviceThatVanishesBetweenWriteAndReadFailsAtOnce) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Vanish);
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(5)));
  ASSERT_TRUE(WaitForDevices(0));
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(m_hid.ReadReport());
  EXPECT_LE(clock.elapsed(), iAtOnce);
}

TEST_F(StationHid, ADeviceThatVanishesDuringAReadFailsAtOnceAndComesBack) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Vanish, 200);
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(5)));
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(m_hid.ReadReport());
  EXPECT_LE(clock.elapsed(), iAtOnce);
  EXPECT_FALSE(m_hid.WriteReport(SetOutput(5)));
  m_device->Unplug();
  m_device->SetFault(UhidFault::None);
  m_device->Plug();
  ASSERT_TRUE(WaitForDevices(1));
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(5)));
  EXPECT_TRUE(m_hid.ReadReport());
}

TEST_F(StationHid, TwoHundredPlugCyclesLeakNoDescriptor) {
  PlugAndOpen();
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(1)));
  ASSERT_TRUE(m_hid.ReadReport());
  const int iBefore = OpenDescriptors();
  for (int i = 0; i < 200; ++i) {
    m_device->Unplug();
    ASSERT_TRUE(WaitForDevices(0));
    m_hid.WriteReport(SetOutput(1));
    EXPECT_FALSE(m_hid.ReadReport()) << "which is what tells the class that the device is gone";
    m_device->Plug();
    ASSERT_TRUE(WaitForDevices(1));
    ASSERT_TRUE(m_hid.WriteReport(SetOutput(1)) && m_hid.ReadReport().has_value()) << i;
  }
  EXPECT_EQ(OpenDescriptors(), iBefore);
}

TEST_F(StationHid, ANodeWithoutPermissionIsPassed) {
  Plug();
  m_hid.iProductID = bench::iRigProduct;
  ASSERT_EQ(seteuid(1000), 0);
  EXPECT_FALSE(m_hid.bDeviceConnected());
  ASSERT_EQ(seteuid(0), 0);
  EXPECT_TRUE(m_hid.bDeviceConnected());
}

TEST_F(StationHid, TheFirstOfTwoDevicesWins) {
  Plug();
  UhidDevice second(m_rig);
  second.Plug();
  ASSERT_TRUE(WaitForDevices(2));
  m_hid.iProductID = bench::iRigProduct;
  ASSERT_TRUE(m_hid.bDeviceConnected());
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(1)));
  EXPECT_TRUE(m_hid.ReadReport());
  EXPECT_EQ(ReportsSeen() + second.Counts().aReports.size(), 1u);
}

TEST_F(StationHid, TheAdapterLayerTakesTheRigAndTheTickReadsIt) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  EXPECT_TRUE(bLinkUp && bUsbLink);
  m_rig.With([](TrackModel& model) { model.Place(bench::fGateB); });
  tmrSystem_Timer();
  EXPECT_EQ(lInputImage & 0x20, 0x20);
  lOutputImage = 0x19;
  WriteOutputPort();
  EXPECT_EQ(m_rig.With([](TrackModel& model) { return model.Power(); }), 9);
}

TEST_F(StationHid, AVanishedAdapterReadsZeroAndHealsByItself) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  ASSERT_NE(UsbReadInput(), 0) << "it is day";
  m_device->Unplug();
  ASSERT_TRUE(WaitForDevices(0));
  EXPECT_EQ(UsbReadInput(), 0);
  EXPECT_TRUE(bLinkUp) << "the label goes on saying detected";
  m_device->Plug();
  ASSERT_TRUE(WaitForDevices(1));
  EXPECT_NE(UsbReadInput(), 0);
}

TEST_F(StationHid, ShutDownHandsTheRigItsZeroByte) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  lOutputImage = 0x1F;
  WriteOutputPort();
  ShutDownHardware();
  EXPECT_EQ(m_rig.With([](TrackModel& model) { return model.Power(); }), 0);
  EXPECT_TRUE(bench::WaitFor([&] { return m_device->Counts().iClosed == 1; }));
}

}  // namespace
}  // namespace glidetrak
