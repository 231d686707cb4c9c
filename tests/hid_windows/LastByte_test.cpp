// The last byte of a station that ends by another road than shut-down: a process of its own, this
// program once more, drives the rig that stands here and then ends.

#include <QCoreApplication>
#include <QProcess>
#include <cstdlib>

#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "hid_windows/StationHid.h"
#include "platform/ProcessEnd.h"

namespace glidetrak {
namespace {

const char* const sRoadVariable = "GLIDETRAK_END_ROAD";
const char* const sPathVariable = "GLIDETRAK_HID_PATH";

/// Comes to a crash only through a value that the compiler does not see.
volatile int* volatile pNowhere = nullptr;

class LastByteOnUsb : public StationHid {
 protected:
  /// The bytes of the reports that set the output.
  std::vector<int> Bytes() {
    std::vector<int> aBytes;
    for (const bench::ReportBytes& report : Adapter().Reports()) {
      if (report.at(1) == 4) aBytes.push_back(report.at(17));
    }
    return aBytes;
  }

  /// Runs a station that ends by that road.
  void EndBy(const QString& sRoad) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(sRoadVariable, sRoad);
    environment.insert(sPathVariable, QString::fromStdWString(Adapter().sPath));
    process.setProcessEnvironment(environment);
    wchar_t aProgram[MAX_PATH];
    GetModuleFileNameW(nullptr, aProgram, MAX_PATH);
    process.start(QString::fromWCharArray(aProgram),
                  {"--gtest_filter=LastByteOnUsb.DISABLED_OfThisProcess",
                   "--gtest_also_run_disabled_tests", "--gtest_catch_exceptions=0"});
    ASSERT_TRUE(process.waitForFinished(20'000));
  }
};

TEST_F(LastByteOnUsb, DISABLED_OfThisProcess) {
  SetErrorMode(SEM_NOGPFAULTERRORBOX | SEM_FAILCRITICALERRORS);
  int iArguments = 1;
  char name[] = "station";
  char* aArguments[] = {name, nullptr};
  const QCoreApplication application(iArguments, aArguments);
  m_system.AddAt(qEnvironmentVariable(sPathVariable).toStdWString());
  WatchProcessEnd({[] {}, StopRigAtEnd, StopRigInCrash});
  ASSERT_TRUE(CheckHardware());
  lOutputImage = 0x1F;
  WriteOutputPort();
  if (qgetenv(sRoadVariable) == "crash") *pNowhere = 1;
  if (qgetenv(sRoadVariable) == "abort") std::abort();
  std::exit(1);
}

TEST_F(LastByteOnUsb, IsZeroOnEveryRoadThatEndsAProcess) {
  for (const char* sRoad : {"crash", "abort", "exit"}) {
    m_system.aAdapters.clear();
    Plug();
    EndBy(sRoad);
    EXPECT_TRUE(WaitFor([&] { return Bytes() == std::vector<int>{0x1F, 0}; })) << sRoad;
  }
}

}  // namespace
}  // namespace glidetrak
