// The bench's HID device in the system's real HID stack: what a program finds, sends and receives,
// and what it sees of each fault.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <optional>

#include "HidFile.h"
#include "bench/ReportDescriptor.h"

namespace glidetrak::bench {
namespace {

constexpr int iPatience = 5000;  ///< ms for an answer that must come
constexpr int iAWhile = 300;     ///< ms in which an answer that must not come would have come

const ReportBytes ReadState{3, 0, 0};

ReportBytes SetOutput(int iByte, size_t iLength = 64) {
  ReportBytes data(iLength);
  data[0] = 4;
  data[1] = 1;
  data[16] = static_cast<std::uint8_t>(iByte);
  return data;
}

class HidDeviceTest : public testing::Test {
 protected:
  /// Puts the device in and opens it; the test ends when that fails.
  void PlugAndOpen(UhidConfig config = {}) {
    m_device.emplace(m_rig, config);
    m_device->Plug();
    ASSERT_TRUE(WaitForDevices(1));
    m_file.emplace(ListDevices()[0].sPath);
    ASSERT_TRUE(m_file->Open());
  }

  int Exchange(const ReportBytes& data, int iTimeOut = iPatience) {
    EXPECT_TRUE(m_file->Write(data));
    return m_file->Read(m_answer, iTimeOut);
  }

  void ExpectCounts(size_t iReports, int iAnswers) const {
    const UhidCounts counts = m_device->Counts();
    EXPECT_EQ(counts.aReports.size(), iReports);
    EXPECT_EQ(counts.iAnswers, iAnswers);
  }

  LiveRig m_rig;
  std::optional<UhidDevice> m_device;
  std::optional<HidFile> m_file;
  ReportBytes m_answer;
};

TEST_F(HidDeviceTest, NoDeviceBeforeItIsPlugged) {
  m_device.emplace(m_rig);
  EXPECT_FALSE(m_device->Plugged());
  EXPECT_EQ(ListDevices().size(), 0u);
}

TEST_F(HidDeviceTest, IsListedWithItsIds) {
  PlugAndOpen();
  const HidListing listing = ListDevices()[0];
  EXPECT_EQ(listing.sPath, "/dev/hidraw0");
  EXPECT_EQ(listing.iProduct, iRigProduct);
  EXPECT_TRUE(WaitFor([&] { return m_device->Counts().iOpened == 1; }));
  ExpectCounts(0, 0);
}

TEST_F(HidDeviceTest, VersionOfADeviceWithoutABusReadsZero) {
  PlugAndOpen({.iVersion = 0x0200});
  EXPECT_EQ(ListDevices()[0].iVersion, 0);
}

TEST_F(HidDeviceTest, DescriptorStandsBesideTheNode) {
  PlugAndOpen({.iInputLength = 8, .iOutputLength = 300});
  std::ifstream file("/sys/class/hidraw/hidraw0/device/report_descriptor", std::ios::binary);
  const ReportBytes descriptor{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(descriptor, ReportDescriptor(8, 300));
}

TEST_F(HidDeviceTest, SetOutputDrivesTheTrackAndIsAnswered) {
  PlugAndOpen();
  EXPECT_EQ(Exchange(SetOutput(0x1A)), 64);
  EXPECT_EQ(m_rig.With([](TrackModel& model) { return model.Power(); }), 10);
  EXPECT_TRUE(m_rig.With([](TrackModel& model) { return model.Forward(); }));
  ExpectCounts(1, 1);
  EXPECT_EQ(m_device->Counts().aReports[0], SetOutput(0x1A));
}

TEST_F(HidDeviceTest, ReadStateGivesTheSensors) {
  PlugAndOpen();
  m_rig.With([](TrackModel& model) { return model.Place(fGateB); });
  EXPECT_EQ(Exchange(ReadState), 64);
  EXPECT_EQ(m_answer[2], 0x28);
  EXPECT_EQ(m_answer[3], 0x00);
  ExpectCounts(1, 1);
}

TEST_F(HidDeviceTest, KernelPassesReportsOnInTheLengthTheyWereWritten) {
  PlugAndOpen({.iOutputLength = 19});
  EXPECT_EQ(Exchange(SetOutput(0x05, 19)), 64);
  EXPECT_EQ(Exchange(ReadState), 64);
  EXPECT_EQ(Exchange(SetOutput(0x06, 20)), 64);
  const std::vector<ReportBytes> aExpected{SetOutput(0x05, 19), ReadState, SetOutput(0x06, 20)};
  EXPECT_EQ(m_device->Counts().aReports, aExpected);
}

TEST_F(HidDeviceTest, InputReportHasItsDeclaredLength) {
  PlugAndOpen({.iInputLength = 20});
  EXPECT_EQ(Exchange(ReadState), 20);
}

TEST_F(HidDeviceTest, ManyExchangesKeepTheirOrder) {
  PlugAndOpen();
  for (int i = 0; i < 200; ++i) {
    const bool bRead = i % 3 == 0;
    ASSERT_EQ(Exchange(bRead ? ReadState : SetOutput(i % 16)), 64);
    ASSERT_EQ(m_answer[0], bRead ? 3 : 4);
  }
  ExpectCounts(200, 200);
}

TEST_F(HidDeviceTest, NoCommandIsNotAnswered) {
  PlugAndOpen();
  EXPECT_EQ(Exchange({7, 7, 7}, iAWhile), 0);
  ExpectCounts(1, 0);
}

TEST_F(HidDeviceTest, SilentDeviceTimesOut) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Silent);
  EXPECT_EQ(Exchange(ReadState, iAWhile), 0);
  ExpectCounts(1, 0);
  m_device->SetFault(UhidFault::None);
  EXPECT_EQ(Exchange(ReadState), 64);
  ExpectCounts(2, 1);
}

TEST_F(HidDeviceTest, LateAnswerComesAfterTheTimeOut) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Late, 2 * iAWhile);
  EXPECT_EQ(Exchange(ReadState, iAWhile), 0);
  EXPECT_EQ(m_file->Read(m_answer, iPatience), 64);
  EXPECT_EQ(m_answer[2], 0x08);
  ExpectCounts(1, 1);
}

TEST_F(HidDeviceTest, GarbageIsPassedOn) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Garbage);
  EXPECT_EQ(Exchange(ReadState), 64);
  EXPECT_EQ(m_answer, ReportBytes(64, iGarbage));
  ExpectCounts(1, 1);
}

TEST_F(HidDeviceTest, ShortAnswerIsDroppedByTheKernel) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Short);
  EXPECT_EQ(Exchange(ReadState, iAWhile), 0);
  ExpectCounts(1, 1);
}

TEST_F(HidDeviceTest, FaultCanSpareTheFirstReports) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Garbage, 0, 2);
  Exchange(ReadState);
  EXPECT_EQ(m_answer[0], 3);
  Exchange(ReadState);
  EXPECT_EQ(m_answer[0], 3);
  Exchange(ReadState);
  EXPECT_EQ(m_answer[0], iGarbage);
  ExpectCounts(3, 3);
}

TEST_F(HidDeviceTest, VanishesBetweenWriteAndAnswer) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Vanish);
  EXPECT_TRUE(m_file->Write(ReadState));
  EXPECT_TRUE(WaitForDevices(0));
  EXPECT_EQ(m_file->Read(m_answer, iPatience), -1);
  EXPECT_FALSE(m_file->Write(ReadState));
  EXPECT_FALSE(m_device->Plugged());
  ExpectCounts(1, 0);
}

TEST_F(HidDeviceTest, VanishesDuringTheRead) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Vanish, iAWhile);
  EXPECT_EQ(Exchange(ReadState), -1);
  EXPECT_FALSE(m_device->Plugged());
  ExpectCounts(1, 0);
}

TEST_F(HidDeviceTest, UnplugIsSeenByWhoHoldsItOpen) {
  PlugAndOpen();
  m_device->Unplug();
  EXPECT_TRUE(WaitForDevices(0));
  EXPECT_FALSE(m_file->Write(ReadState));
  ExpectCounts(0, 0);
}

TEST_F(HidDeviceTest, ComesBackUnderAnotherNameWhileTheOldOneIsHeld) {
  PlugAndOpen();
  m_device->Unplug();
  m_device->Plug();
  ASSERT_TRUE(WaitFor([] {
    const auto aFound = ListDevices();
    return aFound.size() == 1 && aFound[0].sPath == "/dev/hidraw1";
  }));
  EXPECT_FALSE(m_file->Write(ReadState));
  m_file.emplace("/dev/hidraw1");
  EXPECT_EQ(Exchange(ReadState), 64);
  ExpectCounts(1, 1);
}

TEST_F(HidDeviceTest, ComesBackAfterItVanished) {
  PlugAndOpen();
  m_device->SetFault(UhidFault::Vanish);
  EXPECT_EQ(Exchange(ReadState), -1);
  m_file.reset();
  m_device->SetFault(UhidFault::None);
  m_device->Plug();
  ASSERT_TRUE(WaitForDevices(1));
  m_file.emplace(ListDevices()[0].sPath);
  EXPECT_EQ(Exchange(ReadState), 64);
  ExpectCounts(2, 1);
}

TEST_F(HidDeviceTest, TwoDevicesStandSideBySide) {
  PlugAndOpen();
  UhidDevice other(m_rig, {.iProduct = 67});
  other.Plug();
  ASSERT_TRUE(WaitForDevices(2));
  HidFile file("/dev/hidraw1");
  EXPECT_TRUE(file.Write(ReadState));
  EXPECT_EQ(file.Read(m_answer, iPatience), 64);
  ExpectCounts(0, 0);
  EXPECT_EQ(other.Counts().iAnswers, 1);
}

}  // namespace
}  // namespace glidetrak::bench
