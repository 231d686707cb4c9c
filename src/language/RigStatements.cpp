#include "language/RigStatements.h"

#include <array>

#include "common/CheckedArithmetic.h"
#include "common/SharedState.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "language/Keywords.h"
#include "language/ProgramError.h"
#include "language/RunState.h"
#include "track/InputDecoding.h"
#include "track/OutputImage.h"
#include "track/ReportStateChanges.h"

namespace glidetrak {

namespace {

struct SensorRow {
  Keyword keyword;
  int iBit;
};

/// In the order in which an IF looks for them.
constexpr std::array SensorRows{
    SensorRow{Keyword::TimeGateA, 4},   SensorRow{Keyword::TimeGateB, 5},
    SensorRow{Keyword::StartButton, 0}, SensorRow{Keyword::CityCall, 1},
    SensorRow{Keyword::AirportCall, 2}, SensorRow{Keyword::LightSensor, 3},
    SensorRow{Keyword::SoundSensor, 6},
};

constexpr qsizetype iPortPrefix = 4;  ///< two letters, the digit and =

bool IsPortBit(const QString& sText, QStringView sPort) {
  return sText.size() >= iPortPrefix && sText.startsWith(sPort) && sText[2] >= u'0' &&
         sText[2] <= u'7' && sText[3] == u'=';
}

/// The state behind the prefix as a whole: ON or OFF; false for anything else.
bool ReadState(const QString& sText, bool& bOn) {
  const QString sState = sText.mid(iPortPrefix);
  bOn = sState == Word(Keyword::On);
  return bOn || sState == Word(Keyword::Off);
}

int PortBit(const QString& sText) {
  return sText[2].digitValue();
}

int SensorBit(const QString& sSensorName) {
  for (const SensorRow& row : SensorRows) {
    if (sSensorName == Word(row.keyword)) return row.iBit;
  }
  throw RuntimeError(Fault::BadBound);
}

void SetDirectionAndReport(qint16 iForward) {
  SetDirection(iForward);
  ReportStateChanges();
}

}  // namespace

bool ExecuteForward(const QString& /*sText*/) {
  SetDirectionAndReport(1);
  return true;
}

bool ExecuteBackward(const QString& /*sText*/) {
  SetDirectionAndReport(0);
  return true;
}

bool ExecutePower(const QString& sText) {
  QString sValue = sText;
  sValue.remove(Word(Keyword::Power));
  const qint16 iValue = RoundToInt16(NumericPrefix(TrimBlanks(sValue)));
  if (iValue < 0 || iValue > 15) return FailWith(idInvalidPower);
  SetPowerChecked(iValue);
  return true;
}

bool ExecuteHalt(const QString& /*sText*/) {
  SetPowerChecked(0);
  return true;
}

bool ExecuteTimeReset(const QString& /*sText*/) {
  ResetJourneyTimer();
  return true;
}

bool IsPortBitLet(const QString& sText) {
  return IsPortBit(sText, u"PB");
}

bool ExecutePortBitLet(const QString& sText) {
  bool bOn = false;
  if (!ReadState(sText, bOn)) return FailWith(idInvalidState);
  SetOutputBit(PortBit(sText), bOn);
  return true;
}

bool IsPortBitIf(const QString& sText) {
  return IsPortBit(sText, u"PA");
}

bool ExecutePortBitIf(const QString& sText) {
  bool bOn = false;
  if (!ReadState(sText, bOn)) return FailWith(idInvalidIf);
  TestInputBit(PortBit(sText), bOn);
  return true;
}

QString FindSensor(const QString& sText) {
  for (const SensorRow& row : SensorRows) {
    if (sText.contains(Word(row.keyword))) return Word(row.keyword);
  }
  return {};
}

bool TestSensorCondition(const QString& sText, const QString& sSensorName) {
  QString sRest = sText;
  sRest.remove(sSensorName);
  if (!sRest.contains(u'=')) return FailWith(idInvalidIf);
  sRest = UpperCase(TrimBlanks(sRest.remove(u'=')));
  const bool bOn = sRest.contains(Word(Keyword::On));
  if (!bOn && !sRest.contains(Word(Keyword::Off))) return FailWith(idInvalidIf);
  TestInputBit(SensorBit(sSensorName), bOn);
  return true;
}

void TestInputBit(int iBit, bool bWantOn) {
  const bool bSet = InputBitSet(iBit);
  if (pnlDebug.Visible) ledInput[iBit].FillColor = bSet ? lTestedLampRed : lBlack;
  bIfCondition = bSet == bWantOn;
  if (!bIfCondition) SkipIfBody();
}

bool InputBitSet(int iBit) {
  return (lInputImage & (1 << iBit)) > 0;
}

}  // namespace glidetrak
