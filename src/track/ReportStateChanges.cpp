#include "track/ReportStateChanges.h"

#include <QString>

#include "common/SharedState.h"
#include "hardware/AdapterLayer.h"
#include "track/InputDecoding.h"
#include "track/ModeAndDirection.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

/// What was last told to the panel.
struct ReportedState {
  bool bRunning = false;
  qint16 iDirection = 0;
  qint16 iPower = 0;
  QString sAnalog;
  QString sJourney;
};

ReportedState reported;

/// Copies a value that differs; true when it did.
template <class Value>
bool Update(Value& recorded, const Value& now) {
  if (recorded == now) return false;
  recorded = now;
  return true;
}

/// On the parallel link the text follows sensor bits 0 to 3; deliberate.
QString AnalogText() {
  if (iAnalogEnabled == 0) return "0";
  return QString::number(bUsbLink ? iUsbAnalog : lInputImage & 15);
}

bool UpdateMotor() {
  bool bChanged = Update(reported.iDirection, iDirection);
  if (reported.iPower != iPower) {
    SetPowerLever(iPower);
    bChanged = Update(reported.iPower, iPower) || bChanged;
  }
  return bChanged;
}

}  // namespace

void ReportStateChanges() {
  bool bChanged = Update(reported.bRunning, bProgramRunning.value());
  if (iControlMode != modeManual) bChanged = UpdateMotor() || bChanged;
  bChanged = Update(reported.sAnalog, AnalogText()) || bChanged;
  bChanged = Update(reported.sJourney, JourneyText()) || bChanged;
  if (bChanged) SetControlStates();
}

}  // namespace glidetrak
