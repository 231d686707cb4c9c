// The HID devices of the machine as the station asks for them.

#include "hid_windows/HidOnWindows.h"

namespace glidetrak {
namespace {

using bench::ReportBytes;

TEST_F(HidOnWindows, ListsADeviceWithItsPathAndIds) {
  const PipeAdapter& adapter = Plug();
  const std::vector<HidListing> aListed = m_devices.Devices(3326, 70);
  ASSERT_EQ(aListed.size(), 1u);
  EXPECT_EQ(aListed[0].path, PathOf(adapter));
  EXPECT_EQ(aListed[0].iVendorID, 3326);
  EXPECT_EQ(aListed[0].iProductID, 70);
}

TEST_F(HidOnWindows, ListsAPathOnceThatIsToldTwice) {
  m_system.aMorePaths = {Plug().sPath};
  EXPECT_EQ(m_devices.Devices(3326, 70).size(), 1u);
}

TEST_F(HidOnWindows, ListsADeviceWithoutTheRightToItsReports) {
  Plug();
  ASSERT_EQ(m_devices.Devices(3326, 70).size(), 1u);
  ASSERT_FALSE(m_system.aAsked.empty());
  for (const Asked& asked : m_system.aAsked) EXPECT_FALSE(asked.MayExchange());
}

TEST_F(HidOnWindows, ListsIdsFrom0x8000AsNegative) {
  Plug({.iVendor = 0xFEDC, .iProduct = 0x8001});
  const std::vector<HidListing> aListed = m_devices.Devices(-0x0124, -0x7FFF);
  ASSERT_EQ(aListed.size(), 1u);
  EXPECT_EQ(aListed[0].iVendorID, -0x0124);
}

/// Its texts come from the device itself, and some devices take seconds over that.
TEST_F(HidOnWindows, AsksADeviceOfSomebodyElseForNothingButItsIds) {
  Plug({.iVendor = 0x1234});
  Plug({.iProduct = 0x0047}, L"sister");
  EXPECT_TRUE(m_devices.Devices(3326, 70).empty());
  ASSERT_EQ(m_system.aAsked.size(), 2u);
  for (const Asked& asked : m_system.aAsked) EXPECT_EQ(asked.question, HidQuestion::Attributes);
}

TEST_F(HidOnWindows, OpensNoDeviceThatIsGone) {
  PipeAdapter& adapter = Plug();
  adapter.Unplug();
  EXPECT_EQ(m_devices.Open(PathOf(adapter)), 0);
}

TEST_F(HidOnWindows, OpensNoDeviceThatSomebodyElseHasToThemselves) {
  PipeAdapter& adapter = m_system.Add();
  adapter.Lock();
  adapter.Plug();
  ASSERT_EQ(m_devices.Devices(3326, 70).size(), 1u);
  EXPECT_EQ(m_devices.Open(PathOf(adapter)), 0);
  EXPECT_TRUE(WaitFor([&] { return adapter.OpenHandles() == 0; }));
}

TEST_F(HidOnWindows, ClosesWhatItOpened) {
  const PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  EXPECT_TRUE(WaitFor([&] { return adapter.OpenHandles() == 1; }));
  m_devices.Close(lHandle);
  EXPECT_TRUE(WaitFor([&] { return adapter.OpenHandles() == 0; }));
}

TEST_F(HidOnWindows, TellsTheAttributesOfAnOpenDevice) {
  const qint32 lHandle = Opened(Plug({.iVersion = 0x0200}));
  HidAttributes attributes;
  ASSERT_TRUE(m_devices.Attributes(lHandle, attributes));
  EXPECT_EQ(attributes.iVendorID, 3326);
  EXPECT_EQ(attributes.iProductID, 70);
  EXPECT_EQ(attributes.iVersionNumber, 0x0200);
}

TEST_F(HidOnWindows, TellsTheReportLengthsOfTheCapabilities) {
  const qint32 lHandle = Opened(Plug({.iInput = 9, .iOutput = 301}));
  HidReportLengths lengths;
  ASSERT_TRUE(m_devices.ReportLengths(lHandle, lengths));
  EXPECT_EQ(lengths.iInput, 9);
  EXPECT_EQ(lengths.iOutput, 301);
}

TEST_F(HidOnWindows, AsksForTheReportLengthsWithoutTheRightToReportsAndCloses) {
  const PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  m_system.aAsked.clear();
  HidReportLengths lengths;
  ASSERT_TRUE(m_devices.ReportLengths(lHandle, lengths));
  ASSERT_EQ(m_system.aAsked.size(), 1u);
  EXPECT_EQ(m_system.aAsked[0].question, HidQuestion::Capabilities);
  EXPECT_FALSE(m_system.aAsked[0].MayExchange());
  EXPECT_TRUE(WaitFor([&] { return adapter.OpenHandles() == 1; }));
}

TEST_F(HidOnWindows, LeavesTheReportLengthsOfADeviceThatDoesNotTellThem) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  HidReportLengths lengths{7, 8};
  adapter.told.bTells = false;
  EXPECT_FALSE(m_devices.ReportLengths(lHandle, lengths));
  EXPECT_EQ(lengths.iInput, 7);
  EXPECT_EQ(lengths.iOutput, 8);
}

TEST_F(HidOnWindows, TellsNoReportLengthsOfADeviceThatIsGone) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  adapter.Unplug();
  HidReportLengths lengths{7, 8};
  EXPECT_FALSE(m_devices.ReportLengths(lHandle, lengths));
  EXPECT_EQ(lengths.iInput, 7);
}

TEST_F(HidOnWindows, FindsADeviceWhosePathHasLettersOutsideAscii) {
  PipeAdapter& adapter = Plug({}, L"B\u00E4hn\u0113");
  const qint32 lHandle = Opened(adapter);
  HidReportLengths lengths;
  EXPECT_TRUE(m_devices.ReportLengths(lHandle, lengths));
}

TEST_F(HidOnWindows, AReportWithoutANumberBeginsWithAZero) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  SendNumbered(adapter, 5, 5);
  const QByteArray report = ReadNow(lHandle);
  ASSERT_EQ(report.size(), 65);
  EXPECT_EQ(report[0], 0);
  EXPECT_EQ(report[1], 5);
}

class NumberedReports : public HidOnWindows, public testing::WithParamInterface<HidTold> {};

TEST_P(NumberedReports, BeginWithTheirNumber) {
  PipeAdapter& adapter = Plug(GetParam());
  const qint32 lHandle = Opened(adapter);
  adapter.Send({7, 1, 2, 3});
  const QByteArray report = ReadNow(lHandle, 4);
  EXPECT_EQ(report, QByteArray("\x07\x01\x02\x03", 4));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NumberedReports,
    testing::Values(HidTold{.iInput = 4, .iReport = 7},
                    HidTold{.iInput = 4, .iReport = 7, .iValues = 3},
                    HidTold{.iInput = 4, .iReport = 7, .iValues = 0, .iButtons = 2}));

TEST_F(HidOnWindows, AReadTakesItsTimeAndNoLonger) {
  const qint32 lHandle = Opened(Plug());
  QByteArray report(65, '\0');
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(m_devices.Read(lHandle, 300, report), HidReadResult::TimeOut);
  EXPECT_GE(clock.elapsed(), 280);
  EXPECT_LE(clock.elapsed(), iAtOnce);
}

TEST_F(HidOnWindows, AReportThatComesAfterATimeOutIsBroughtByTheNextRead) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  EXPECT_TRUE(ReadNow(lHandle).isEmpty());
  SendNumbered(adapter, 5, 6);
  EXPECT_EQ(ReadNow(lHandle).at(1), 5);
  EXPECT_EQ(ReadNow(lHandle).at(1), 6);
}

TEST_F(HidOnWindows, AReadOfADeviceThatIsGoneFailsAtOnce) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  adapter.Unplug();
  QByteArray report(65, '\0');
  EXPECT_EQ(m_devices.Read(lHandle, 5000, report), HidReadResult::Failed);
}

TEST_F(HidOnWindows, EachOfTwoHandlesHasAQueueOfItsOwn) {
  PipeAdapter& adapter = Plug();
  const qint32 lFirst = Opened(adapter);
  const qint32 lSecond = Opened(adapter);
  SendNumbered(adapter, 1, 2);
  m_devices.DropInput(lFirst);
  EXPECT_TRUE(ReadNow(lFirst).isEmpty());
  EXPECT_EQ(ReadNow(lSecond).at(1), 1);
  EXPECT_EQ(ReadNow(lSecond).at(1), 2);
}

TEST_F(HidOnWindows, DropsAQueueThatIsFull) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  SendNumbered(adapter, 1, 100);
  m_devices.DropInput(lHandle);
  EXPECT_TRUE(ReadNow(lHandle).isEmpty());
}

/// A read that came to nothing goes on in the system and holds the first report.
TEST_F(HidOnWindows, DropsAQueueThatIsFullAndTheReportOfAReadUnderWay) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  m_devices.DropInput(lHandle);
  SendNumbered(adapter, 1, 100);
  m_devices.DropInput(lHandle);
  EXPECT_TRUE(ReadNow(lHandle).isEmpty());
}

TEST_F(HidOnWindows, DropsFromADeviceThatSendsWithoutEndWhatAQueueHolds) {
  PipeAdapter& adapter = Plug({.iInput = 2});
  const qint32 lHandle = Opened(adapter);
  std::atomic<bool> bEnd = false;
  std::thread sender([&] {
    while (!bEnd) SendNumbered(adapter, 1, 1);
  });
  QElapsedTimer clock;
  clock.start();
  for (int i = 0; i < 10; ++i) m_devices.DropInput(lHandle);
  EXPECT_LE(clock.elapsed(), iAtOnce);
  bEnd = true;
  sender.join();
}

TEST_F(HidOnWindows, DropsNothingAndDoesNotWaitWhereNothingWaits) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  QElapsedTimer clock;
  clock.start();
  for (int i = 0; i < 100; ++i) m_devices.DropInput(lHandle);
  EXPECT_LE(clock.elapsed(), iAtOnce);
  adapter.Unplug();
  m_devices.DropInput(lHandle);
}

TEST_F(HidOnWindows, AHandleThatIsNotOpenDoesNothing) {
  QByteArray report(65, '\0');
  HidAttributes attributes;
  HidReportLengths lengths;
  m_devices.Close(5);
  m_devices.DropInput(5);
  EXPECT_FALSE(m_devices.Attributes(5, attributes));
  EXPECT_FALSE(m_devices.ReportLengths(5, lengths));
  EXPECT_EQ(m_devices.Write(5, report), 0);
  EXPECT_EQ(m_devices.Read(5, 0, report), HidReadResult::Failed);
}

}  // namespace
}  // namespace glidetrak
