// The editor: what the user does in the widget reaches the station's text, and nothing else of that
// text changes.

#include <QApplication>
#include <QClipboard>

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
