// A run from click to end: its times, its locks, and how it ends.

#include "language/LanguageTest.h"
#include "track/AbortProgram.h"

namespace glidetrak {
namespace {

class RunProgramTest : public LanguageTest {
 protected:
  /// How long the run takes.
  qint64 TimeOf(const QString& sText) {
    const qint64 lStart = station.platform.lNow;
    station.RunProgram(sText);
    return station.platform.lNow - lStart;
  }
};

struct TimeRow {
  const char* sText;
  qint64 lTime;
  qint32 lLine;  ///< lCurrentLine at the end
};

const TimeRow TimeRows[] = {
    {"", 25 + 100, 1},
    {"BEEP", 25 + 100, 1},
    {"BEEP\r\n", 2 * 25 + 100, 2},
    {"BEEP\r\n\r\n: note\r\nLABEL X", 4 * 25 + 100, 4},
    {"WAIT 1000", 1000 + 25 + 100, 1},
    {"BREAK", 100, 0},
    {"BEEP\r\nBREAK\r\nBEEP", 25 + 100, 1},
    {"GOTO X\r\nBEEP\r\nLABEL X\r\nBEEP", 2 * 25 + 100, 4},
    {"IF A=1\r\nBEEP\r\nENDIF\r\nBEEP", 2 * 25 + 100, 4},
    {"IF A=0\r\nBEEP\r\nENDIF\r\nBEEP", 4 * 25 + 100, 4},
    {"NONSENSE\r\nBEEP", 100, 0},
    {"GOTO X", 100, 0},
    {"BEEP\r\nGOTO X", 100, 1},
    {"LABEL", 0, 0},
};

TEST_F(RunProgramTest, PausesBehindEachLineAndOnceAtTheEnd) {
  for (const TimeRow& row : TimeRows) {
    lCurrentLine = 0;
    EXPECT_EQ(TimeOf(row.sText), row.lTime) << row.sText;
    EXPECT_EQ(lCurrentLine, row.lLine) << row.sText;
  }
}

TEST_F(RunProgramTest, StartsWithItsFlagsCleared) {
  bInIfBlock = true;
  bIfCondition = false;
  station.RunProgram("BEEP");
  EXPECT_FALSE(bInIfBlock);
  EXPECT_TRUE(bIfCondition);
}

TEST_F(RunProgramTest, LeavesTheFailedLineSelected) {
  station.RunProgram("BEEP\r\nNONSENSE\r\nBEEP");
  EXPECT_EQ(SelectionNow(), (Selection{6, 8}));
}

/// The controls that a run locks.
const std::vector<Component*>& LockedSet() {
  static const std::vector<Component*> aControls{&txtProgram,      &cmdRunProgram, &cmbExamples,
                                                 &cmdShowExamples, &MNUMAIN,       &MNUHELP,
                                                 &MNUPROGRAMOPT};
  return aControls;
}

void ExpectLocked(bool bLocked) {
  for (size_t i = 0; i < LockedSet().size(); ++i) {
    EXPECT_NE(LockedSet()[i]->Enabled, bLocked) << i;
  }
}

TEST_F(RunProgramTest, LocksItsSetAndShowsTheHourglassOverTheProgramBox) {
  bool bSeen = false;
  station.After(40, [&] {
    bSeen = true;
    ExpectLocked(true);
    EXPECT_TRUE(bProgramRunning);
    EXPECT_EQ(imgProgBoxBack.MousePointer, ptrHourglass);
    EXPECT_EQ(screen.MousePointer, ptrDefault);
  });
  station.RunProgram("WAIT 100\r\nBEEP");
  EXPECT_TRUE(bSeen);
  ExpectLocked(false);
  EXPECT_FALSE(bProgramRunning);
  EXPECT_EQ(imgProgBoxBack.MousePointer, ptrDefault);
}

TEST_F(RunProgramTest, LeavesThePanelAndTheStopButtonLive) {
  bool bLive = false;
  station.After(10, [&] {
    bLive = btnStopProg.Enabled && cmdManual.Enabled && btnEmergency.Enabled &&
            cmdSingleStep.Enabled && cmdProgCommands.Enabled;
  });
  station.RunProgram("BEEP");
  EXPECT_TRUE(bLive);
}

TEST_F(RunProgramTest, StaysLockedThroughItsLastPause) {
  bool bSeen = false;
  station.After(100, [&] {
    bSeen = true;
    ExpectLocked(true);
  });
  station.RunProgram("BEEP");
  EXPECT_TRUE(bSeen);
}

TEST_F(RunProgramTest, UnlocksAfterACompileErrorAndWritesNothing) {
  station.RunProgram("LABEL");
  ExpectLocked(false);
  EXPECT_FALSE(bProgramRunning);
  EXPECT_EQ(imgProgBoxBack.MousePointer, ptrDefault);
  EXPECT_TRUE(station.WrittenBytes().empty());
}

TEST_F(RunProgramTest, SuspendsTheTickForItsLastPauseAndEnablesItThen) {
  tmrSystem.Enabled = false;
  bool bOffInLastPause = false;
  station.After(100, [&] { bOffInLastPause = !tmrSystem.Enabled; });
  station.RunProgram("BEEP");
  EXPECT_TRUE(bOffInLastPause);
  EXPECT_TRUE(tmrSystem.Enabled);
}

TEST_F(RunProgramTest, GivesTheFocusKeeperTheFocusIfItIsVisible) {
  int iFocus = 0;
  txtFocusGrab.SetFocus = [&] { ++iFocus; };
  station.RunProgram("BEEP");
  EXPECT_EQ(iFocus, 1);
  txtFocusGrab.Visible = false;
  station.RunProgram("BEEP");
  EXPECT_EQ(iFocus, 1);
  txtFocusGrab.SetFocus = [] {};
}

TEST_F(RunProgramTest, LosesTheEditorToAnAbortAndGivesItBackAtItsEnd) {
  bool bDisabled = false;
  station.After(10, [&] {
    AbortProgram();
    bDisabled = !txtProgram.Enabled && !bProgramRunning;
  });
  EXPECT_EQ(TimeOf("WAIT 500\r\nBEEP"), 500 + 100);
  EXPECT_TRUE(bDisabled);
  EXPECT_TRUE(txtProgram.Enabled);
  EXPECT_EQ(station.platform.iBeeps, 0);
}

TEST_F(RunProgramTest, LosesTheEditorToAnAbortOfATraceStepToo) {
  bProgramRunning = true;
  AbortProgram();
  EXPECT_FALSE(txtProgram.Enabled);
  EXPECT_FALSE(bProgramRunning);
}

TEST_F(RunProgramTest, AbortsNothingWhereNothingRuns) {
  AbortProgram();
  EXPECT_TRUE(txtProgram.Enabled);
}

class RunError : public RunProgramTest {
 protected:
  /// The focus keeper refuses the focus that many times.
  void RefuseFocus(int iTimes) {
    txtFocusGrab.SetFocus = [this, iTimes] {
      if (m_iRefused++ < iTimes) throw RuntimeError(Fault::PlatformCall);
    };
  }

  int m_iRefused = 0;
};

TEST_F(RunError, IsToldAndUnlocksTheScreen) {
  RefuseFocus(1);
  screen.MousePointer = ptrHourglass;
  EXPECT_NO_THROW(station.RunProgram("PRINT \"A\""));
  EXPECT_EQ(station.BoxTexts(), QStringList(English(520)));
  ExpectProgramErrorBoxes();
  ExpectLocked(false);
  EXPECT_FALSE(bProgramRunning);
  EXPECT_FALSE(pnlMessage.Visible);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  EXPECT_EQ(m_iRefused, 2);
}

TEST_F(RunError, StopsTheMotor) {
  RefuseFocus(1);
  station.RunProgram("BEEP");
  EXPECT_EQ(station.WrittenBytes(), (std::vector<qint32>{16, 16}));
}

TEST_F(RunError, NeverLeavesTheClick) {
  RefuseFocus(1000);
  EXPECT_NO_THROW(station.RunProgram("BEEP"));
  ExpectLocked(false);
}

}  // namespace
}  // namespace glidetrak
