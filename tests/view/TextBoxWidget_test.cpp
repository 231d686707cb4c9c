// The editor: what the user does in the widget reaches the station's text, and nothing else of that
// text changes.

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QScrollBar>
#include <QTimer>

#include "view/EditorTest.h"

namespace glidetrak {
namespace {

using Editing = EditorTest;

TEST_F(Editing, TypingIsOneChangeAKey) {
  Start("PRINT", 5);
  Type("a;");
  EXPECT_EQ(txtProgram.Text(), "PRINTa;");
  EXPECT_EQ(m_iChanges, 2);
  EXPECT_EQ(txtProgram.SelStart(), 7);
  ExpectInStep();
}

TEST_F(Editing, EnterIsCarriageReturnAndLineFeed) {
  Start("AB", 1);
  Key(Qt::Key_Return);
  EXPECT_EQ(txtProgram.Text(), "A\r\nB");
  EXPECT_EQ(txtProgram.SelStart(), 3);
  Key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(txtProgram.Text(), "A\r\n\r\nB");
  EXPECT_EQ(m_iChanges, 2);
  ExpectInStep();
}

TEST_F(Editing, BackspaceTakesAWholeLineEnd) {
  Start("A\r\nB", 3);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(txtProgram.Text(), "AB");
  EXPECT_EQ(txtProgram.SelStart(), 1);
  Key(Qt::Key_Delete);
  EXPECT_EQ(txtProgram.Text(), "A");
  ExpectInStep();
}

TEST_F(Editing, TypingReplacesTheSelection) {
  Start("one\r\ntwo\r\nthree", 2, 8);
  Type("X");
  EXPECT_EQ(txtProgram.Text(), "onXthree");
  EXPECT_EQ(m_iChanges, 1);
  ExpectInStep();
}

TEST_F(Editing, PastedLineEndsBecomeTheStations) {
  Start("AB", 1);
  Paste("1\n2\r\n3\r4");
  EXPECT_EQ(txtProgram.Text(), "A1\r\n2\r\n3\r\n4B");
  EXPECT_EQ(m_iChanges, 1);
  ExpectInStep();
}

TEST_F(Editing, UndoJoinsAndPartsLines) {
  Start("A\r\nB", 3);
  Key(Qt::Key_Backspace);
  Type("-");
  Editor()->undo();
  Editor()->undo();
  EXPECT_EQ(txtProgram.Text(), "A\r\nB");
  ExpectInStep();
}

TEST_F(Editing, CopiedLineEndsAreTheClipboards) {
  Start("A\r\nB\r\n", 0, 6);
  Editor()->copy();
  EXPECT_EQ(QApplication::clipboard()->text(), "A\nB\n");
}

TEST_F(Editing, TheStationsTextReplacesTheWidgetsAndIsNotUndone) {
  Start("one", 3);
  Type("!");
  txtProgram.SetText("two");
  EXPECT_EQ(Editor()->toPlainText(), "two");
  EXPECT_FALSE(Editor()->document()->isUndoAvailable());
  Editor()->undo();
  EXPECT_EQ(txtProgram.Text(), "two");
  ExpectInStep();
}

TEST_F(Editing, AReplacedSelectionShowsInTheWidget) {
  Start("one two", 4, 3);
  txtProgram.ReplaceSelection("HALT\r\n");
  EXPECT_EQ(Editor()->toPlainText(), "one HALT\n");
  Settle();
  EXPECT_EQ(Editor()->textCursor().position(), 9);
  ExpectInStep();
}

TEST_F(Editing, AReplacedSelectionCanBeUndoneAndWhatWasTypedBeforeItToo) {
  Start("one two\r\nthree", 7);
  Type("!");
  txtProgram.Select(4, 4);
  txtProgram.ReplaceSelection("HALT\r\n");
  ExpectInStep();
  EXPECT_EQ(txtProgram.Text(), "one HALT\r\n\r\nthree");
  Editor()->undo();
  EXPECT_EQ(txtProgram.Text(), "one two!\r\nthree");
  Editor()->undo();
  EXPECT_EQ(txtProgram.Text(), "one two\r\nthree");
  Editor()->redo();
  Editor()->redo();
  EXPECT_EQ(txtProgram.Text(), "one HALT\r\n\r\nthree");
  ExpectInStep();
}

TEST_F(Editing, AReplacedSelectionLeavesTheScrollPlace) {
  QString sText;
  for (int i = 0; i < 200; ++i) sText += "BEEP\r\n";
  Start(sText, 600);
  QScrollBar* pBar = Editor()->verticalScrollBar();
  pBar->setValue(pBar->value() + 5);
  const int iScroll = pBar->value();
  txtProgram.ReplaceSelection("HALT\r\n");
  txtProgram.Select(600, 6);
  Settle();
  EXPECT_EQ(pBar->value(), iScroll);
}

/// Where the new text parts or makes a line end the widget is filled anew, and then has no undo.
TEST_F(Editing, AReplacedSelectionMayPartOrMakeALineEnd) {
  const struct {
    const char* sText;
    int iStart, iLength;
    const char* sNew;
    const char* sExpected;
  } Rows[] = {
      {"A\r\nB", 2, 0, "X", "A\rX\nB"},     {"A\rX\nB", 2, 1, "", "A\r\nB"},
      {"A\r\nB", 0, 2, "X", "X\nB"},        {"A\nB", 1, 0, "\r", "A\r\nB"},
      {"A\r\nB", 2, 1, "\r\n", "A\r\r\nB"}, {"A\r\nB\r\n", 0, 6, "", ""},
  };
  Start("");
  for (const auto& row : Rows) {
    txtProgram.SetText(row.sText);
    txtProgram.Select(row.iStart, row.iLength);
    txtProgram.ReplaceSelection(row.sNew);
    EXPECT_EQ(txtProgram.Text(), row.sExpected);
    ExpectInStep();
  }
}

TEST_F(Editing, TextIsNotDragged) {
  Start("one two three", 4, 3);
  QWidget* pPage = Editor()->viewport();
  QTextCursor inside(Editor()->document());
  inside.setPosition(5);
  const QPoint place = Editor()->cursorRect(inside).center();
  QTimer::singleShot(200, pPage, [] { QDrag::cancel(); });
  Press(pPage, place);
  EXPECT_EQ(txtProgram.SelStart(), 5);
  EXPECT_EQ(txtProgram.SelLength(), 0);
  inside.setPosition(10);
  Move(pPage, Editor()->cursorRect(inside).center(), Qt::LeftButton);
  Release(pPage, Editor()->cursorRect(inside).center());
  EXPECT_EQ(txtProgram.SelText(), "wo th") << "a new selection, and no drag";
  EXPECT_EQ(txtProgram.Text(), "one two three");
}

TEST_F(Editing, ThreePressesSelectTheLine) {
  Start("one two\r\nthree");
  const QPoint place = Editor()->cursorRect().center() + QPoint(3, 0);
  DoubleClick(Editor()->viewport(), place);
  EXPECT_EQ(txtProgram.SelText(), "one");
  Press(Editor()->viewport(), place);
  Release(Editor()->viewport(), place);
  EXPECT_EQ(txtProgram.SelText(), "one two\r\n");
}

TEST_F(Editing, TheStationMaySetTheTextWhileItHearsOfAnEdit) {
  Start("PRINT", 5);
  txtProgram.Change = [] {
    if (txtProgram.Text() != "PRINT") txtProgram.SetText("PRINT");
  };
  Type("x");
  EXPECT_EQ(txtProgram.Text(), "PRINT");
  ExpectInStep();
}

TEST_F(Editing, AFailingChangeHandlerEndsInTheEdit) {
  Start("A", 1);
  txtProgram.Change = [] { throw RuntimeError(Fault::Overflow); };
  EXPECT_NO_THROW(Type("b"));
  EXPECT_EQ(txtProgram.Text(), "Ab");
}

TEST_F(Editing, ALongProgramIsEditedInItsMiddle) {
  QString sText;
  while (sText.size() < 32'764 - 12) sText += "WAIT 1000;\r\n";
  sText += QString(32'764 - sText.size(), u'A');
  Start(sText, 16'000);
  ASSERT_EQ(txtProgram.Text().size(), 32'764);
  ExpectInStep();
  Type("x");
  EXPECT_EQ(txtProgram.Text(), sText.left(16'000) + "x" + sText.mid(16'000));
  ExpectInStep();
}

TEST_F(Editing, ADisabledEditorTakesNoKeys) {
  Start("A", 1);
  txtProgram.Enabled = false;
  Type("b");
  EXPECT_EQ(txtProgram.Text(), "A");
  txtProgram.Enabled = true;
  Type("b");
  EXPECT_EQ(txtProgram.Text(), "Ab");
}

}  // namespace
}  // namespace glidetrak
