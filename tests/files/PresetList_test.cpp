// Showing and hiding the list of pre-sets.

#include "files/PresetTest.h"

namespace glidetrak {

namespace {

class PresetList : public PresetTest {
 protected:
  void SetUp() override {
    AddThree();
    station.Start();
    cmbExamples.OpenDropDown = [this](bool bOpen) { aCalls.push_back(bOpen ? "open" : "close"); };
    cmbExamples.SetFocus = [this] { aCalls.push_back("focus"); };
  }

  std::vector<std::string> aCalls;
};

TEST_F(PresetList, StartsHidden) {
  EXPECT_FALSE(cmbExamples.Visible);
  EXPECT_EQ(cmdShowExamples.Caption.value(), "Show Pre-sets");
  EXPECT_EQ(cmdShowExamples.ToolTipText.value(), "Displays the list of pre-set example programs");
}

TEST_F(PresetList, HasAToolTipOfTwoTexts) {
  EXPECT_EQ(cmbExamples.ToolTipText.value(),
            "This is the list of pre-set example programs designed for the Hardware Track");
}

TEST_F(PresetList, ComesUpOpenAndWithTheFocus) {
  cmdShowExamples.Click();
  EXPECT_TRUE(cmbExamples.Visible);
  EXPECT_EQ(cmdShowExamples.Caption.value(), "Hide Pre-sets");
  EXPECT_EQ(cmdShowExamples.ToolTipText.value(), "Hides the list of pre-set example programs");
  EXPECT_EQ(aCalls, (std::vector<std::string>{"open", "focus"}));
}

TEST_F(PresetList, GoesAtTheSecondClick) {
  cmdShowExamples.Click();
  aCalls.clear();
  cmdShowExamples.Click();
  EXPECT_FALSE(cmbExamples.Visible);
  EXPECT_EQ(cmdShowExamples.Caption.value(), "Show Pre-sets");
  EXPECT_EQ(cmdShowExamples.ToolTipText.value(), "Displays the list of pre-set example programs");
  EXPECT_TRUE(aCalls.empty());
}

TEST_F(PresetList, ClosesAndGoesWithTheFocusEvenDuringARun) {
  for (const bool bRunning : {false, true}) {
    bProgramRunning = false;
    cmdShowExamples.Click();
    aCalls.clear();
    bProgramRunning = bRunning;
    cmbExamples.LostFocus();
    EXPECT_EQ(aCalls, (std::vector<std::string>{"close"})) << bRunning;
    EXPECT_FALSE(cmbExamples.Visible) << bRunning;
    EXPECT_EQ(cmdShowExamples.Caption.value(), "Show Pre-sets") << bRunning;
  }
}

TEST_F(PresetList, DoesNotOpenOrCloseWhileAProgramRuns) {
  bProgramRunning = true;
  cmdShowExamples.Click();
  EXPECT_FALSE(cmbExamples.Visible);
  cmbExamples.Visible = true;
  cmdShowExamples.Click();
  EXPECT_TRUE(cmbExamples.Visible);
  EXPECT_TRUE(aCalls.empty());
}

TEST_F(PresetTest, EmptyListOpensAllTheSame) {
  station.Start();
  bool bOpened = false;
  cmbExamples.OpenDropDown = [&](bool bOpen) { bOpened = bOpen; };
  cmdShowExamples.Click();
  EXPECT_TRUE(cmbExamples.Visible);
  EXPECT_TRUE(bOpened);
}

}  // namespace

}  // namespace glidetrak
