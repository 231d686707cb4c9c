// The roads on which a process ends, each in a process of its own: this program once more, with the
// one test that ends itself. It tells by letters in brackets what was done.

#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

#include "platform/ProcessEnd.h"
#include "platform/windows/Api.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

const char* const sRoadVariable = "GLIDETRAK_END_ROAD";

void Tell(const char* sDeed) {
  DWORD lCount = 0;
  ::WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), sDeed, 3, &lCount, nullptr);
}

void OverflowStack(volatile char* pBefore) {
  volatile char aRoom[4096];
  aRoom[0] = *pBefore;
  if (aRoom[0] == 1) return;
  OverflowStack(aRoom);
  aRoom[1] = aRoom[0];
}

void EndSession(WPARAM lReally) {
  MSG message{};
  message.message = WM_ENDSESSION;
  message.wParam = lReally;
  qintptr lResult = 0;
  QAbstractEventDispatcher::instance()->filterNativeEvent("windows_generic_MSG", &message,
                                                          &lResult);
}

/// Comes to a crash only through a value that the compiler does not see.
volatile int* volatile pNowhere = nullptr;

void Leave(const QByteArray& road) {
  volatile char cFirst = 0;
  if (road == "throw") throw std::runtime_error("nobody catches this");
  if (road == "abort") std::abort();
  if (road == "crash") *pNowhere = 1;
  if (road == "stack") OverflowStack(&cFirst);
  if (road == "exit") std::exit(1);
  if (road == "session over") EndSession(TRUE);
  if (road == "session stays") EndSession(FALSE);
  if (road == "ctrl c") GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
  if (road != "ctrl c") TerminateProcess(GetCurrentProcess(), 0);
}

TEST(EndOfThisProcess, DISABLED_ComesByTheRoadThatIsNamed) {
  SetErrorMode(SEM_NOGPFAULTERRORBOX | SEM_FAILCRITICALERRORS);
  int iArguments = 1;
  char name[] = "station";
  char* aArguments[] = {name, nullptr};
  QCoreApplication application(iArguments, aArguments);
  const QByteArray road = qgetenv(sRoadVariable);
  WatchProcessEnd({[] {
                     Tell("<t>");
                     TerminateProcess(GetCurrentProcess(), 0);
                   },
                   [] { Tell("<e>"); },
                   road == "slow deed" ? +[] { Tell("<c>"); Sleep(60'000); }
                                                           : +[] { Tell("<c>"); }});
  QTimer::singleShot(0, [road] { Leave(road == "slow deed" ? QByteArray("crash") : road); });
  QCoreApplication::exec();
}

struct RoadRow {
  const char* sRoad;
  const char* sDone;  ///< t: told to end, e: the last deed, c: the deed of a crash
};

const RoadRow RoadRows[] = {
    {"throw", "c"},     {"abort", "c"},        {"crash", "c"},
    {"stack", "c"},     {"exit", "e"},         {"ctrl c", "t"},
    {"slow deed", "c"}, {"session over", "e"}, {"session stays", ""},
};

QByteArray DoneOn(const char* sRoad) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(sRoadVariable, sRoad);
  process.setProcessEnvironment(environment);
  wchar_t aProgram[MAX_PATH];
  GetModuleFileNameW(nullptr, aProgram, MAX_PATH);
  process.start(QString::fromWCharArray(aProgram),
                {"--gtest_filter=EndOfThisProcess.*", "--gtest_also_run_disabled_tests",
                 "--gtest_catch_exceptions=0", "--gtest_brief=1", "--gtest_print_time=0"});
  if (!process.waitForFinished(20'000)) {
    process.kill();
    return "not at its end in time";
  }
  const QString sTold = process.readAllStandardOutput();
  QByteArray done;
  for (auto found = QRegularExpression("<([a-z])>").globalMatch(sTold); found.hasNext();) {
    done += found.next().captured(1).toLatin1();
  }
  return done;
}

TEST(EndOfAProcess, DoesWhatIsDueOnItsRoadAndOnce) {
  for (const RoadRow& row : RoadRows) EXPECT_EQ(DoneOn(row.sRoad), row.sDone) << row.sRoad;
}

}  // namespace
}  // namespace glidetrak
