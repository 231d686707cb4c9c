#include "track/SystemTick.h"

#include <limits>

#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "platform/Platform.h"
#include "track/DebugPanel.h"
#include "track/InputDecoding.h"
#include "track/OutputImage.h"
#include "track/ReportStateChanges.h"

namespace glidetrak {

namespace {

constexpr qint32 lJourneyPeriod = 50;  ///< milliseconds
constexpr qint32 lImpactPeriod = 500;

/// A tick body is active.
bool bInTick = false;

/// Tick counts at the end of the last slower work; 0 until the first. A lost link does not clear
/// them.
qint32 lLastJourneyWork = 0;
qint32 lLastImpactWork = 0;

/// A difference that 32 bits do not hold counts as due: the counter has passed its sign since the
/// stamp, and only the work renews the stamp.
bool IsDue(qint32 lNow, qint32 lStamp, qint32 lPeriod) {
  const qint64 lSince = qint64{lNow} - lStamp;
  return lStamp == 0 || lSince >= lPeriod || lSince < std::numeric_limits<qint32>::min();
}

void ReadRig() {
  bool bFail = false;
  qint32 lValue = 0;
  ReadInputPort(bFail, lValue);
  lInputImage = lValue;
  if (bFail) HandleLinkLost();
}

void DoJourneyWork(qint32 lNow) {
  if (!IsDue(lNow, lLastJourneyWork, lJourneyPeriod)) return;
  ShowJourneyTime();
  lLastJourneyWork = pMachine->GetTickCount();
}

void DoImpactWork(qint32 lNow) {
  if (!IsDue(lNow, lLastImpactWork, lImpactPeriod)) return;
  if (bLinkUp) UpdateImpactDisplay();
  lLastImpactWork = pMachine->GetTickCount();
}

void DoLinkWork(qint32 lNow) {
  SkipOnError([] {
    if (iTimingEnabled != 0 && bTimerArmed) RunJourneyTimer();
  });
  SkipOnError([&] { DoJourneyWork(lNow); });
  SkipOnError([&] { DoImpactWork(lNow); });
}

}  // namespace

void tmrSystem_Timer() {
  if (bShuttingDown) return;
  qint32 lNow = 0;
  SkipOnError([&] { lNow = pMachine->GetTickCount(); });
  if (bInTick) return;
  bInTick = true;
  SkipOnError(ReadRig);
  SkipOnError(ApplyLeverPower);
  SkipOnError(RefreshDebugPanel);
  if (bLinkUp) DoLinkWork(lNow);
  SkipOnError(ReportStateChanges);
  SkipOnError(SelectTickInterval);
  bInTick = false;
}

void SelectTickInterval() {
  const bool bIdle = iTimingEnabled == 0 && !bProgramRunning;
  const int iWanted = bIdle ? iIdleInterval : iBusyInterval;
  if (tmrSystem.Interval != iWanted) tmrSystem.Interval = iWanted;
}

}  // namespace glidetrak
