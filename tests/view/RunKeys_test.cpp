// Keys: all of them go to the form while a program runs, and to the widgets while none does.

#include <QLineEdit>

#include "common/SharedState.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Keys : public ViewTest {
 protected:
  Keys() {
    frmGlidetrak.KeyDown = [this](int& iCode) { Hear("down", iCode); };
    frmGlidetrak.KeyPress = [this](int& iCode) { Hear("press", iCode); };
    frmGlidetrak.KeyUp = [this](int& iCode) { Hear("up", iCode); };
  }

  void Hear(const char* sEvent, int& iCode) {
    m_aNotes.append(QString("%1 %2").arg(sEvent).arg(iCode));
    if (iCode == m_iStopKey) bProgramRunning = false;
    if (iCode == m_iSwallowed) iCode = 0;
  }

  void ShowRunning() {
    ShowEditor();
    txtProgram.SetText("PRINT");
    txtProgram.SetFocus();
    bProgramRunning = true;
  }

  QStringList m_aNotes;
  int m_iStopKey = -1;
  int m_iSwallowed = -1;
};

TEST_F(Keys, OfARunGoToTheFormAndNoFurther) {
  ShowRunning();
  QTest::keyClick(Editor(), Qt::Key_A);
  EXPECT_EQ(m_aNotes, QStringList({"down 65", "press 97", "up 65"}));
  EXPECT_EQ(txtProgram.Text(), "PRINT");
}

TEST_F(Keys, OfARunComeWhateverHasTheFocus) {
  ShowRunning();
  QStringList aClicks;
  cmdManual.Click = Note(aClicks, "click");
  for (const char* sName : {"txtFocusGrab", "cmdManual", "btnStopProg"}) {
    m_aNotes.clear();
    Widget(sName)->setFocus();
    QTest::keyClick(Widget(sName), Qt::Key_Return);
    EXPECT_EQ(m_aNotes, QStringList({"down 13", "press 13", "up 13"})) << sName;
  }
  EXPECT_TRUE(aClicks.isEmpty());
  EXPECT_EQ(qobject_cast<QLineEdit*>(Widget("txtFocusGrab"))->text(), "");
}

TEST_F(Keys, OfARunComeThroughTheWindow) {
  ShowRunning();
  QTest::keyClick(MainWindow()->windowHandle(), Qt::Key_B);
  EXPECT_EQ(m_aNotes, QStringList({"down 66", "press 98", "up 66"}));
}

TEST_F(Keys, WithoutACharacterHaveNoPress) {
  ShowRunning();
  QTest::keyClick(Editor(), Qt::Key_F1);
  QTest::keyClick(Editor(), Qt::Key_Delete);
  EXPECT_EQ(m_aNotes, QStringList({"down 112", "up 112", "down 46", "up 46"}));
  EXPECT_EQ(txtProgram.Text(), "PRINT");
}

TEST_F(Keys, TabStaysInARun) {
  ShowRunning();
  QTest::keyClick(Editor(), Qt::Key_Tab);
  EXPECT_EQ(m_aNotes.first(), "down 9");
  EXPECT_TRUE(Editor()->hasFocus());
}

TEST_F(Keys, OfARunAreNoShortcuts) {
  ShowRunning();
  QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_F, Qt::AltModifier, "f");
  event.ignore();
  QCoreApplication::sendEvent(Editor(), &event);
  EXPECT_TRUE(event.isAccepted());
}

TEST_F(Keys, TheOneThatStopsTheRunHasNoPress) {
  ShowRunning();
  m_iStopKey = 32;
  QTest::keyPress(Editor(), Qt::Key_Space);
  EXPECT_EQ(m_aNotes, QStringList{"down 32"});
  EXPECT_EQ(txtProgram.Text(), "PRINT");
  QTest::keyRelease(Editor(), Qt::Key_Space);
  QTest::keyClick(Editor(), Qt::Key_Space);
  EXPECT_EQ(txtProgram.Text(), " PRINT");
}

/// The handlers of the boxes behind the form hear the release only if the form lets it through.
TEST_F(Keys, AReleaseIsSwallowedOnlyByTheHandler) {
  ShowRunning();
  txtProgram.KeyUp = [this](int& iCode) { Hear("editor up", iCode); };
  QTest::keyRelease(Editor(), Qt::Key_A);
  m_iSwallowed = 32;
  QTest::keyRelease(Editor(), Qt::Key_Space);
  EXPECT_EQ(m_aNotes, QStringList({"up 65", "editor up 65", "up 32"}));
}

TEST_F(Keys, WhileIdleGoToTheWidgets) {
  ShowRunning();
  bProgramRunning = false;
  QTest::keyClicks(Editor(), "ab");
  EXPECT_EQ(txtProgram.Text(), "abPRINT");
  EXPECT_TRUE(m_aNotes.isEmpty());
}

TEST_F(Keys, WhileIdleAreToldByTheBoxes) {
  ShowRunning();
  bProgramRunning = false;
  txtProgram.KeyDown = [this](int& iCode) { Hear("editor down", iCode); };
  txtProgram.KeyPress = [this](int& iCode) { Hear("editor press", iCode); };
  txtFocusGrab.KeyDown = [this](int& iCode) { Hear("keeper down", iCode); };
  QTest::keyClick(Editor(), Qt::Key_A);
  QTest::keyClick(Widget("txtFocusGrab"), Qt::Key_B);
  EXPECT_EQ(m_aNotes, QStringList({"editor down 65", "editor press 97", "keeper down 66"}));
  EXPECT_EQ(txtProgram.Text(), "aPRINT");
}

TEST_F(Keys, ABoxMaySwallowThem) {
  pnlCommandSel.Visible = true;
  Show();
  auto* pPane = MainWindow()->findChild<QPlainTextEdit*>("txtHELPExample");
  txtHELPExample.KeyDown = [](int& iCode) {
    if (iCode > 31) iCode = 0;
  };
  QTest::keyClick(pPane, Qt::Key_A);
  EXPECT_EQ(txtHELPExample.Text(), "");
  txtHELPExample.KeyDown = {};
  txtHELPExample.KeyPress = [](int& iCode) { iCode = 0; };
  QTest::keyClick(pPane, Qt::Key_A);
  EXPECT_EQ(txtHELPExample.Text(), "");
  txtHELPExample.KeyPress = {};
  QTest::keyClick(pPane, Qt::Key_A);
  EXPECT_EQ(txtHELPExample.Text(), "a");
}

TEST_F(Keys, OfTheStartUpBoxAreTheRunsToo) {
  ShowRunning();
  frmAbout.Show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(AboutWindow()));
  QTest::keyClick(AboutWindow()->windowHandle(), Qt::Key_7);
  m_iStopKey = 32;
  QTest::keyPress(AboutWindow()->windowHandle(), Qt::Key_Space);
  EXPECT_EQ(m_aNotes, QStringList({"down 55", "press 55", "up 55", "down 32"}));
  EXPECT_FALSE(bProgramRunning);
}

TEST_F(Keys, OfOtherWindowsAreTheirOwnDuringARun) {
  ShowRunning();
  QLineEdit other;
  other.show();
  QTest::keyClicks(&other, "xy");
  EXPECT_EQ(other.text(), "xy");
  EXPECT_TRUE(m_aNotes.isEmpty());
}

}  // namespace
}  // namespace glidetrak
