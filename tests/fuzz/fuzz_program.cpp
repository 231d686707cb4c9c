// Any bytes at all load as a program, compile and run in virtual time. A finding is a crash, a
// sanitizer's report, an error that leaves an event handler, or a screen that stays locked.
//
//   cmake --preset fuzz && cmake --build --preset fuzz
//   build/fuzz/fuzz_program -max_len=2000 -max_total_time=600 tests/programs

#include <QByteArray>
#include <cstdlib>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "language/Keywords.h"
#include "language/RunControl.h"
#include "programs/ProgramFiles.h"
#include "shell/Events.h"
#include "shell/StartUp.h"
#include "track/ModeAndDirection.h"
#include "virtual/VirtualPlatform.h"

namespace {

using namespace glidetrak;

/// Unwinds a program that runs longer than a case may.
struct LongEnough {};

constexpr qint64 lLongestRun = 4000;  ///< virtual milliseconds

void Require(bool bHolds) {
  if (!bHolds) std::abort();
}

/// A + where an operand is awaited never returns, which is the language's and no finding. It is
/// recognised by what stands ahead of it once every LET is gone; a few harmless ones go with it.
bool MayHang(QString sText) {
  sText.remove(Word(Keyword::Let));
  for (qsizetype i = sText.indexOf(u'+'); i >= 0; i = sText.indexOf(u'+', i + 1)) {
    if (i == 0 || !(sText[i - 1].isLetterOrNumber())) return true;
  }
  return false;
}

bool AnyLineMayHang() {
  for (const ProgramLine& line : LineTable) {
    if (MayHang(line.sText)) return true;
  }
  return false;
}

void TypeKeys(VirtualPlatform& platform) {
  for (int i = 0; i < 20; ++i) {
    platform.At(platform.lNow + 150 * i + 70, [i] {
      int iKeyCode = 65 + i;
      frmGlidetrak.KeyDown(iKeyCode);
    });
  }
}

void LoadProgram(VirtualPlatform& platform, const QByteArray& program) {
  platform.AddFile("\\FUZZ.GTP", program);
  bool bSuccess = false;
  LoadProgramFile("\\FUZZ.GTP", bSuccess);
  Require(bSuccess);
  iControlMode = modeProgram;
  SetControlStates();
}

void RunAndTrace(VirtualPlatform& platform) {
  const qint64 lEnd = platform.lNow + lLongestRun;
  platform.OnPump = [&platform, lEnd] {
    if (platform.lNow > lEnd) throw LongEnough();
  };
  cmdRunProgram.Click();
  Require(!bProgramRunning && cmdRunProgram.Enabled && txtProgram.Enabled);
  for (int i = 0; i < 20; ++i) {
    cmdSingleStep.Press();
    cmdSingleStep.Click();
    Require(!bProgramRunning && txtProgram.Enabled);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t iSize) {
  const QByteArray program(reinterpret_cast<const char*>(pData), static_cast<qsizetype>(iSize));
  bProgramRunning = false;
  VirtualPlatform platform;
  platform.rig.AttachParallel();
  WireEvents();
  Form_Load({});
  LoadProgram(platform, program);
  CompileProgram();
  if (AnyLineMayHang()) return 0;
  bNeedCompile = true;
  TypeKeys(platform);
  try {
    RunAndTrace(platform);
  } catch (const LongEnough&) {
  }
  return 0;
}
