// The station on a device that answers badly: too short, too late, unasked; or that does not tell
// what its reports are like.

#include <sys/mount.h>

#include <QElapsedTimer>
#include <fstream>

#include "StationHid.h"
#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "track/SystemTick.h"

namespace glidetrak {
namespace {

using bench::HidFile;
using bench::TrackModel;
using bench::UhidFault;
using bench::WaitForDevices;

constexpr int iLate = 1700;   ///< ms: behind the time-out and a slow reopening
constexpr int iAWhile = 300;  ///< ms in which what is due has come
constexpr int iGateBits = 0x30;

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

class StationHidFaults : public StationHid {
 protected:
  /// The time between two ticks, in which the device answers what it was asked.
  void PassInterval() {
    const auto bAllAnswered = [this] {
      const bench::UhidCounts counts = m_device->Counts();
      return counts.iAnswers == counts.iTaken;
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
};

TEST_F(StationHidFaults, ReportsTooShortForTheProtocolAreRefusedOrReadZero) {
  Plug({.iInputLength = 2, .iOutputLength = 10});
  ASSERT_TRUE(UsbOpenAdapter());
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(UsbWriteOutput(5));
  EXPECT_LE(clock.elapsed(), iLongestExchange);
  EXPECT_EQ(UsbReadInput(), 0);
  EXPECT_EQ(UsbReadAnalog(), 0);
}

TEST_F(StationHidFaults, AShortAnswerReadsZeroBehindItsEnd) {
  Plug();
  ASSERT_TRUE(UsbOpenAdapter());
  m_device->SetFault(UhidFault::Short);
  EXPECT_EQ(UsbReadInput(), 0);
}

TEST_F(StationHidFaults, GarbageIsTakenAsItComes) {
  Plug();
  ASSERT_TRUE(UsbOpenAdapter());
  m_device->SetFault(UhidFault::Garbage);
  EXPECT_EQ(UsbReadInput(), bench::iGarbage);
}

TEST_F(StationHidFaults, ALateAnswerCostsOneTimeOutAndSpoilsNoLaterTick) {
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

TEST_F(StationHidFaults, AnswersToAnotherProcessSpoilNoTick) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  HidFile other(bench::ListDevices()[0].sPath);
  for (int i = 0; i < 5; ++i) {
    ASSERT_TRUE(other.Write({3, 0, 0}));
    ExpectTrueTicks();
  }
}

TEST_F(StationHidFaults, AQueueThatIsFullLosesNoAnswer) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  HidFile other(bench::ListDevices()[0].sPath);
  for (int i = 1; i <= iMostDropped + 1; ++i) {
    ASSERT_TRUE(other.Write({3, 0, 0}));
    ASSERT_TRUE(bench::WaitFor([&] { return m_device->Counts().iAnswers == i; }));
  }
  ExpectTrueTicks();
}

TEST_F(StationHidFaults, AReopenedDeviceWhoseDescriptorCannotBeReadIsDriven) {
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

TEST_F(StationHidFaults, ADeviceFoundWithoutItsDescriptorIsReadOnceItCanBe) {
  Plug();
  {
    const HiddenDescriptor hidden;
    ASSERT_TRUE(CheckHardware());
    EXPECT_EQ(UsbReadInput(), 0);
  }
  EXPECT_NE(UsbReadInput(), 0) << "it is day";
}

TEST_F(StationHidFaults, TheMachineTellsNoReportLengthsOfADeviceThatIsGone) {
  Plug();
  const qint32 lHandle = m_devices.Open(m_devices.Devices(3326, 70).at(0).path);
  HidReportLengths lengths{7, 8};
  EXPECT_TRUE(m_devices.ReportLengths(lHandle, lengths));
  EXPECT_EQ(lengths.iInput, 65);
  m_device->Unplug();
  ASSERT_TRUE(WaitForDevices(0));
  lengths = {7, 8};
  EXPECT_FALSE(m_devices.ReportLengths(lHandle, lengths));
  EXPECT_EQ(lengths.iInput, 7);
  EXPECT_EQ(lengths.iOutput, 8);
  m_devices.DropInput(lHandle);
  m_devices.Close(lHandle);
}

}  // namespace
}  // namespace glidetrak
