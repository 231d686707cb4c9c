// The user's stop, wherever the program stands.

#include "language/LanguageTest.h"
#include "language/RunControl.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

class StopProgramTest : public LanguageTest {};

TEST_F(StopProgramTest, DoesNothingWhereNoProgramRuns) {
  pnlMessage.Visible = true;
  const qint64 lStart = station.platform.lNow;
  StopProgram();
  EXPECT_EQ(station.platform.lNow, lStart);
  EXPECT_TRUE(pnlMessage.Visible);
  EXPECT_TRUE(station.WrittenBytes().empty());
}

TEST_F(StopProgramTest, FreezesForTwoHundredMillisecondsWithoutPumping) {
  bProgramRunning = true;
  int iPumps = 0;
  station.platform.OnPump = [&] { ++iPumps; };
  const qint64 lStart = station.platform.lNow;
  StopProgram();
  EXPECT_EQ(station.platform.lNow - lStart, 200);
  EXPECT_EQ(iPumps, 0);
}

TEST_F(StopProgramTest, StopsTheMotorAndTheProgramAheadOfTheFreeze) {
  SetPower(9);
  station.Forget();
  bProgramRunning = true;
  pnlMessage.Visible = true;
  tmrSystem.Enabled = true;
  const qint64 lStart = station.platform.lNow;
  StopProgram();
  ASSERT_EQ(station.WrittenBytes(), std::vector<qint32>{16});
  EXPECT_EQ(station.platform.rig.aWritten[0].lTime, lStart);
  EXPECT_FALSE(bProgramRunning);
  EXPECT_FALSE(pnlMessage.Visible);
  EXPECT_TRUE(tmrSystem.Enabled);
}

TEST_F(StopProgramTest, GivesTheScreenItsDefaultPointer) {
  bProgramRunning = true;
  screen.MousePointer = ptrHourglass;
  StopProgram();
  EXPECT_EQ(screen.MousePointer, ptrDefault);
}

/// A stop some time into a program, and how long the whole run then takes.
struct StopRow {
  const char* sText;
  int iStop;
  qint64 lTime;
};

const StopRow StopRows[] = {
    {"WAIT 1000\r\nBEEP", 10, 1000 + 100},      // the WAIT goes on to its full time
    {"WAIT 100\r\nBEEP", 10, 10 + 200 + 100},   // the freeze outlasts it
    {"GET A\r\nBEEP", 10, 10 + 200 + 100},      // ends at once
    {"LABEL L\r\nGOTO L", 60, 60 + 200 + 100},  // in a pause, which the freeze outlasts
};

TEST_F(StopProgramTest, EndsTheRunWhenTheStatementAtHandIsOver) {
  for (const StopRow& row : StopRows) {
    station.After(row.iStop, [&] { station.Click("btnStopProg"); });
    const qint64 lStart = station.platform.lNow;
    station.RunProgram(row.sText);
    EXPECT_EQ(station.platform.lNow - lStart, row.lTime) << row.sText;
    EXPECT_EQ(station.platform.iBeeps, 0) << row.sText;
    EXPECT_TRUE(txtProgram.Enabled) << row.sText;
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

TEST_F(StopProgramTest, LeavesTheScreenLockedUntilAWaitIsOver) {
  station.After(10, [&] { station.Click("btnStopProg"); });
  bool bLocked = false;
  station.After(900, [&] {
    bLocked = !bProgramRunning && !cmdRunProgram.Enabled && !txtProgram.Enabled && !MNUMAIN.Enabled;
  });
  station.RunProgram("WAIT 1000");
  EXPECT_TRUE(bLocked);
  EXPECT_TRUE(cmdRunProgram.Enabled);
}

TEST_F(StopProgramTest, LeavesTheVariableOfAGetAsItWas) {
  station.After(60, [&] { station.Click("btnStopProg"); });
  station.RunProgram("LET A=12\r\nGET A");
  EXPECT_EQ(Variable('A'), 12);
}

}  // namespace
}  // namespace glidetrak
