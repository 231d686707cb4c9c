// What stands in the program box.

#include "files/PresetTest.h"

namespace glidetrak {

namespace {

std::initializer_list<Control*> Members() {
  static const std::initializer_list<Control*> aMembers{
      &btnStopProg,     &cmdRunProgram, &cmdSingleStep, &cmdProgCommands,
      &cmdShowExamples, &lblExamples,   &txtProgram,    &txtFocusGrab};
  return aMembers;
}

TEST_F(PresetTest, ProgramBoxIsHiddenAndShownAsOne) {
  station.Start();
  for (const bool bShow : {false, true, false}) {
    SetProgramBoxVisible(bShow);
    for (const Control* pControl : Members()) EXPECT_EQ(pControl->Visible, bShow);
  }
}

TEST_F(PresetTest, ProgramBoxLeavesTheListAlone) {
  station.Start();
  SetProgramBoxVisible(true);
  EXPECT_FALSE(cmbExamples.Visible);
}

TEST_F(PresetTest, StartUpShowsTheEditorInItsBox) {
  EXPECT_FALSE(txtProgram.Visible);
  station.Start();
  for (const Control* pControl : Members()) EXPECT_TRUE(pControl->Visible);
  EXPECT_EQ(lblExamples.Caption.value(), "Pre-set Programs:");
}

}  // namespace

}  // namespace glidetrak
