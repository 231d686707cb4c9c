#include "track/AbortProgram.h"

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "track/OutputImage.h"

namespace glidetrak {

void AbortProgram() {
  SetPower(0);
  if (!bProgramRunning) return;
  txtProgram.Enabled = false;
  bProgramRunning = false;
}

}  // namespace glidetrak
