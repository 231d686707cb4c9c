// The station on a device that is found, opened, driven, lost and found again.

#include "hid_windows/StationHid.h"

#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "track/SystemTick.h"

namespace glidetrak {
namespace {

using bench::TrackModel;

constexpr int iGateBits = 0x30;

int OpenSystemHandles() {
  DWORD iCount = 0;
  GetProcessHandleCount(GetCurrentProcess(), &iCount);
  return static_cast<int>(iCount);
}

TEST_F(StationHid, FindsNothingWhereNothingIs) {
  EXPECT_FALSE(m_hid.bDeviceConnected());
  EXPECT_FALSE(m_hid.WriteReport(SetOutput(1)));
  EXPECT_FALSE(m_hid.ReadReport());
}

TEST_F(StationHid, OpensNoDeviceOfAnotherVendorOrProduct) {
  Plug({.iVendor = 0x0CFD});
  Plug({.iProduct = 0x0047}, L"sister");
  m_hid.iProductID = 70;
  EXPECT_FALSE(m_hid.bDeviceConnected());
  EXPECT_EQ(Openings(), 0);
}

TEST_F(StationHid, PassesADeviceOfAnotherVersionAndClosesIt) {
  const PipeAdapter& adapter = Plug({.iVersion = 0x0200});
  m_hid.iProductID = 70;
  m_hid.iVersionNumber = 0x0100;
  EXPECT_FALSE(m_hid.bDeviceConnected());
  EXPECT_EQ(Openings(), 1);
  EXPECT_TRUE(WaitFor([&] { return adapter.OpenHandles() == 0; }));
}

TEST_F(StationHid, TheFirstOfTwoDevicesWins) {
  Plug();
  const PipeAdapter& second = Plug({}, L"second");
  m_hid.iProductID = 70;
  ASSERT_TRUE(m_hid.bDeviceConnected());
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(1)) && m_hid.ReadReport());
  EXPECT_EQ(Adapter().Reports().size(), 1u);
  EXPECT_TRUE(second.Reports().empty());
}

TEST_F(StationHid, OpensTheDeviceOnceForWritesAndOnceForReads) {
  PlugAndOpen();
  EXPECT_EQ(Openings(), 2);
  EXPECT_TRUE(WaitFor([&] { return Adapter().OpenHandles() == 2; }));
}

TEST_F(StationHid, ExchangesWholeReportsBehindAnIdOfZero) {
  PlugAndOpen();
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(0x1A)));
  const auto reply = m_hid.ReadReport();
  ASSERT_TRUE(reply);
  EXPECT_EQ(reply->size(), 64) << "one less than the declared length of 65";
  EXPECT_EQ(reply->at(0), 4) << "behind the id";
  ASSERT_EQ(Adapter().Reports().size(), 1u);
  EXPECT_EQ(Adapter().Reports()[0].size(), 65u) << "zero-filled to the declared length";
  EXPECT_EQ(Adapter().Reports()[0][0], 0) << "the id";
  EXPECT_EQ(Power(), 10);
}

TEST_F(StationHid, SendsWhatFitsAndRefusesOneByteMore) {
  PlugAndOpen({.iOutput = 20});
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(5)));
  EXPECT_TRUE(m_hid.ReadReport());
  EXPECT_FALSE(m_hid.WriteReport(SetOutput(5, 20)));
  EXPECT_EQ(Adapter().Reports().size(), 1u);
}

TEST_F(StationHid, ASilentDeviceTimesOutIsClosedAndReopenedByTheNextReport) {
  PlugAndOpen();
  Adapter().SetFault(AdapterFault::Silent);
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(5)));
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(m_hid.ReadReport());
  EXPECT_GE(clock.elapsed(), 950);
  EXPECT_LE(clock.elapsed(), iLongestExchange);
  EXPECT_TRUE(WaitFor([&] { return Adapter().OpenHandles() == 0; }));
  Adapter().SetFault(AdapterFault::None);
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(6)));
  EXPECT_TRUE(m_hid.ReadReport());
  EXPECT_EQ(Openings(), 4);
}

TEST_F(StationHid, ADeviceThatTakesNoReportBlocksForAWriteAndARead) {
  PlugAndOpen();
  ASSERT_TRUE(WaitFor([&] { return Adapter().OpenHandles() == 2; }));
  Adapter().SetFault(AdapterFault::Deaf);
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(m_hid.WriteReport(SetOutput(5)));
  EXPECT_FALSE(m_hid.ReadReport());
  EXPECT_LE(clock.elapsed(), 2 * iLongestExchange);
  Adapter().SetFault(AdapterFault::None);
  EXPECT_TRUE(WaitFor([&] { return Adapter().OpenHandles() == 0; }));
  EXPECT_TRUE(Adapter().Reports().empty()) << "the report was called off when the read had closed";
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(0)));
  EXPECT_TRUE(m_hid.ReadReport());
}

TEST_F(StationHid, ADeviceThatVanishesBetweenWriteAndReadFailsAtOnce) {
  PlugAndOpen();
  Adapter().SetFault(AdapterFault::Vanish);
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(5)));
  ASSERT_TRUE(WaitFor([&] { return !Adapter().IsPlugged(); }));
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(m_hid.ReadReport());
  EXPECT_LE(clock.elapsed(), iAtOnce);
}

TEST_F(StationHid, ADeviceThatVanishesDuringAReadFailsAtOnceAndComesBack) {
  PlugAndOpen();
  Adapter().SetFault(AdapterFault::Silent);
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(5)));
  std::thread unplug([&] {
    Sleep(200);
    Adapter().Unplug();
  });
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(m_hid.ReadReport());
  EXPECT_LE(clock.elapsed(), iAtOnce);
  unplug.join();
  EXPECT_FALSE(m_hid.WriteReport(SetOutput(5)));
  Adapter().SetFault(AdapterFault::None);
  Adapter().Plug();
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(5)));
  EXPECT_TRUE(m_hid.ReadReport());
}

TEST_F(StationHid, ADeviceThatIsGoneBeforeAWriteHealsByTheReadBehindIt) {
  PlugAndOpen();
  Adapter().Unplug();
  EXPECT_FALSE(m_hid.WriteReport(SetOutput(5)));
  Adapter().Plug();
  EXPECT_FALSE(m_hid.ReadReport()) << "the old handle tells that its device is gone";
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(5)));
  EXPECT_TRUE(m_hid.ReadReport());
}

TEST_F(StationHid, FiftyPlugCyclesLeakNoHandle) {
  PlugAndOpen();
  int iBefore = 0;
  for (int i = 0; i < 50; ++i) {
    Adapter().Unplug();
    m_hid.WriteReport(SetOutput(1));
    EXPECT_FALSE(m_hid.ReadReport()) << "which is what tells the class that the device is gone";
    Adapter().Plug();
    ASSERT_TRUE(m_hid.WriteReport(SetOutput(1)) && m_hid.ReadReport().has_value()) << i;
    Adapter().Unplug();
    if (i == 0) iBefore = OpenSystemHandles();
  }
  EXPECT_LE(OpenSystemHandles(), iBefore + 5);
}

TEST_F(StationHid, AReopenedDeviceWhoseLengthsCannotBeLearntIsDrivenWithTheEarlierOnes) {
  PlugAndOpen();
  Adapter().SetFault(AdapterFault::Silent);
  ASSERT_TRUE(m_hid.WriteReport(SetOutput(5)));
  ASSERT_FALSE(m_hid.ReadReport()) << "which closes the device";
  Adapter().SetFault(AdapterFault::None);
  m_system.bLengthsHidden = true;
  EXPECT_TRUE(m_hid.WriteReport(SetOutput(0)));
  EXPECT_TRUE(m_hid.ReadReport());
  EXPECT_EQ(Power(), 0);
}

TEST_F(StationHid, TheAdapterLayerTakesTheRigAndTheTickReadsIt) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  EXPECT_TRUE(bLinkUp && bUsbLink);
  m_system.rig.With([](TrackModel& model) { model.Place(bench::fGateB); });
  tmrSystem_Timer();
  EXPECT_EQ(lInputImage & iGateBits, 0x20);
  lOutputImage = 0x19;
  WriteOutputPort();
  EXPECT_EQ(Power(), 9);
}

TEST_F(StationHid, ADeviceThatSomebodyElseHasToThemselvesIsNotTakenForALink) {
  PipeAdapter& adapter = m_system.Add();
  adapter.Lock();
  adapter.Plug();
  EXPECT_FALSE(UsbOpenAdapter());
}

TEST_F(StationHid, AVanishedAdapterReadsZeroAndHealsByItself) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  ASSERT_NE(UsbReadInput(), 0) << "it is day";
  Adapter().Unplug();
  EXPECT_EQ(UsbReadInput(), 0);
  EXPECT_TRUE(bLinkUp) << "the label goes on saying detected";
  Adapter().Plug();
  EXPECT_NE(UsbReadInput(), 0);
}

TEST_F(StationHid, ALateAnswerCostsOneTimeOutAndIsTakenForNoLaterOne) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  Adapter().SetFault(AdapterFault::Late, 1300);
  EXPECT_EQ(UsbReadInput(), 0);
  Adapter().SetFault(AdapterFault::None);
  m_system.rig.With([](TrackModel& model) { model.Place(bench::fGateB); });
  for (int i = 0; i < 20; ++i) EXPECT_EQ(UsbReadInput() & iGateBits, 0x20) << i;
}

TEST_F(StationHid, ReportsForWhichNobodyAskedAreTakenForNoAnswer) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  m_system.rig.With([](TrackModel& model) { model.Place(bench::fGateB); });
  for (int i = 0; i < 5; ++i) {
    for (int iReport = 0; iReport < 100; ++iReport) Adapter().Send(bench::ReportBytes(65));
    EXPECT_EQ(UsbReadInput() & iGateBits, 0x20) << i;
  }
}

TEST_F(StationHid, ShutDownHandsTheRigItsZeroByteAndClosesTheDevice) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  lOutputImage = 0x1F;
  WriteOutputPort();
  ShutDownHardware();
  EXPECT_EQ(Power(), 0);
  EXPECT_TRUE(WaitFor([&] { return Adapter().OpenHandles() == 0; }));
}

TEST_F(StationHid, TheLastByteOfACrashIsWrittenFromAnotherThread) {
  Plug();
  ASSERT_TRUE(CheckHardware());
  lOutputImage = 0x1F;
  WriteOutputPort();
  ASSERT_EQ(Power(), 15);
  std::thread(StopRigInCrash).join();
  EXPECT_TRUE(WaitFor([&] { return Adapter().Reports().size() == 2; }));
  EXPECT_EQ(Power(), 0);
}

}  // namespace
}  // namespace glidetrak
