#include "shell/Layout.h"

#include <algorithm>

#include "common/CheckedArithmetic.h"
#include "common/MiscCode.h"
#include "common/SkipOnError.h"
#include "form/frmGlidetrak.h"

namespace glidetrak {

namespace {

// Twips.
constexpr float fSmallestWidth = 14400;
constexpr float fSmallestHeight = 9700;
constexpr float fSmallestBand = 3000;
constexpr float fLinkRight = 120;
constexpr float fLinkBottom = 30;
constexpr float fWidestBox = 6600;
constexpr float fNarrowestBox = 5000;
constexpr float fEditorMargin = 360;
constexpr float fEditorFoot = 320;
constexpr float fColumnMargin = 150;

constexpr float fRigProportion = 2.8F;  ///< width to height of the rig's picture

void KeepSmallestSize() {
  if (frmGlidetrak.Width < fSmallestWidth) frmGlidetrak.Width = fSmallestWidth;
  if (frmGlidetrak.Height < fSmallestHeight) frmGlidetrak.Height = fSmallestHeight;
}

void CentrePanels() {
  CentreControl(pnlCommandSel);
  CentreControl(pnlMessage);
}

void PlaceBand() {
  picHardware.Width = frmGlidetrak.ScaleWidth.value();
  picHardware.Height = std::max(frmGlidetrak.ScaleHeight - picSensors.Height, fSmallestBand);
  lblHWState.Left = picHardware.Width - lblHWState.Width - fLinkRight;
  lblHWState.Top = picHardware.Height - lblHWState.Height - fLinkBottom;
  imgHardware.Height = picHardware.Height.value();
  imgHardware.Width = imgHardware.Height * fRigProportion;
  imgHardware.Left = (picHardware.Width - imgHardware.Width) / 2;
}

void PlacePanels() {
  picSensors.Top = imgHardware.Height.value();
  for (Control* pPanel : std::initializer_list<Control*>{&picControls, &pnlProgramBox}) {
    pPanel->Top = picSensors.Top.value();
    pPanel->Height = picSensors.Height.value();
  }
  picControls.Left = picSensors.Width.value();
  pnlProgramBox.Left = picControls.Left + picControls.Width;
}

/// At wide sizes the box stops growing and the form's background shows beside it.
void SizeProgramBox() {
  const float fRoom = frmGlidetrak.ScaleWidth - (picControls.Left + picControls.Width);
  pnlProgramBox.Width = std::clamp(fRoom, fNarrowestBox, fWidestBox);
  imgProgBoxBack.Left = 0;
  imgProgBoxBack.Width = pnlProgramBox.Width.value();
  imgProgBoxBack.Height = pnlProgramBox.Height.value();
  txtProgram.Width = pnlProgramBox.Width - btnStopProg.Width - fEditorMargin;
  txtProgram.Height = pnlProgramBox.Height - fEditorFoot;
}

void PlaceColumn() {
  const double fLeft = double{imgProgBoxBack.Width} - cmdShowExamples.Width - fColumnMargin;
  const auto fColumn = static_cast<float>(RoundToInt32(fLeft));
  for (Control* pControl :
       std::initializer_list<Control*>{&cmdShowExamples, &cmdProgCommands, &cmdSingleStep,
                                       &cmdRunProgram, &btnStopProg, &cmbExamples, &lblExamples}) {
    pControl->Left = fColumn;
  }
}

}  // namespace

void Form_Resize() {
  if (frmGlidetrak.WindowState == stateMinimised) return;
  tmrSystem.Enabled = false;
  SkipOnError(KeepSmallestSize);
  SkipOnError(CentrePanels);
  SkipOnError(PlaceBand);
  SkipOnError(PlacePanels);
  SkipOnError(SizeProgramBox);
  SkipOnError(PlaceColumn);
  tmrSystem.Enabled = true;
}

}  // namespace glidetrak
