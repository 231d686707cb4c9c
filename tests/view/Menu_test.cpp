// The menu bar.

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Menu : public ViewTest {
 protected:
  static QAction* Entry(const char* sName) { return MainWindow()->findChild<QAction*>(sName); }
};

TEST_F(Menu, HoldsTheTableInItsOrder) {
  QStringList aNames;
  for (const QAction* pHead : MainWindow()->menuBar()->actions()) {
    aNames.append(pHead->objectName());
    for (const QAction* pEntry : pHead->menu()->actions()) aNames.append(pEntry->objectName());
  }
  QStringList aExpected;
  for (const MenuRow& row : MenuTable()) aExpected.append(row.sName);
  EXPECT_EQ(aNames, aExpected);
}

TEST_F(Menu, ShowsCaptionsWithTheirAccessKeys) {
  MNUMAIN.Caption = "&Archivo";
  MNURUN.Caption = "Ejecutar programa";
  EXPECT_EQ(Entry("MNUMAIN")->text(), "&Archivo");
  EXPECT_EQ(Entry("MNURUN")->text(), "Ejecutar programa");
}

TEST_F(Menu, FollowsVisibleAndEnabled) {
  MNUShowDebug.Visible = false;
  EXPECT_FALSE(Entry("MNUShowDebug")->isVisible());
  MNUSAVEPROG.Enabled = false;
  EXPECT_FALSE(Entry("MNUSAVEPROG")->isEnabled());
  MNUPROGRAMOPT.Enabled = false;
  EXPECT_FALSE(Entry("MNUPROGRAMOPT")->isEnabled());
  MNUPROGRAMOPT.Enabled = true;
  EXPECT_TRUE(Entry("MNUPROGRAMOPT")->isEnabled());
}

TEST_F(Menu, AChosenEntryIsAClick) {
  QStringList aNotes;
  MNUNEWPROG.Click = Note(aNotes, "new");
  Entry("MNUNEWPROG")->trigger();
  MNUNEWPROG.Enabled = false;
  Entry("MNUNEWPROG")->trigger();
  EXPECT_EQ(aNotes, QStringList{"new"});
}

TEST_F(Menu, KeepsItsHeightWhenTheCaptionsCome) {
  const int iHeight = MainWindow()->menuBar()->height();
  MNUMAIN.Caption = "&File";
  MNUHELP.Caption = "&Help";
  Show();
  EXPECT_EQ(MainWindow()->menuBar()->height(), iHeight);
  EXPECT_GT(iHeight, 10);
}

}  // namespace
}  // namespace glidetrak
