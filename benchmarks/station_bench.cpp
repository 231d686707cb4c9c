// Costs inside the station, without a window. Each line carries its limit in the name of the
// counter beside it; `limit_share` is the measured time divided by the limit, so that a figure
// under 1 is within it.

#include <benchmark/benchmark.h>

#include <QByteArray>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "language/Expressions.h"
#include "language/ResolveGoto.h"
#include "language/RunState.h"
#include "language/Statements.h"
#include "shell/Events.h"
#include "shell/StartUp.h"
#include "track/SystemTick.h"
#include "virtual/VirtualPlatform.h"

namespace {

using namespace glidetrak;

constexpr double fMicrosecond = 1e-6;

/// The station in Program mode with that program in the editor.
class BenchStation {
 public:
  explicit BenchStation(const QString& sProgram) {
    m_platform.rig.AttachParallel();
    WireEvents();
    Form_Load({});
    txtProgram.SetText(sProgram);
  }
  VirtualPlatform& platform() { return m_platform; }

 private:
  VirtualPlatform m_platform;
};

void TellLimit(benchmark::State& state, double fSeconds) {
  state.counters["limit_s"] = fSeconds;
  state.counters["limit_share"] = benchmark::Counter(
      fSeconds, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// As many A=1 lines as a program may hold: 32,764 characters.
QString LargestProgram() {
  QString sProgram = QString("A=1\r\n").repeated(6552);
  return sProgram + "A=12";
}

void CompileAndResolveLargest(benchmark::State& state) {
  BenchStation station(LargestProgram());
  for (auto _ : state) {
    bNeedCompile = true;
    bProgramRunning = true;
    if (!CompileProgram()) state.SkipWithError("the program did not compile");
    for (lCurrentLine = 0; lCurrentLine < lLineCount; ++lCurrentLine) ResolveGotoLine(lCurrentLine);
  }
  TellLimit(state, 10'000 * fMicrosecond);
}

void ExecuteOneLine(benchmark::State& state, const char* sLine) {
  BenchStation station(QString(sLine) + "\r\nENDIF");
  txtProgram.SetText(QString(sLine).startsWith("IF") ? txtProgram.Text() : QString(sLine));
  bNeedCompile = true;
  if (!CompileProgram()) state.SkipWithError("the line did not compile");
  bProgramRunning = true;
  for (auto _ : state) {
    lCurrentLine = 0;
    bInIfBlock = false;
    if (ExecuteProgramLine(false) == LineResult::Stopped) state.SkipWithError("the line stopped");
  }
  TellLimit(state, 20 * fMicrosecond);
}

/// The tick with nothing to tell, and with the adapter's exchange that costs nothing here.
void IdleTick(benchmark::State& state) {
  BenchStation station("");
  station.platform().RunFor(1000);
  for (auto _ : state) tmrSystem_Timer();
  station.platform().rig.aCalls.clear();
  TellLimit(state, 20 * fMicrosecond);
}

}  // namespace

BENCHMARK(CompileAndResolveLargest)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ExecuteOneLine, Let, "LET A=B+C*12");
BENCHMARK_CAPTURE(ExecuteOneLine, If, "IF A=1");
BENCHMARK_CAPTURE(ExecuteOneLine, Print, "PRINT \"COUNT\",A");
BENCHMARK(IdleTick)->Iterations(200000);

BENCHMARK_MAIN();
