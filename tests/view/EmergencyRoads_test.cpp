// The roads to the emergency stop that nothing bars.

#include <QComboBox>
#include <QMenu>
#include <QMessageBox>

#include "common/SharedState.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class EmergencyRoad : public ViewTest {
 protected:
  EmergencyRoad() {
    btnEmergency.MouseDown = [this](int, float, float) { ++m_iPresses; };
  }

  /// The middle of the button on the screen.
  static QPoint ButtonPlace() {
    const QWidget* pButton = Widget("btnEmergency");
    return pButton->mapToGlobal(QPoint(20, pButton->height() / 2));
  }

  /// A press at a place of the screen as the system delivers it while a pop-up is open: to that.
  static void PressOnPopup(QWidget* pPopup, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
    Press(pPopup, pPopup->mapFromGlobal(place), button);
  }

  int m_iPresses = 0;
};

TEST_F(EmergencyRoad, BothKeysPressTheButton) {
  Show();
  QTest::keyClick(MainWindow()->windowHandle(), Qt::Key_F12);
  EXPECT_EQ(m_iPresses, 1);
  QTest::keyClick(MainWindow()->windowHandle(), Qt::Key_Pause);
  EXPECT_EQ(m_iPresses, 2);
}

TEST_F(EmergencyRoad, AHeldKeyPressesOnce) {
  Show();
  QKeyEvent first(QEvent::KeyPress, Qt::Key_F12, Qt::NoModifier);
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_F12, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(MainWindow()->windowHandle(), &first);
  QCoreApplication::sendEvent(MainWindow()->windowHandle(), &repeated);
  EXPECT_EQ(m_iPresses, 1);
}

TEST_F(EmergencyRoad, TheKeysOfARunningProgramHearNeither) {
  ShowEditor();
  txtProgram.SetFocus();
  bProgramRunning = true;
  QStringList aNotes;
  frmGlidetrak.KeyDown = [&](int& iCode) { aNotes.append(QString::number(iCode)); };
  frmGlidetrak.KeyUp = [&](int& iCode) { aNotes.append(QString::number(iCode)); };
  QTest::keyClick(Editor(), Qt::Key_F12);
  QTest::keyClick(MainWindow()->windowHandle(), Qt::Key_Pause);
  EXPECT_EQ(m_iPresses, 2);
  EXPECT_TRUE(aNotes.isEmpty()) << aNotes.join(' ').toStdString();
}

TEST_F(EmergencyRoad, TheKeysWorkInEveryWindowOfTheStation) {
  Show();
  frmAbout.Show();
  Settle();
  QTest::keyClick(AboutWindow()->windowHandle(), Qt::Key_F12);
  EXPECT_EQ(m_iPresses, 1);
  QMessageBox box(MainWindow());
  box.open();
  Settle();
  QTest::keyClick(box.windowHandle(), Qt::Key_Pause);
  EXPECT_EQ(m_iPresses, 2);
  EXPECT_TRUE(box.isVisible());
  QMenu menu;
  menu.addAction("entry");
  menu.popup(QPoint(0, 0));
  QTest::keyClick(&menu, Qt::Key_F12);
  EXPECT_EQ(m_iPresses, 3);
}

/// A second copy of the station has a box open then, and the rig is the first one's.
TEST_F(EmergencyRoad, TheKeysDoNothingBeforeTheWindowWasShown) {
  QMessageBox box;
  box.open();
  Settle();
  QTest::keyClick(box.windowHandle(), Qt::Key_F12);
  EXPECT_EQ(m_iPresses, 0);
}

TEST_F(EmergencyRoad, TheKeysDoNothingOnceShutDownHasBegun) {
  Show();
  bShuttingDown = true;
  QTest::keyClick(MainWindow()->windowHandle(), Qt::Key_F12);
  EXPECT_EQ(m_iPresses, 0);
}

TEST_F(EmergencyRoad, APressOverTheButtonActsAndClosesTheOpenMenu) {
  Show();
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
    m_iPresses = 0;
    QMenu menu;
    menu.addMenu("more")->addAction("entry");
    menu.popup(MainWindow()->mapToGlobal(QPoint(0, 20)));
    PressOnPopup(&menu, ButtonPlace(), button);
    EXPECT_EQ(m_iPresses, 1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
}

TEST_F(EmergencyRoad, APressOverTheButtonActsAndClosesTheOpenList) {
  ShowEditor();
  cmbExamples.List = QStringList{"1", "2"};
  cmbExamples.Visible = true;
  cmbExamples.OpenDropDown(true);
  QWidget* pPopup = QApplication::activePopupWidget();
  ASSERT_NE(pPopup, nullptr);
  PressOnPopup(pPopup, ButtonPlace());
  EXPECT_EQ(m_iPresses, 1);
  EXPECT_FALSE(pPopup->isVisible());
}

TEST_F(EmergencyRoad, APressElsewhereOnlyClosesTheMenu) {
  Show();
  QMenu menu;
  menu.addAction("entry");
  menu.popup(MainWindow()->mapToGlobal(QPoint(0, 20)));
  const QWidget* pReset = Widget("btnRstStop");
  PressOnPopup(&menu, pReset->mapToGlobal(pReset->rect().center()));
  EXPECT_EQ(m_iPresses, 0);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(EmergencyRoad, APressWhereThePopupCoversTheButtonIsThePopups) {
  Show();
  QMenu menu;
  menu.addAction("a long entry of this menu");
  menu.popup(ButtonPlace() - QPoint(10, 10));
  ASSERT_TRUE(menu.geometry().contains(ButtonPlace()));
  PressOnPopup(&menu, ButtonPlace());
  EXPECT_EQ(m_iPresses, 0);
}

TEST_F(EmergencyRoad, WithoutAPopupAPressIsHeardOnce) {
  Show();
  QTest::mousePress(MainWindow()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                    MainWindow()->mapFromGlobal(ButtonPlace()));
  EXPECT_EQ(m_iPresses, 1);
}

}  // namespace
}  // namespace glidetrak
