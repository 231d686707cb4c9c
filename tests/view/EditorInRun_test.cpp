// The editor and the focus while a program runs, with the station's own handlers behind the
// widgets.

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

#include "authoring/CommandCatalogue.h"
#include "authoring/CommandPicker.h"
#include "authoring/Document.h"
#include "authoring/ProgramEditor.h"
#include "common/SharedState.h"
#include "language/Keywords.h"
#include "language/RunControl.h"
#include "shell/Events.h"
#include "view/EditorTest.h"
#include "view/ViewDesktop.h"

namespace glidetrak {
namespace {

class EditorInRun : public EditorTest {
 protected:
  EditorInRun() {
    pDesktop = &m_desktop;
    LoadKeywords();
    BuildCommandCatalogue();
    WireEvents();
    tmrSystem.Fired = {};  // it would look for a rig
  }

  /// The editor with the focus and its middle word selected, as a Trace step leaves it.
  void StartStep() {
    ShowEditor();
    txtProgram.SetText("one two three");
    txtProgram.SetFocus();
    txtProgram.Select(4, 3);
    Settle();
    bProgramDirty = false;
    bProgramRunning = true;
  }

  /// Does it, and finds the text as it was.
  void ExpectNothingComesOf(const std::function<void()>& act) {
    StartStep();
    act();
    Settle();
    EXPECT_EQ(txtProgram.Text(), "one two three");
    EXPECT_EQ(Editor()->toPlainText(), "one two three");
    EXPECT_FALSE(bProgramDirty);
    EXPECT_TRUE(Editor()->isEnabled());
    bProgramRunning = false;
    Type("x");
    EXPECT_EQ(txtProgram.Text(), "one x three") << "the editor is the user's again";
  }

  static bool IsFocus(const char* sName) { return Widget(sName)->hasFocus(); }

  ViewDesktop m_desktop;
};

TEST_F(EditorInRun, TakesNoInputMethodsText) {
  ExpectNothingComesOf([] {
    QInputMethodEvent event;
    event.setCommitString(QChar(0xE9));
    QApplication::sendEvent(Editor(), &event);
  });
}

TEST_F(EditorInRun, ShowsNoInputMethodsDraft) {
  ExpectNothingComesOf([] {
    QInputMethodEvent draft("draft", {});
    QApplication::sendEvent(Editor(), &draft);
    EXPECT_EQ(Editor()->document()->firstBlock().layout()->preeditAreaText(), "");
    EXPECT_FALSE(Editor()->testAttribute(Qt::WA_InputMethodEnabled));
  });
  EXPECT_TRUE(Editor()->testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(EditorInRun, TakesNoKeys) {
  ExpectNothingComesOf([] {
    Type("x");
    Key(Qt::Key_Delete);
    Key(Qt::Key_Return);
    Key(Qt::Key_V, Qt::ControlModifier);
    Key(Qt::Key_Z, Qt::ControlModifier);
  });
}

TEST_F(EditorInRun, TakesNoPaste) {
  ExpectNothingComesOf([] { Paste("pasted"); });
}

TEST_F(EditorInRun, CutsNothing) {
  ExpectNothingComesOf([] { Editor()->cut(); });
}

TEST_F(EditorInRun, TakesNoDrop) {
  ExpectNothingComesOf([] {
    QMimeData data;
    data.setText("dropped");
    const QPoint place(5, 5);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(Editor()->viewport(), &enter);
    QDropEvent drop(QPointF(place), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(Editor()->viewport(), &drop);
  });
}

TEST_F(EditorInRun, OffersNothingThatChangesTheText) {
  QApplication::clipboard()->setText("pasted");
  ExpectNothingComesOf([] {
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                            Editor()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(Editor()->viewport(), &event);
    auto* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(pMenu, nullptr);
    for (QAction* pAction : pMenu->actions()) {
      if (pAction->text().contains("Select")) continue;
      pAction->trigger();
    }
    pMenu->close();
  });
}

TEST_F(EditorInRun, CanBeReadAndCopied) {
  StartStep();
  Editor()->copy();
  EXPECT_EQ(QApplication::clipboard()->text(), "two");
}

TEST_F(EditorInRun, SendsTheFocusOnToStop) {
  StartStep();
  txtFocusGrab.SetFocus();
  QTest::mouseClick(Editor()->viewport(), Qt::LeftButton);
  EXPECT_TRUE(IsFocus("btnStopProg"));
}

/// From the editor to the keeper when Run disables it, and there at the end.
TEST_F(EditorInRun, LeavesTheFocusToTheKeeperForARun) {
  ShowEditor();
  txtProgram.SetText("WAIT 200");
  txtProgram.SetFocus();
  bool bSeen = false;
  QTimer::singleShot(100, MainWindow(), [&] {
    bSeen = true;
    EXPECT_TRUE(bProgramRunning);
    EXPECT_FALSE(Editor()->isEnabled());
    EXPECT_TRUE(IsFocus("txtFocusGrab"));
  });
  MNURUN.Click();
  EXPECT_TRUE(bSeen);
  EXPECT_TRUE(IsFocus("txtFocusGrab"));
  EXPECT_TRUE(Editor()->isEnabled());
}

TEST_F(EditorInRun, KeepsTheFocusThroughATraceStep) {
  ShowEditor();
  txtProgram.SetText("WAIT 200");
  txtProgram.SetFocus();
  QTimer::singleShot(100, MainWindow(), [] { Type("x"); });
  MNUSTEPFORWARD.Click();
  EXPECT_TRUE(IsFocus("txtProgram"));
  EXPECT_EQ(txtProgram.Text(), "WAIT 200");
}

/// An error of the step disables the editor for a moment.
TEST_F(EditorInRun, LeavesTheFocusToTheKeeperWhenATraceStepEndsTheProgram) {
  ShowEditor();
  txtProgram.SetText("BREAK");
  txtProgram.SetFocus();
  MNUSTEPFORWARD.Click();
  EXPECT_TRUE(IsFocus("txtFocusGrab"));
}

TEST_F(EditorInRun, TheKeeperHasTheFocusWhenThePickerCloses) {
  ShowEditor();
  txtProgram.SetFocus();
  cmdProgCommands_Click();
  ASSERT_TRUE(IsFocus("lstProgCommands"));
  CloseCommandPicker();
  EXPECT_TRUE(IsFocus("txtFocusGrab"));
}

/// The insertion stands selected, and a key typed onto it takes its place.
TEST_F(EditorInRun, AKeyReplacesWhatThePickerHasPutIn) {
  ShowEditor();
  txtProgram.SetFocus();
  cmdProgCommands_Click();
  lstProgCommands.ListIndex = 7;
  btnSelectComSel_Click();
  ASSERT_EQ(txtProgram.SelText(), "GET ");
  QTest::keyClick(Widget("txtFocusGrab"), Qt::Key_Backtab, Qt::ShiftModifier);
  Type("x");
  EXPECT_EQ(txtProgram.Text(), "x");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(txtProgram.Text(), "GET ");
}

}  // namespace
}  // namespace glidetrak
