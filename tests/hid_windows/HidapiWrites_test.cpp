// Output reports on their way to a device that takes them at once, late or not at all.

#include "hid_windows/HidOnWindows.h"

/// The system's WriteFile as this program calls it.
extern "C" decltype(&WriteFile) pWriteFile __asm__("__imp__WriteFile@20");

namespace glidetrak {
namespace {

using bench::ReportBytes;

const decltype(&WriteFile) pSystemWrite = pWriteFile;

/// While it lives this program's writes are carried out by a call of the test's.
class OtherWrites {
 public:
  explicit OtherWrites(decltype(&WriteFile) pOther) { pWriteFile = pOther; }
  ~OtherWrites() { pWriteFile = pSystemWrite; }
  OtherWrites(const OtherWrites&) = delete;
  OtherWrites& operator=(const OtherWrites&) = delete;
};

/// The write is over when the call returns.
BOOL WINAPI WriteAtOnce(HANDLE device, const void* pReport, DWORD iLength, DWORD* pCount,
                        OVERLAPPED* pOverlapped) {
  DWORD iWritten = 0;
  pSystemWrite(device, pReport, iLength, pCount, pOverlapped);
  return GetOverlappedResult(device, pOverlapped, &iWritten, TRUE);
}

const void* pHeldReport = nullptr;

/// The system notes where the report stands, and the device does not fetch it.
BOOL WINAPI HoldWrite(HANDLE, const void* pReport, DWORD, DWORD*, OVERLAPPED*) {
  pHeldReport = pReport;
  SetLastError(ERROR_IO_PENDING);
  return FALSE;
}

TEST_F(HidOnWindows, WritesAWholeReportWithItsIdFirst) {
  const PipeAdapter& adapter = Plug();
  const QByteArray report = (QByteArray(1, '\0') + SetOutput(0x1A)).leftJustified(65, '\0');
  EXPECT_EQ(m_devices.Write(Opened(adapter), report), 65);
  ASSERT_TRUE(WaitFor([&] { return adapter.Reports().size() == 1; }));
  EXPECT_EQ(adapter.Reports()[0], ReportBytes(report.begin(), report.end()));
}

TEST_F(HidOnWindows, AReportThatTheSystemHasCarriedOutAtOnceCountsAsWritten) {
  const PipeAdapter& adapter = Plug();
  const OtherWrites writes(WriteAtOnce);
  EXPECT_EQ(m_devices.Write(Opened(adapter), QByteArray(65, '\5')), 65);
  EXPECT_TRUE(WaitFor([&] { return adapter.Reports().size() == 1; }));
}

/// The adapter fetches a report from where the system was told that it stands, whenever it does.
TEST_F(HidOnWindows, AReportThatIsNotTakenInTimeStaysAsItIsUntilItsHandleIsClosed) {
  const qint32 lHandle = Opened(Plug());
  const OtherWrites writes(HoldWrite);
  QByteArray report(65, '\5');
  EXPECT_EQ(m_devices.Write(lHandle, report), 0);
  report.fill('\7');
  EXPECT_EQ(QByteArray(static_cast<const char*>(pHeldReport), 65), QByteArray(65, '\5'));
}

TEST_F(HidOnWindows, WritesNothingToADeviceThatIsGone) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  adapter.Unplug();
  EXPECT_EQ(m_devices.Write(lHandle, QByteArray(65, '\0')), 0);
}

TEST_F(HidOnWindows, AWriteThatIsNotTakenEndsAfterASecond) {
  PipeAdapter& adapter = Plug();
  const qint32 lHandle = Opened(adapter);
  ASSERT_TRUE(WaitFor([&] { return adapter.OpenHandles() == 1; }));
  adapter.SetFault(AdapterFault::Deaf);
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(m_devices.Write(lHandle, QByteArray(65, '\1')), 0);
  EXPECT_GE(clock.elapsed(), 950);
  EXPECT_LE(clock.elapsed(), iLongestExchange);
}

}  // namespace
}  // namespace glidetrak
