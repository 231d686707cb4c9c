// The drop-down list and the command list: the user's choice and the station's.

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>

#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Choices : public ViewTest {
 protected:
  Choices() {
    pnlProgramBox.Visible = true;
    pnlCommandSel.Visible = true;
    cmbExamples.Visible = true;
    cmbExamples.List = QStringList{"one", "two", "three"};
    lstProgCommands.List = QStringList{"PRINT ", "BREAK", "LABEL "};
    cmbExamples.Click = [this] { NoteChoice("combo", cmbExamples.ListIndex); };
    lstProgCommands.Click = [this] { NoteChoice("list", lstProgCommands.ListIndex); };
  }

  void NoteChoice(const char* sWhich, int iIndex) {
    m_aNotes.append(QString("%1 %2").arg(sWhich).arg(iIndex));
  }

  QComboBox* Combo() { return MainWindow()->findChild<QComboBox*>("cmbExamples"); }
  QListWidget* List() { return MainWindow()->findChild<QListWidget*>("lstProgCommands"); }
  void ClickEntry(int iRow) {
    const QRect place = List()->visualItemRect(List()->item(iRow));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, place.center());
  }

  QStringList m_aNotes;
};

TEST_F(Choices, TheStationsOwnIndexIsNoClick) {
  Show();
  cmbExamples.ListIndex = 2;
  cmbExamples.ListIndex = -1;
  cmbExamples.List = QStringList{"four"};
  lstProgCommands.ListIndex = 1;
  EXPECT_TRUE(m_aNotes.isEmpty());
}

TEST_F(Choices, AUsersChoiceIsWrittenAheadOfTheClick) {
  Show();
  QTest::keyClick(Combo(), Qt::Key_Down);
  QTest::keyClick(Combo(), Qt::Key_Down);
  EXPECT_EQ(m_aNotes, QStringList({"combo 0", "combo 1"}));
}

TEST_F(Choices, TheSameEntryChosenAgainIsAClick) {
  Show();
  cmbExamples.ListIndex = 1;
  cmbExamples.OpenDropDown(true);
  Settle();
  QTest::keyClick(Combo()->view(), Qt::Key_Return);
  EXPECT_EQ(m_aNotes, QStringList{"combo 1"});
}

TEST_F(Choices, TheDropDownOpensAndCloses) {
  Show();
  cmbExamples.OpenDropDown(true);
  EXPECT_TRUE(Combo()->view()->isVisible());
  cmbExamples.OpenDropDown(false);
  EXPECT_FALSE(Combo()->view()->isVisible());
}

TEST_F(Choices, ADropDownOfAHiddenOrDisabledListStaysClosed) {
  Show();
  cmbExamples.Visible = false;
  cmbExamples.OpenDropDown(true);
  EXPECT_FALSE(Combo()->view()->isVisible());
  cmbExamples.Visible = true;
  cmbExamples.Enabled = false;
  cmbExamples.OpenDropDown(true);
  EXPECT_FALSE(Combo()->view()->isVisible());
}

TEST_F(Choices, TheUsersMoveInTheListIsAClick) {
  Show();
  lstProgCommands.ListIndex = 0;
  ClickEntry(2);
  QTest::keyClick(List(), Qt::Key_Up);
  EXPECT_EQ(m_aNotes, QStringList({"list 2", "list 1"}));
}

TEST_F(Choices, APressInTheListFindsTheEntryChosen) {
  Show();
  lstProgCommands.ListIndex = 0;
  lstProgCommands.MouseDown = [this](int, float, float) {
    NoteChoice("down at", lstProgCommands.ListIndex);
  };
  ClickEntry(1);
  EXPECT_EQ(m_aNotes, QStringList({"list 1", "down at 1"}));
}

TEST_F(Choices, ADoubleClickInTheListIsTold) {
  Show();
  lstProgCommands.DblClick = [this] { NoteChoice("double", lstProgCommands.ListIndex); };
  const QRect place = List()->visualItemRect(List()->item(2));
  DoubleClick(List()->viewport(), place.center());
  EXPECT_EQ(m_aNotes, QStringList({"list 2", "double 2"}));
}

TEST_F(Choices, TheListTellsItsKeys) {
  Show();
  lstProgCommands.KeyDown = [this](int& iCode) { NoteChoice("down", iCode); };
  lstProgCommands.KeyPress = [this](int& iCode) { NoteChoice("press", iCode); };
  lstProgCommands.KeyUp = [this](int& iCode) { NoteChoice("up", iCode); };
  QTest::keyClick(List(), Qt::Key_X, Qt::NoModifier);
  EXPECT_EQ(m_aNotes, QStringList({"down 88", "press 120", "up 88"}));
}

}  // namespace
}  // namespace glidetrak
