#include "common/DelayMilliseconds.h"

#include "common/CheckedArithmetic.h"
#include "common/SkipOnError.h"
#include "form/frmGlidetrak.h"
#include "platform/Platform.h"

namespace glidetrak {

namespace {

qint32 ElapsedSince(qint32 lStart) {
  return CheckedInt32(qint64{pMachine->GetTickCount()} - lStart);
}

void SpinFor(Pump pump, qint32 lTime) {
  const qint32 lStart = pMachine->GetTickCount();
  while (ElapsedSince(lStart) < lTime) {
    if (pump == Pump::Yes) {
      pDesktop->PumpEvents();
    } else {
      pMachine->SpinOnce();
    }
  }
}

}  // namespace

void DelayMilliseconds(Pump pump, qint32 lTime, Tick tick) {
  SkipOnError([&] {
    if (tick == Tick::Suspended) tmrSystem.Enabled = false;
    SpinFor(pump, lTime);
    if (tick == Tick::Suspended) tmrSystem.Enabled = true;
  });
}

}  // namespace glidetrak
