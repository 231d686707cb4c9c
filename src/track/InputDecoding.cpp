#include "track/InputDecoding.h"

#include "common/CheckedArithmetic.h"
#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "platform/Platform.h"

namespace glidetrak {

namespace {

constexpr qint32 lGateBits = 48;
constexpr qint32 lAnalogBits = 15;
constexpr qint32 lLongestJourney = 9999990;  ///< milliseconds; the display's last value

/// Guards RunJourneyTimer against itself.
bool bInJourneyStep = false;

void StartJourney(qint32 lGates) {
  Q_ASSERT(bTimerArmed && lElapsedMs == 0);
  bTimerStarted = true;
  iStopGateMask = lGates ^ lGateBits;
  lElapsedMs = 0;
  lTimerLastTick = pMachine->GetTickCount();
}

void Accumulate() {
  const qint32 lStep = CheckedInt32(qint64{pMachine->GetTickCount()} - lTimerLastTick);
  lElapsedMs = CheckedInt32(qint64{lElapsedMs} + lStep);
  lTimerLastTick = pMachine->GetTickCount();
}

void FinishJourney() {
  Q_ASSERT(bTimerArmed && bTimerStarted);
  if (lElapsedMs >= lLongestJourney) lElapsedMs = lLongestJourney;
  bTimerArmed = false;
  bTimerStarted = false;
  lTimerLastTick = 0;
}

void StepJourney() {
  const qint32 lGates = lInputImage & lGateBits;
  if (!bTimerStarted) {
    if (lGates != 0) StartJourney(lGates);
    return;
  }
  Accumulate();
  const bool bEnded = lGates == 0 ? lElapsedMs >= lLongestJourney : (iStopGateMask & lGates) >= 1;
  if (bEnded) FinishJourney();
}

/// Hundredths of a second, halves up.
QString SecondsText(qint32 lMilliseconds) {
  const qint32 lHundredths = (lMilliseconds + 5) / 10;
  return QString("%1.%2").arg(lHundredths / 100).arg(lHundredths % 100, 2, 10, QChar(u'0'));
}

void SetCaptionIfChanged(Label& label, const QString& sText) {
  if (label.Caption.value() != sText) label.Caption = sText;
}

qint32 ImpactValue() {
  if (!bLinkUp) return lInputImage & lAnalogBits;
  const qint32 lValue = ReadAnalogPort() & lAnalogBits;
  lInputImage |= lValue;
  return lValue;
}

void ShowImpact() {
  const qint32 lValue = ImpactValue();
  imgBarGraph.Picture = imgListBar.ListImage(lValue + 1);
  lblImpact.Caption = QString("%1").arg(lValue, 2, 10, QChar(u'0'));
  if (bDebugMode) lblAnalogVal.Caption = QString::number(lValue);
}

}  // namespace

void RunJourneyTimer() {
  if (bInJourneyStep) return;
  Q_ASSERT(bTimerArmed || !bTimerStarted);
  bInJourneyStep = true;
  SkipOnError(StepJourney);
  bInJourneyStep = false;
}

QString JourneyText() {
  return iTimingEnabled != 0 ? SecondsText(lElapsedMs) : "--.--";
}

void ShowJourneyTime() {
  const QString sText = JourneyText();
  if (bDebugMode) SetCaptionIfChanged(pnlClock, sText);
  SetCaptionIfChanged(lblTimer, sText);
}

void ResetJourneyTimer() {
  if (iTimingEnabled == 0) return;
  bTimerArmed = true;
  lElapsedMs = 0;
  bTimerStarted = false;
  lTimerLastTick = 0;
  if (bDebugMode) pnlClock.Caption = SecondsText(0);
}

void UpdateImpactDisplay() {
  if (iAnalogEnabled == 0) {
    if (bDebugMode) lblAnalogVal.Caption = "0";
    return;
  }
  SkipOnError(ShowImpact);
}

}  // namespace glidetrak
