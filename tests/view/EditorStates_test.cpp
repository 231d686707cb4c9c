// The editor between two states: stale, in the midst of an edit, filled anew.

#include <QScrollBar>

#include "view/EditorTest.h"
#include "view/EditorText.h"

namespace glidetrak {
namespace {

const QString sNul = QString(QChar(0));

class StaleEditor : public EditorTest {
 protected:
  /// A deletion has just made a line end of a bare CR and a bare LF; no event has come since.
  void MakeStale(const QString& sAhead = {}, const QString& sBehind = {}) {
    const auto iAhead = static_cast<int>(sAhead.size());
    Start(sAhead + "A\rX\nB" + sBehind, iAhead + 2, 1);
    Key(Qt::Key_Delete);
    ASSERT_EQ(txtProgram.Text(), sAhead + "A\r\nB" + sBehind);
    ASSERT_NE(Editor()->document()->blockCount(), txtProgram.LineCount());
  }
};

TEST_F(StaleEditor, TellsNoSelectionUntilItIsFilledAnew) {
  MakeStale();
  Editor()->selectAll();
  EXPECT_EQ(txtProgram.SelStart(), 2);
  EXPECT_EQ(txtProgram.SelLength(), 0);
  Settle();
  EXPECT_FALSE(Editor()->textCursor().hasSelection());
  EXPECT_EQ(Editor()->textCursor().position(), 1);
}

TEST_F(StaleEditor, TellsNoEditUntilItIsFilledAnew) {
  MakeStale();
  QTextCursor cursor(Editor()->document());
  cursor.insertText("lost");
  EXPECT_EQ(txtProgram.Text(), "A\r\nB");
  EXPECT_EQ(m_iChanges, 1);
  ExpectInStep();
}

TEST_F(StaleEditor, IsFilledAheadOfAPress) {
  MakeStale();
  QWidget* pPage = Editor()->viewport();
  const QPoint secondLine(Editor()->cursorRect().left(),
                          Editor()->cursorRect().top() + Editor()->cursorRect().height() * 3 / 2);
  Mouse(pPage, QEvent::MouseButtonPress, {secondLine.x() + 200, secondLine.y()}, Qt::LeftButton,
        Qt::LeftButton);
  EXPECT_EQ(Editor()->document()->blockCount(), 2);
  EXPECT_EQ(txtProgram.SelStart(), 4) << "behind the B of the second line";
  Release(pPage, secondLine);
  ExpectInStep();
}

TEST_F(StaleEditor, KeepsItsScrollPlaceWhenItIsFilledAnew) {
  const QString sMany = QString("BEEP\r\n").repeated(200);
  MakeStale(sMany, "\r\n" + sMany);
  QScrollBar* pBar = Editor()->verticalScrollBar();
  pBar->setValue(pBar->value() - 3);
  const int iScroll = pBar->value();
  ASSERT_GT(iScroll, 100);
  Settle();
  EXPECT_EQ(Editor()->document()->blockCount(), txtProgram.LineCount());
  EXPECT_EQ(pBar->value(), iScroll);
}

TEST_F(StaleEditor, HasNothingToUndoWhenItIsFilledAnew) {
  MakeStale();
  Settle();
  EXPECT_FALSE(Editor()->document()->isUndoAvailable());
  Editor()->undo();
  EXPECT_EQ(txtProgram.Text(), "A\r\nB");
  Type("y");
  Editor()->undo();
  EXPECT_EQ(txtProgram.Text(), "A\r\nB");
  ExpectInStep();
}

TEST_F(StaleEditor, TakesAReplacementByTheStation) {
  MakeStale();
  txtProgram.ReplaceSelection("HALT");
  EXPECT_EQ(txtProgram.Text(), "A\rHALT\nB");
  ExpectInStep();
  EXPECT_EQ(Editor()->textCursor().position(), 6);
}

class ChangeHandler : public EditorTest {
 protected:
  /// At the next edit, once, the station does that.
  void AtTheNextEdit(const std::function<void()>& act) {
    txtProgram.Change = [act] {
      const std::function<void()> deed = act;  // outlives the handler, which goes first
      txtProgram.Change = {};
      deed();
    };
  }
};

TEST_F(ChangeHandler, MayReplaceTheSelection) {
  Start("PRINT", 5);
  AtTheNextEdit([] {
    txtProgram.Select(0, 5);
    txtProgram.ReplaceSelection("HALT");
  });
  Type("xy");
  EXPECT_EQ(txtProgram.Text(), "HALTyx")
      << "the second key stands where the station left the caret";
  ExpectInStep();
}

TEST_F(ChangeHandler, MaySetTheTextAtAnUndo) {
  Start("A", 1);
  Type("b");
  AtTheNextEdit([] { txtProgram.SetText("one\r\ntwo"); });
  Editor()->undo();
  EXPECT_EQ(txtProgram.Text(), "one\r\ntwo");
  Type("x");
  EXPECT_EQ(txtProgram.Text(), "xone\r\ntwo");
  ExpectInStep();
}

TEST_F(ChangeHandler, MaySetTheTextAndThenFail) {
  Start("A", 1);
  AtTheNextEdit([] {
    txtProgram.SetText("two\r\nlines");
    throw RuntimeError(Fault::Overflow);
  });
  Type("b");
  EXPECT_EQ(txtProgram.Text(), "two\r\nlines");
  ExpectInStep();
}

using SubstituteUndo = EditorTest;

struct UndoRow {
  QString sText;
  int iStart, iLength;
};

const UndoRow UndoRows[] = {
    {"A" + sNul + "B", 1, 1},
    {"A\nB\r\nC", 1, 1},
    {"A\nB\r\nC", 0, 5},
    {"one\r\n" + sNul + sNul + "\x01\r\ntwo", 3, 7},
    {QString::fromUtf8("A\u2028\u0081B"), 1, 2},
    {"A\r\r\nB", 1, 1},
};

/// The character comes back, not the sign that it showed.
TEST_F(SubstituteUndo, GivesBackWhatAKeyTook) {
  Start("");
  for (const UndoRow& row : UndoRows) {
    SCOPED_TRACE(row.sText.toStdString());
    txtProgram.SetText(row.sText);
    txtProgram.Select(row.iStart, row.iLength);
    Settle();
    QString sWithout = row.sText;
    sWithout.remove(row.iStart, row.iLength);
    Key(Qt::Key_Delete);
    EXPECT_EQ(txtProgram.Text(), sWithout);
    Editor()->undo();
    EXPECT_EQ(txtProgram.Text(), row.sText);
    Editor()->redo();
    EXPECT_EQ(txtProgram.Text(), sWithout);
    ExpectInStep();
  }
}

TEST_F(SubstituteUndo, GivesBackWhatTheStationReplaced) {
  Start("");
  for (const UndoRow& row : UndoRows) {
    SCOPED_TRACE(row.sText.toStdString());
    txtProgram.SetText(row.sText);
    txtProgram.Select(row.iStart, row.iLength);
    txtProgram.ReplaceSelection("H" + sNul + "T");
    const QString sReplaced = txtProgram.Text();
    ExpectInStep();
    Editor()->undo();
    EXPECT_EQ(txtProgram.Text(), row.sText);
    Editor()->redo();
    EXPECT_EQ(txtProgram.Text(), sReplaced);
    ExpectInStep();
  }
}

TEST_F(SubstituteUndo, TakesAPasteOfThemBackAsOne) {
  Start("AB", 1);
  Paste("1" + sNul + "2\x01");
  EXPECT_EQ(txtProgram.Text(), "A1" + sNul + "2\x01" + "B");
  Editor()->undo();
  EXPECT_EQ(txtProgram.Text(), "AB");
  Editor()->redo();
  EXPECT_EQ(txtProgram.Text(), "A1" + sNul + "2\x01" + "B");
  ExpectInStep();
}

}  // namespace
}  // namespace glidetrak
