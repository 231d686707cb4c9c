#include "shell/Placement.h"

#include <QString>
#include <algorithm>

#include "common/Settings.h"
#include "common/SkipOnError.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "shell/Monitor_Functions.h"

namespace glidetrak {

namespace {

const char* const sSection = "Position";

/// Farther than any desktop reaches, in twips; a longer stored number would leave what a window can
/// be given.
constexpr double fFarthest = 32767.0 * iTwipsPerPixel;

float ReadNumber(const QString& sName, const QString& sDefault) {
  const double fValue = NumericPrefix(TrimBlanks(GetRegistrySetting(sSection, sName, sDefault)));
  return static_cast<float>(std::clamp(fValue, -fFarthest, fFarthest));
}

/// The centred place, which the reading drops.
QString Centred(float fRoom, float fSize) {
  return QString::number((fRoom - fSize) / 2);
}

void RestoreState() {
  const int iState = static_cast<int>(ReadNumber("State", "0"));
  frmGlidetrak.WindowState = iState == stateMaximised ? stateMaximised : stateNormal;
}

void Save(const QString& sName, qint32 lValue) {
  SaveRegistrySetting(sSection, sName, QString::number(lValue));
}

}  // namespace

void RestorePlacement() {
  SkipOnError([] { frmGlidetrak.Height = ReadNumber("Height", "8850"); });
  SkipOnError([] { frmGlidetrak.Width = ReadNumber("width", "12000"); });
  SkipOnError(
      [] { frmGlidetrak.Left = ReadNumber("left", Centred(screen.Width, frmGlidetrak.Width)); });
  SkipOnError(
      [] { frmGlidetrak.Top = ReadNumber("Top", Centred(screen.Height, frmGlidetrak.Height)); });
  SkipOnError(KeepWindowOnMonitor);
  SkipOnError(RestoreState);
}

void SavePlacement() {
  TwipsRect rect;
  if (!GetWindowRectTwips(rect)) return;
  Save("Left", rect.lLeft);
  Save("Top", rect.lTop);
  Save("Width", rect.lWidth);
  Save("Height", rect.lHeight);
  Save("State", frmGlidetrak.WindowState);
}

}  // namespace glidetrak
