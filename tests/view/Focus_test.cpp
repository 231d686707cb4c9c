// Who has the focus, and who is told.

#include <QComboBox>

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
  cmbExamples.Visible = true;
  cmbExamples.List = QStringList{"one"};
  ShowIdle();
  cmbExamples.SetFocus();
  cmbExamples.OpenDropDown(true);
  Settle();
  cmbExamples.OpenDropDown(false);
  Settle();
  EXPECT_TRUE(m_aNotes.isEmpty());
  cmdRunProgram.SetFocus();
  EXPECT_EQ(m_aNotes, QStringList({"combo lost", "run got"}));
}

TEST_F(Focus, MovesByTheTabKeyOutOfTheEditorToo) {
  ShowIdle();
  txtProgram.SetText("A");
  txtProgram.SetFocus();
  QTest::keyClick(Editor(), Qt::Key_Tab);
  EXPECT_FALSE(Editor()->hasFocus());
  EXPECT_EQ(txtProgram.Text(), "A");
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
