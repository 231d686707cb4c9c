// Opening and closing the panel.

#include "authoring/PickerTest.h"

namespace glidetrak {

namespace {

const std::initializer_list<Component*> aLocked{
    &btnStopProg, &cmdRunProgram, &cmdSingleStep, &cmdProgCommands, &cmbExamples, &cmdShowExamples,
    &lblExamples, &txtProgram,    &MNUMAIN,       &MNUPROGRAMOPT,   &MNUHELP};

TEST_F(PickerTest, PanelIsClosedAtStart) {
  EXPECT_FALSE(pnlCommandSel.Visible);
}

TEST_F(PickerTest, OpensFromTheButtonAndFromTheMenu) {
  for (const char* sName : {"cmdProgCommands", "MNUCommands"}) {
    station.Click(sName);
    EXPECT_TRUE(pnlCommandSel.Visible) << sName;
    EXPECT_TRUE(pnlCommandSel.Enabled) << sName;
    CloseCommandPicker();
  }
}

TEST_F(PickerTest, LocksTheProgramControlsWhileItIsOpen) {
  ShowCommandPicker();
  for (const Component* pLocked : aLocked) EXPECT_FALSE(pLocked->Enabled);
  CloseCommandPicker();
  for (const Component* pLocked : aLocked) EXPECT_TRUE(pLocked->Enabled);
}

TEST_F(PickerTest, CannotBeOpenedTwiceAndNoProgramStarts) {
  station.SetProgram("LET A=5");
  ShowCommandPicker();
  lstProgCommands.ListIndex = 4;
  station.Click("cmdProgCommands");
  station.Click("MNUCommands");
  station.Click("cmdRunProgram");
  station.Click("MNURUN");
  EXPECT_EQ(lstProgCommands.ListIndex, 4);
  EXPECT_TRUE(LineTable.empty());
}

TEST_F(PickerTest, BeginsWithTheFirstEntryWhateverWasChosenLast) {
  bool bFocus = false;
  lstProgCommands.SetFocus = [&] { bFocus = true; };
  Mark("WAIT");
  CloseCommandPicker();
  ShowCommandPicker();
  EXPECT_EQ(lstProgCommands.ListIndex, 0);
  EXPECT_EQ(lblHELPFormat.Caption.value(), "AIRPORT_CALL");
  EXPECT_TRUE(bFocus);
}

TEST_F(PickerTest, DoesNotOpenWhileAProgramRuns) {
  bProgramRunning = true;
  ShowCommandPicker();
  EXPECT_FALSE(pnlCommandSel.Visible);
  for (const Component* pLocked : aLocked) EXPECT_TRUE(pLocked->Enabled);
}

/// What winds down still holds the screen, and unlocks it at its end.
TEST_F(PickerTest, StaysClosedUntilAStoppedRunHasEnded) {
  station.After(500, [this] { station.Click("btnStopProg"); });
  station.After(1200, [] {
    EXPECT_FALSE(bProgramRunning);
    ShowCommandPicker();
    EXPECT_FALSE(pnlCommandSel.Visible);
  });
  station.RunProgram("WAIT 2000");
  ShowCommandPicker();
  EXPECT_TRUE(pnlCommandSel.Visible);
}

TEST_F(PickerTest, StaysClosedUntilAStoppedTraceStepHasEnded) {
  station.SetProgram("WAIT 2000");
  station.After(500, [this] { station.Click("btnStopProg"); });
  station.After(1200, [this] { station.Click("cmdProgCommands"); });
  station.Click("cmdSingleStep");
  EXPECT_FALSE(pnlCommandSel.Visible);
  EXPECT_TRUE(btnStopProg.Enabled) << "nothing may run with Stop out of reach";
  station.Click("cmdProgCommands");
  EXPECT_TRUE(pnlCommandSel.Visible);
}

TEST_F(PickerTest, ClosesWithoutATrace) {
  for (const char* sName : {"btnCloseComSel", "imgAddCmdClose"}) {
    ShowCommandPicker();
    station.Click(sName);
    EXPECT_FALSE(pnlCommandSel.Visible) << sName;
    EXPECT_FALSE(pnlCommandSel.Enabled) << sName;
    EXPECT_EQ(txtProgram.Text(), "") << sName;
    EXPECT_FALSE(bProgramDirty) << sName;
  }
}

TEST_F(PickerTest, ClosesOverChangesThatAreNotSaved) {
  txtProgram.UserEdit(0, 0, "X");
  ShowCommandPicker();
  station.Click("btnCloseComSel");
  EXPECT_TRUE(bProgramDirty);
}

}  // namespace

}  // namespace glidetrak
