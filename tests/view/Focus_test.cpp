// Who has the focus, and who is told.

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>

#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Focus : public ViewTest {
 protected:
  Focus() {
    txtProgram.GotFocus = Note(m_aNotes, "editor got");
    txtProgram.LostFocus = Note(m_aNotes, "editor lost");
    cmdRunProgram.GotFocus = Note(m_aNotes, "run got");
    cmdRunProgram.LostFocus = Note(m_aNotes, "run lost");
    cmbExamples.LostFocus = Note(m_aNotes, "combo lost");
  }

  void ShowIdle() {
    ShowEditor();
    txtFocusGrab.SetFocus();
    m_aNotes.clear();
  }

  /// Idle, with the focus in a list that is dropped down.
  void ShowOpenList() {
    cmbExamples.Visible = true;
    cmbExamples.List = QStringList{"one"};
    ShowIdle();
    cmbExamples.SetFocus();
    cmbExamples.OpenDropDown(true);
    Settle();
  }

  QStringList m_aNotes;
};

TEST_F(Focus, GoesFromOneControlToTheNext) {
  ShowIdle();
  txtProgram.SetFocus();
  cmdRunProgram.SetFocus();
  EXPECT_EQ(m_aNotes, QStringList({"editor got", "editor lost", "run got"}));
  EXPECT_TRUE(Widget("cmdRunProgram")->hasFocus());
}

TEST_F(Focus, IsTakenByAClick) {
  ShowIdle();
  QTest::mouseClick(Editor()->viewport(), Qt::LeftButton);
  QTest::mouseClick(MainWindow()->windowHandle(), Qt::LeftButton, {},
                    Widget("cmdRunProgram")->mapTo(MainWindow(), QPoint(5, 5)));
  EXPECT_TRUE(Widget("cmdRunProgram")->hasFocus());
}

TEST_F(Focus, StaysWhereItIsWhenAPanelIsClicked) {
  ShowIdle();
  txtProgram.SetFocus();
  QTest::mouseClick(MainWindow()->windowHandle(), Qt::LeftButton, {},
                    Widget("picTogTimer")->mapTo(MainWindow(), QPoint(5, 5)));
  EXPECT_EQ(m_aNotes, QStringList{"editor got"});
}

TEST_F(Focus, IsNotTakenByHiddenOrDisabledControls) {
  ShowIdle();
  cmdRunProgram.Enabled = false;
  cmdRunProgram.SetFocus();
  cmdRunProgram.Enabled = true;
  cmdRunProgram.Visible = false;
  cmdRunProgram.SetFocus();
  cmdRunProgram.Visible = true;
  pnlProgramBox.Enabled = false;
  txtProgram.SetFocus();
  Settle();
  EXPECT_TRUE(m_aNotes.isEmpty());
}

TEST_F(Focus, IsTakenByNobodyWhileTheWindowIsHidden) {
  pnlProgramBox.Visible = true;
  txtProgram.SetFocus();
  EXPECT_TRUE(m_aNotes.isEmpty());
  Show();
  EXPECT_FALSE(Editor()->hasFocus());
}

TEST_F(Focus, LeavesAControlThatGoesAway) {
  ShowIdle();
  txtProgram.SetFocus();
  txtProgram.Enabled = false;
  EXPECT_EQ(m_aNotes, QStringList({"editor got", "editor lost"}));
}

struct LeavingRow {
  Control* pHolder;
  const char* sHolder;
  Control* pLeaving;  ///< the control itself, or a panel around it
  QProperty<bool> Control::*pProperty;
};

const LeavingRow LeavingRows[] = {
    {&txtProgram, "txtProgram", &txtProgram, &Control::Enabled},
    {&txtProgram, "txtProgram", &txtProgram, &Control::Visible},
    {&cmdSingleStep, "cmdSingleStep", &cmdSingleStep, &Control::Enabled},
    {&cmdSingleStep, "cmdSingleStep", &cmdSingleStep, &Control::Visible},
    {&cmbExamples, "cmbExamples", &cmbExamples, &Control::Visible},
    {&lstProgCommands, "lstProgCommands", &pnlCommandSel, &Control::Visible},
    {&btnSelectComSel, "btnSelectComSel", &pnlCommandSel, &Control::Visible},
    {&btnCloseComSel, "btnCloseComSel", &pnlCommandSel, &Control::Enabled},
};

/// Not to the neighbour, whose button the next key would press.
TEST_F(Focus, OfAControlThatGoesAwayComesToTheKeeper) {
  pnlCommandSel.Visible = true;
  cmbExamples.Visible = true;
  ShowIdle();
  for (const LeavingRow& row : LeavingRows) {
    row.pHolder->SetFocus();
    ASSERT_TRUE(Widget(row.sHolder)->hasFocus()) << row.sHolder;
    row.pLeaving->*row.pProperty = false;
    EXPECT_TRUE(Widget("txtFocusGrab")->hasFocus()) << "row " << &row - LeavingRows;
    row.pLeaving->*row.pProperty = true;
    EXPECT_TRUE(Widget("txtFocusGrab")->hasFocus()) << "row " << &row - LeavingRows;
  }
}

TEST_F(Focus, OfAControlThatGoesAwayIsNobodysWhereTheKeeperCannotTakeIt) {
  ShowIdle();
  const std::pair<Control*, QProperty<bool> Control::*> Rows[] = {
      {&txtFocusGrab, &Control::Visible},
      {&txtFocusGrab, &Control::Enabled},
      {&pnlProgramBox, &Control::Visible},
      {&pnlProgramBox, &Control::Enabled},
  };
  for (const auto& [pControl, pProperty] : Rows) {
    pControl->*pProperty = false;
    cmdManual.SetFocus();
    ASSERT_TRUE(Widget("cmdManual")->hasFocus());
    cmdManual.Enabled = false;
    EXPECT_EQ(MainWindow()->focusWidget(), nullptr);
    cmdManual.Enabled = true;
    pControl->*pProperty = true;
  }
}

TEST_F(Focus, OfTheKeeperItselfGoesToNobody) {
  ShowIdle();
  txtFocusGrab.Enabled = false;
  EXPECT_EQ(MainWindow()->focusWidget(), nullptr);
  txtFocusGrab.Enabled = true;
  txtProgram.SetFocus();
  pnlProgramBox.Visible = false;
  EXPECT_EQ(MainWindow()->focusWidget(), nullptr);
}

TEST_F(Focus, StaysWhereAnotherControlGoesAway) {
  ShowIdle();
  txtProgram.SetFocus();
  cmdRunProgram.Enabled = false;
  pnlCommandSel.Visible = true;
  pnlCommandSel.Visible = false;
  EXPECT_EQ(m_aNotes, QStringList{"editor got"});
}

TEST_F(Focus, OfAListThatGoesAwayUnderItsDropDownComesToTheKeeper) {
  ShowOpenList();
  cmbExamples.Visible = false;
  Settle();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_TRUE(Widget("txtFocusGrab")->hasFocus());
  EXPECT_EQ(m_aNotes, QStringList{"combo lost"});
}

TEST_F(Focus, OfAControlThatGoesAwayUnderAMenuComesToTheKeeper) {
  ShowIdle();
  txtProgram.SetFocus();
  QMenu menu;
  menu.addAction("entry");
  menu.popup(QPoint(0, 0));
  txtProgram.Enabled = false;
  menu.close();
  Settle();
  EXPECT_EQ(MainWindow()->focusWidget(), Widget("txtFocusGrab"));
}

TEST_F(Focus, MayBeSentOnInGotFocus) {
  ShowIdle();
  txtProgram.GotFocus = [] { btnStopProg.SetFocus(); };
  QTest::mouseClick(Editor()->viewport(), Qt::LeftButton);
  txtProgram.SetFocus();
  EXPECT_TRUE(Widget("btnStopProg")->hasFocus());
  EXPECT_FALSE(Editor()->hasFocus());
}

TEST_F(Focus, OfTheFormOutlastsAnotherWindow) {
  ShowIdle();
  txtProgram.SetFocus();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  MainWindow()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(MainWindow()));
  EXPECT_EQ(m_aNotes, QStringList{"editor got"});
}

TEST_F(Focus, ChangesWhileAnotherWindowIsActive) {
  ShowIdle();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  txtProgram.SetFocus();
  EXPECT_EQ(m_aNotes, QStringList{"editor got"});
}

TEST_F(Focus, IsNotLostToTheListsOwnDropDown) {
  ShowOpenList();
  cmbExamples.OpenDropDown(false);
  Settle();
  EXPECT_TRUE(m_aNotes.isEmpty());
  cmdRunProgram.SetFocus();
  EXPECT_EQ(m_aNotes, QStringList({"combo lost", "run got"}));
}

/// Alt puts the keyboard into the menu bar, and Escape gives it back.
TEST_F(Focus, IsNotLostToTheMenuBar) {
  MNUMAIN.Caption = "&File";
  ShowIdle();
  txtProgram.SetFocus();
  QMenuBar* pBar = MainWindow()->menuBar();
  QTest::keyPress(MainWindow()->windowHandle(), Qt::Key_Alt, Qt::AltModifier);
  QTest::keyRelease(MainWindow()->windowHandle(), Qt::Key_Alt);
  ASSERT_TRUE(pBar->hasFocus());
  QTest::keyClick(MainWindow()->windowHandle(), Qt::Key_Escape);
  ASSERT_FALSE(pBar->hasFocus());
  EXPECT_EQ(m_aNotes, QStringList{"editor got"});
  EXPECT_TRUE(Editor()->hasFocus());
}

TEST_F(Focus, MovesByTheTabKeyOutOfTheEditorToo) {
  ShowIdle();
  txtProgram.SetText("A");
  txtProgram.SetFocus();
  QTest::keyClick(Editor(), Qt::Key_Tab);
  EXPECT_TRUE(Widget("txtFocusGrab")->hasFocus())
      << "no list that the next letters would choose in";
  EXPECT_EQ(txtProgram.Text(), "A");
  QTest::keyClick(Widget("txtFocusGrab"), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(Editor()->hasFocus());
}

TEST_F(Focus, TheKeeperTakesTypingAndIsEmptied) {
  ShowIdle();
  QTest::keyClicks(Widget("txtFocusGrab"), "abc");
  EXPECT_EQ(txtFocusGrab.Text(), "abc");
  txtFocusGrab.SetText("");
  EXPECT_EQ(Widget("txtFocusGrab")->property("text").toString(), "");
}

TEST_F(Focus, OfTheFormBringsItsWindowForward) {
  Show();
  frmAbout.Show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(AboutWindow()));
  frmGlidetrak.SetFocus();
  EXPECT_TRUE(QTest::qWaitForWindowActive(MainWindow()));
}

}  // namespace
}  // namespace glidetrak
