// The picker's example pane: to be read, copied and left, but not to be changed.

#include <QApplication>
#include <QClipboard>

#include "authoring/CommandCatalogue.h"
#include "authoring/CommandPicker.h"
#include "language/Keywords.h"
#include "shell/Events.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class ExamplePane : public ViewTest {
 protected:
  ExamplePane() {
    LoadKeywords();
    BuildCommandCatalogue();
    WireEvents();
    tmrSystem.Fired = {};  // it would look for a rig
    ShowEditor();
    ShowCommandPicker();
    txtHELPExample.SetFocus();
    m_sExample = txtHELPExample.Text();
  }

  static QPlainTextEdit* Pane() {
    return MainWindow()->findChild<QPlainTextEdit*>("txtHELPExample");
  }
  /// As the system sends it: with a control character for the text.
  static void CtrlKey(Qt::Key key, QChar character) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier, character);
    QApplication::sendEvent(Pane(), &event);
  }

  QString m_sExample;
};

TEST_F(ExamplePane, IsLeftByTab) {
  ASSERT_TRUE(Pane()->hasFocus());
  QTest::keyClick(Pane(), Qt::Key_Tab);
  EXPECT_FALSE(Pane()->hasFocus());
  Pane()->setFocus();
  QTest::keyClick(Pane(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_FALSE(Pane()->hasFocus());
  EXPECT_EQ(txtHELPExample.Text(), m_sExample);
}

TEST_F(ExamplePane, SwallowsATabThatComesAsAKey) {
  CtrlKey(Qt::Key_Tab, u'\t');
  CtrlKey(Qt::Key_I, u'\t');
  EXPECT_EQ(Pane()->toPlainText(), m_sExample.replace("\r\n", "\n"));
  EXPECT_TRUE(Pane()->hasFocus());
}

TEST_F(ExamplePane, IsCopiedByCtrlC) {
  txtHELPExample.Select(0, 3);
  Settle();
  CtrlKey(Qt::Key_C, QChar(3));
  EXPECT_EQ(QApplication::clipboard()->text(), m_sExample.left(3));
}

TEST_F(ExamplePane, IsNotChangedByAnyKey) {
  txtHELPExample.Select(0, 3);
  Settle();
  QTest::keyClicks(Pane(), "a1 ");
  QTest::keyClick(Pane(), Qt::Key_Backspace);
  QTest::keyClick(Pane(), Qt::Key_Delete);
  QTest::keyClick(Pane(), Qt::Key_Return);
  CtrlKey(Qt::Key_X, QChar(24));
  Settle();
  EXPECT_EQ(txtHELPExample.Text(), m_sExample);
  EXPECT_EQ(Pane()->toPlainText(), m_sExample.replace("\r\n", "\n"));
}

}  // namespace
}  // namespace glidetrak
