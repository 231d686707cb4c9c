// Figures of the real window with the bench rig: window_bench loop|tick|emergency|idle|open. Needs
// a display; run it through benchmarks/run, which brings one along.

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

#include "common/SharedState.h"
#include "form/DesignState.h"
#include "form/frmGlidetrak.h"
#include "language/RunControl.h"
#include "language/RunState.h"
#include "platform/HidapiHid.h"
#include "platform/ThisMachine.h"
#include "programs/ProgramFiles.h"
#include "shell/Events.h"
#include "shell/StartUp.h"
#include "view/View.h"
#include "view/ViewDesktop.h"

namespace {

using namespace glidetrak;

constexpr int iMeasuredTime = 10'000;  ///< milliseconds

/// Notes when the byte of a stopped motor is first handed to the adapter behind a press.
class TimedMachine : public ThisMachine {
 public:
  qint32 CallTrackport(const char* sOperation, std::initializer_list<qint32> arguments) override {
    if (QByteArray(sOperation) == "WriteAdapter" && (arguments.begin()[1] & 15) == 0) {
      if (m_lStopped == 0) m_lStopped = m_clock.nsecsElapsed();
    }
    return ThisMachine::CallTrackport(sOperation, arguments);
  }
  void NotePress() {
    m_clock.start();
    m_lStopped = 0;
  }
  double MillisecondsToStop() const { return static_cast<double>(m_lStopped) * 1e-6; }

 private:
  QElapsedTimer m_clock;
  qint64 m_lStopped = 0;
};

TimedMachine machine;

double Quantile(std::vector<double> aValues, double fShare) {
  if (aValues.empty()) return 0;
  std::sort(aValues.begin(), aValues.end());
  const auto iLast = static_cast<double>(aValues.size() - 1);
  return aValues[static_cast<size_t>(fShare * iLast)];
}

void WaitFor(int iMilliseconds) {
  QEventLoop loop;
  QTimer::singleShot(iMilliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

void RunFor(const char* sProgram, int iMilliseconds) {
  if (iControlMode == modeManual) cmdProgram.Click();
  txtProgram.SetText(sProgram);
  QTimer::singleShot(iMilliseconds, Qt::PreciseTimer, [] { StopProgram(); });
  cmdRunProgram.Click();
}

void MeasureLoop() {
  int iLines = 0;
  double fSeconds = 0;
  const auto original = txtProgram.SelectionSet.Function();
  QElapsedTimer clock;
  txtProgram.SelectionSet = [&](int iStart, int iLength) {
    original(iStart, iLength);
    if (!bProgramRunning || lCurrentLine >= 3) return;
    if (++iLines == 10) clock.start();  // behind the compile's and the resolve pass's selections
    if (iLines > 10) fSeconds = static_cast<double>(clock.nsecsElapsed()) * 1e-9;
  };
  RunFor("LABEL AGAIN\r\nLET A=1\r\nGOTO AGAIN", iMeasuredTime);
  std::printf("loop: %.2f lines a second (limit: at least 39.9)\n", (iLines - 10) / fSeconds);
}

std::vector<double> MeasureBareTimer() {
  std::vector<double> aIntervals;
  QElapsedTimer clock;
  QTimer timer;
  timer.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (clock.isValid()) aIntervals.push_back(static_cast<double>(clock.nsecsElapsed()) * 1e-6);
    clock.start();
  });
  timer.start(5);
  WaitFor(iMeasuredTime);
  return aIntervals;
}

std::vector<double> MeasureTicks() {
  std::vector<double> aIntervals;
  QElapsedTimer clock;
  const auto original = tmrSystem.Fired.Function();
  tmrSystem.Fired = [&] {
    if (clock.isValid() && tmrSystem.Interval == 5) {
      aIntervals.push_back(static_cast<double>(clock.nsecsElapsed()) * 1e-6);
    }
    clock.start();
    original();
  };
  RunFor("LABEL AGAIN\r\nLET A=1\r\nGOTO AGAIN", iMeasuredTime);
  tmrSystem.Fired = original;
  return aIntervals;
}

void MeasureTick() {
  const std::vector<double> aBare = MeasureBareTimer();
  const std::vector<double> aTicks = MeasureTicks();
  const double fRatio = Quantile(aTicks, 0.99) / Quantile(aBare, 0.99);
  std::printf(
      "tick: median %.2f ms (limit: 5.0), 99th percentile %.2f ms, %.2f times that of a bare "
      "timer (limit: 1.2), %zu ticks\n",
      Quantile(aTicks, 0.5), Quantile(aTicks, 0.99), fRatio, aTicks.size());
}

QWidget* FindWidget(const QString& sName) {
  for (QWidget* pWidget : QApplication::allWidgets()) {
    if (pWidget->objectName() == sName) return pWidget;
  }
  return nullptr;
}

void PressEmergency() {
  QWidget* pButton = FindWidget("btnEmergency");
  const QPointF place(10, 10);
  machine.NotePress();
  QCoreApplication::postEvent(
      pButton, new QMouseEvent(QEvent::MouseButtonPress, place, pButton->mapToGlobal(place),
                               Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
}

/// The stop ends the program, so each press belongs to a run of its own.
void MeasureEmergency() {
  std::vector<double> aDelays;
  cmdProgram.Click();
  txtProgram.SetText("POWER 9\r\nLABEL AGAIN\r\nLET A=A\r\nGOTO AGAIN");
  for (int i = 0; i < 20; ++i) {
    QTimer::singleShot(310 + 7 * i, Qt::PreciseTimer, PressEmergency);
    cmdRunProgram.Click();
    aDelays.push_back(machine.MillisecondsToStop());
  }
  std::printf("emergency: median %.3f ms from the press to the zero byte (limit: 1), %zu presses\n",
              Quantile(aDelays, 0.5), aDelays.size());
}

/// Of all threads; the C library of Windows counts the time of day in its place.
double ProcessorSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void MeasureIdle() {
  const double fBefore = ProcessorSeconds();
  WaitFor(iMeasuredTime);
  const double fShare = (ProcessorSeconds() - fBefore) / (iMeasuredTime * 1e-3);
  std::printf("idle: %.2f %% of a core with the link %s (limit: 2)\n", fShare * 100,
              bLinkUp ? "up" : "down");
}

/// The longest time that the event loop was away while the editor took the text in.
double LongestPause() {
  auto* pEditor = qobject_cast<QPlainTextEdit*>(FindWidget("txtProgram"));
  double fLongest = 0;
  QElapsedTimer clock;
  QTimer timer;
  QEventLoop loop;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    fLongest = std::max(fLongest, static_cast<double>(clock.nsecsElapsed()) * 1e-6);
    clock.start();
    if (!pEditor->isReadOnly()) loop.quit();
  });
  clock.start();
  timer.start(0);
  loop.exec();
  return fLongest;
}

void MeasureOpening(const char* sWhat, const QByteArray& program) {
  const QTemporaryDir folder;
  const QString sPath = machine.StationPath(folder.filePath("BENCH.GTP"));
  machine.WriteFile(sPath, program);
  QElapsedTimer clock;
  clock.start();
  machine.ReadFile(sPath);
  const double fRead = static_cast<double>(clock.nsecsElapsed()) * 1e-6;
  clock.start();
  bool bSuccess = false;
  LoadProgramFile(sPath, bSuccess);
  const double fLoad = static_cast<double>(clock.nsecsElapsed()) * 1e-6;
  const double fPause = LongestPause();
  std::printf(
      "open: %s, %.1f ms of which reading %.1f ms; complete in the editor after %.1f ms, longest "
      "pause on the way %.1f ms\n",
      bSuccess ? sWhat : "FAILED", fLoad, fRead, static_cast<double>(clock.nsecsElapsed()) * 1e-6,
      fPause);
}

void MeasureOpen() {
  if (iControlMode == modeManual) cmdProgram.Click();
  MeasureOpening("the largest program", QByteArray("A=1\r\n").repeated(6553).left(32764));
  MeasureOpening(
      "100 MB", QByteArray("LET A=A+1: a line of forty characters\r\n").repeated(100'000'000 / 39));
}

void Measure(const QString& sWhat) {
  if (sWhat == "loop") MeasureLoop();
  if (sWhat == "tick") MeasureTick();
  if (sWhat == "emergency") MeasureEmergency();
  if (sWhat == "idle") MeasureIdle();
  if (sWhat == "open") MeasureOpen();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  ViewDesktop desktop;
  HidapiHid hid;
  pMachine = &machine;
  pHid = &hid;
  pDesktop = &desktop;
  ResetForms();
  WireEvents();
  BuildView();
  Form_Load({});
  WaitFor(7000);  // the start-up box has gone
  Measure(QApplication::arguments().value(1));
  std::fflush(stdout);
  machine.EndProcess();
}
