#include "track/DebugPanel.h"

#include <algorithm>

#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "form/frmGlidetrak.h"
#include "platform/Platform.h"
#include "strings/ResourceText.h"

namespace glidetrak {

namespace {

bool BitSet(qint32 lImage, int iBit) {
  return (lImage & (1 << iBit)) != 0;
}

void PaintLamps() {
  for (int i = 0; i < 8; ++i) {
    ledInput[i].FillColor = BitSet(lInputImage, i) ? lLampRed : lBlack;
    ledOutput[i].FillColor = BitSet(lOutputImage, i) ? aOutputLampColour[i] : lBlack;
  }
}

QString DebugText() {
  return LoadText(idDataIn) + QString::number(lInputImage) + "\r\n" + LoadText(idDataOut) +
         QString::number(lOutputImage) + "\r\n" + LoadText(idPresentTime) + pMachine->LongTime();
}

}  // namespace

void FillLampColours() {
  std::fill(std::begin(aOutputLampColour), std::end(aOutputLampColour), lLampRed);
  aOutputLampColour[1] = lLampYellow;
  aOutputLampColour[2] = lLampGreen;
}

void RefreshDebugPanel() {
  if (!pnlDebug.Visible) return;
  SkipOnError([] {
    PaintLamps();
    const QString sText = DebugText();
    // Writing the text resets the box's view, so an equal text is not written.
    if (txtDebug.Text() != sText) txtDebug.SetText(sText);
  });
}

void MNUShowDebug_Click() {
  pnlDebug.Visible = true;
  RefreshDebugPanel();
}

void imgCloseDebug_Click() {
  pnlDebug.Visible = false;
  frmGlidetrak.Refresh();
}

void pnlDebug_DblClick() {
  frmGlidetrak.Refresh();
}

}  // namespace glidetrak
