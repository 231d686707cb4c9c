#include "shell/CommandLine.h"

#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "common/UnicodeFunctions.h"
#include "common/UserPaths.h"
#include "form/frmGlidetrak.h"
#include "programs/ProgramFiles.h"
#include "strings/LanguageFunctions.h"

namespace glidetrak {

namespace {

/// Cuts a switch out wherever it stands; true if it was there.
bool CutSwitch(QString& sText, const QString& sSwitch) {
  const bool bThere = sText.contains(sSwitch);
  sText.remove(sSwitch);
  return bThere;
}

/// A switch with a value in quotes; true if it was there.
bool TakeValueSwitch(QString& sText, const QString& sSwitch, QString& sTarget) {
  const qsizetype iSwitch = sText.indexOf(sSwitch);
  if (iSwitch < 0) return false;
  QString sValue;
  QString sRawText;
  ParseParameterValue(sText.mid(iSwitch + sSwitch.size()), sValue, sRawText);
  sTarget = TrimBlanks(sValue);
  sText = TrimBlanks(sText.remove(sSwitch + sRawText));
  return true;
}

/// The number at the head of a hexadecimal text as 16 bits with their sign; 0 without one.
qint16 HexNumber(const QString& sValue) {
  qsizetype iEnd = 0;
  while (iEnd < sValue.size() && QString("0123456789ABCDEF").contains(sValue[iEnd])) ++iEnd;
  if (iEnd == 0) return 0;
  bool bOk = false;
  const uint lNumber = sValue.left(iEnd).toUInt(&bOk, 16);
  if (!bOk || lNumber > 0xFFFF) throw RuntimeError(Fault::Overflow);
  return static_cast<qint16>(lNumber);
}

/// /LC, one separator of whatever kind, and the language code up to the next blank.
void TakeLanguageCode(QString& sText) {
  const QString sSwitch = "/LC";
  const qsizetype iSwitch = sText.indexOf(sSwitch);
  if (iSwitch < 0) return;
  const qsizetype iValue = iSwitch + sSwitch.size() + 1;
  const qsizetype iBlank = sText.indexOf(u' ', iValue);
  const qsizetype iEnd = iBlank < 0 ? sText.size() : iBlank;
  const qint16 iLanguage = HexNumber(sText.mid(iValue, iEnd - iValue));
  SetUILanguage(iLanguage);
  sLanguageIndex = QString::number(LanguageIndexFromCode(iLanguage));
  sText = TrimBlanks(sText.remove(iSwitch, iEnd - iSwitch));
}

}  // namespace

void ParseCommandLine(const QString& sCommandLine) {
  QString sText = UpperCase(sCommandLine);
  bDebugMode = CutSwitch(sText, "/DEBUGMODE");
  MNUShowDebug.Visible = bDebugMode;
  bSimStart = CutSwitch(sText, "/SIMSTART");
  if (CutSwitch(sText, "/H")) sText = TrimBlanks(sText);
  if (!TakeValueSwitch(sText, "/LANG", sLanguageIndex)) {
    SkipOnError([&] { TakeLanguageCode(sText); });
  }
  sUnits = "0";
  TakeValueSwitch(sText, "/UNITS", sUnits);
  sText = TrimBlanks(sText);
  if (!sText.isEmpty()) sCommandLineFile = ResolveFileArgument(sText);
}

void ParseParameterValue(const QString& sText, QString& sValue, QString& sRawText) {
  sValue = TrimBlanks(sText);
  const QString sOpening = "='";
  if (sValue.startsWith(sOpening)) sValue = sValue.mid(sOpening.size());
  const qsizetype iQuote = sValue.indexOf(u'\'');
  if (iQuote >= 0) sValue = sValue.left(iQuote);
  sRawText = sOpening + sValue + u'\'';
}

}  // namespace glidetrak
