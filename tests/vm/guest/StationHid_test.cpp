// The station's own HID class and adapter layer on the system's real HID stack.

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <fstream>
#include <optional>

#include "HidFile.h"
#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "hardware/USBIntegration.h"
#include "hardware/clsUSBHID.h"
#include "platform/linux/LinuxMachine.h"
#include "track/SystemTick.h"
#include "virtual/VirtualPlatform.h"

namespace glidetrak {
namespace {

using bench::HidFile;
using bench::LiveRig;
using bench::TrackModel;
using bench::UhidConfig;
using bench::UhidDevice;
using bench::UhidFault;
using bench::WaitForDevices;

constexpr int iLongestExchange = 1500;  ///< ms: the read's 1000 and what a busy guest adds
constexpr int iAtOnce = 700;            ///< ms: well below a time-out
constexpr int iLate = 1700;             ///< ms: behind the time-out and a slow reopening
constexpr int iAWhile = 300;            ///< ms in which what is due has come
constexpr int iGateBits = 0x30;

QByteArray SetOutput(char cByte, int iLength = 19) {
  QByteArray data(iLength, '\0');
  data[0] = 4;
  data[1] = 1;
  data[16] = cByte;
  return data;
}

int OpenDescriptors() {
  return static_cast<int>(QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size());
}

/// While it lives the device's report descriptor cannot be read: an empty file lies over it.
class HiddenDescriptor {
 public:
  HiddenDescriptor() {
    std::ofstream("/tmp/empty").close();
    EXPECT_EQ(mount("/tmp/empty", sDescriptor, nullptr, MS_BIND, nullptr), 0);
  }
  ~HiddenDescriptor() { EXPECT_EQ(umount(sDescriptor), 0); }
  HiddenDescriptor(const HiddenDescriptor&) = delete;
  HiddenDescriptor& operator=(const HiddenDescriptor&) = delete;

 private:
  static constexpr char sDescriptor[] = "/sys/class/hidraw/hidraw0/device/report_descriptor";
};

/// Boxes and the form stand on the virtual platform; the machine below is the real one.
class StationHid : public testing::Test {
 protected:
  StationHid() { pMachine = &m_machine; }
  ~StationHid() override {
    UsbCloseAdapter();
    pMachine = &m_desktop;
  }

  void Plug(UhidConfig config = {}) {
    m_device.emplace(m_rig, config);
    m_device->Plug();
    ASSERT_TRUE(WaitForDevices(1));
  }

  void PlugAndOpen(UhidConfig config = {}) {
    Plug(config);
    m_hid.iProductID = bench::iRigProduct;
    ASSERT_TRUE(m_hid.bDeviceConnected());
  }

  /// The time between two ticks, in which the device answers what it was asked.
  void PassInterval() {
    const auto bAllAnswered = [this] {
      const bench::UhidCounts counts = m_device->Counts();
      return counts.iAnswers == static_cast<int>(counts.aReports.size());
    };
    ASSERT_TRUE(bench::WaitFor(bAllAnswered));
    std::this_thread::sleep_for(std::chrono::milliseconds(iIdleInterval));
  }

  /// The next ticks read the sensors as they are, behind writes too.
  void ExpectTrueTicks() {
    m_rig.With([](TrackModel& model) { model.Place(bench::fGateB); });
    for (int i = 0; i < 5; ++i) {
      PassInterval();
      WriteOutputPort();
      tmrSystem_Timer();
      EXPECT_EQ(lInputImage & iGateBits, 0x20) << "tick " << i;
    }
  }

  size_t ReportsSeen() const { return m_device->Counts().aReports.size(); }

  LiveRig m_rig;
  VirtualPlatform m_desktop;
  LinuxMachine m_machine;
  std::optional<UhidDevice> m_device;
  clsUSBHID m_hid;
};

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

TEST_F(StationHid, ReportsTooShortForTheProtocolAreRefusedOrReadZero) {
  Plug({.iInputLength = 2, .iOutputLength = 10});
  ASSERT_TRUE(UsbOpenAdapter());
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(UsbWriteOutput(5));
  EXPECT_LE(clock.elapsed(), iLongestExchange);
  EXPECT_EQ(UsbReadInput(), 0);
  EXPECT_EQ(UsbReadAnalog(), 0);
}

TEST_F(StationHid, AShortAnswerReadsZeroBehindItsEnd) {
  Plug();
  ASSERT_TRUE(UsbOpenAdapter());
  m_device->SetFault(UhidFault::Short);
  EXPECT_EQ(UsbReadInput(), 0);
}

TEST_F(StationHid, GarbageIsTakenAsItComes) {
  Plug();
  ASSERT_TRUE(UsbOpenAdapter());
  m_device->SetFault(UhidFault::Garbage);
  EXPECT_EQ(UsbReadInput(), bench::iGarbage);
}

TEST_F(StationHid, ALateAnswerCostsOneTimeOutAndSpoilsNoLaterTick) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  m_device->SetFault(UhidFault::Late, iLate);
  QElapsedTimer clock;
  clock.start();
  tmrSystem_Timer();
  EXPECT_LE(clock.elapsed(), iLongestExchange);
  EXPECT_EQ(lInputImage, 0);
  m_device->SetFault(UhidFault::None);
  tmrSystem_Timer();  // opens the device anew
  ASSERT_LT(clock.elapsed(), iLate) << "the late answer is to come to an open device";
  while (clock.elapsed() < iLate + iAWhile) tmrSystem_Timer();
  ExpectTrueTicks();
}

TEST_F(StationHid, AnswersToAnotherProcessSpoilNoTick) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  HidFile other(bench::ListDevices()[0].sPath);
  for (int i = 0; i < 5; ++i) {
    ASSERT_TRUE(other.Write({3, 0, 0}));
    ExpectTrueTicks();
  }
}

TEST_F(StationHid, AQueueThatIsFullLosesNoAnswer) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  HidFile other(bench::ListDevices()[0].sPath);
  for (int i = 1; i <= iMostDropped + 1; ++i) {
    ASSERT_TRUE(other.Write({3, 0, 0}));
    ASSERT_TRUE(bench::WaitFor([&] { return m_device->Counts().iAnswers == i; }));
  }
  ExpectTrueTicks();
}

TEST_F(StationHid, AReopenedDeviceWhoseDescriptorCannotBeReadIsDriven) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Silent);
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(5)));
  ASSERT_FALSE(m_hid.ReadReport()) << "which closes the device";
  m_device->SetFault(UhidFault::None);
  const HiddenDescriptor hidden;
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(0)));
  EXPECT_TRUE(m_hid.ReadReport());
  EXPECT_EQ(m_rig.With([](TrackModel& model) { return model.Power(); }), 0);
}

TEST_F(StationHid, ADeviceFoundWithoutItsDescriptorIsReadOnceItCanBe) {
  Plug();
  {
    const HiddenDescriptor hidden;
    ASSERT_TRUE(CheckHardware());
    EXPECT_EQ(UsbReadInput(), 0);
  }
  EXPECT_NE(UsbReadInput(), 0) << "it is day";
}

TEST_F(StationHid, TheMachineTellsNoReportLengthsOfADeviceThatIsGone) {
  Plug();
  const qint32 lHandle = m_machine.HidOpen(m_machine.HidDevices().at(0).path);
  HidReportLengths lengths{7, 8};
  EXPECT_TRUE(m_machine.GetHidReportLengths(lHandle, lengths));
  EXPECT_EQ(lengths.iInput, 65);
  m_device->Unplug();
  ASSERT_TRUE(WaitForDevices(0));
  lengths = {7, 8};
  EXPECT_FALSE(m_machine.GetHidReportLengths(lHandle, lengths));
  EXPECT_EQ(lengths.iInput, 7);
  EXPECT_EQ(lengths.iOutput, 8);
  m_machine.HidDropInput(lHandle);
  m_machine.HidClose(lHandle);
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
