// The editor: what the user does in the widget reaches the station's text, and nothing else of that
// text changes.

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <random>

#include "view/EditorText.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

const QString sNul = QString(QChar(0));

class Editing : public ViewTest {
 protected:
  void Start(const QString& sText, int iSelStart = 0, int iSelLength = 0) {
    ShowEditor();
    txtProgram.SetText(sText);
    txtProgram.Select(iSelStart, iSelLength);
    txtProgram.SetFocus();
    txtProgram.Change = [this] { ++m_iChanges; };
    Settle();
  }

  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Editor(), key, modifiers);
  }
  void Type(const QString& sText) { QTest::keyClicks(Editor(), sText); }
  void Paste(const QString& sText) {
    QApplication::clipboard()->setText(sText);
    Editor()->paste();
  }

  /// The widget shows exactly the station's text.
  void ExpectInStep() {
    Settle();
    const QTextDocument& document = *Editor()->document();
    EXPECT_EQ(StationText(document, 0, document.characterCount() - 1), txtProgram.Text());
    EXPECT_EQ(document.blockCount(), txtProgram.LineCount());
  }

  int m_iChanges = 0;
};

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

TEST_F(Editing, PastedOddCharactersArrive) {
  Start("AB", 1);
  const QString sOdd = QString::fromUtf8("\t\u00A0\u00E9\u20AC\u00B6") + QChar(0x0C) + QChar(0x81);
  Paste(sOdd);
  EXPECT_EQ(txtProgram.Text(), "A" + sOdd + "B");
  ExpectInStep();
}

/// Characters that the widget shows as something else, or not at all.
const QString OddTexts[] = {
    "one\ntwo\nthree\r\nfour",
    "one\rtwo\rthree\r\nfour",
    "tabs\there\tand\tthere\r\n",
    "nul" + sNul + "inside" + sNul + "\r\nmore",
    QString::fromUtf8("no\u00A0break\u00A0space\r\n\u00A0"),
    QString::fromUtf8("\u0160\u017D\u00D1\u00FF\u2026\u2019\u20AC\r\n\u0081\u008D\u009D"),
    QString::fromUtf8("\u2028 and \u2029 separate\r\n"),
    QString("\f\v\b\a\x1a\x7f\r\n\x01"),
    "\r\r\n\n\r\n\r",
};

TEST_F(Editing, OddCharactersSurviveAnEditElsewhere) {
  ShowEditor();
  for (const QString& sText : OddTexts) {
    txtProgram.SetText(sText);
    ExpectInStep();
    txtProgram.Select(0, 0);
    Settle();
    Type("x");
    EXPECT_EQ(txtProgram.Text(), "x" + sText);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(txtProgram.Text(), sText);
    ExpectInStep();
  }
}

TEST_F(Editing, OddCharactersSurviveUndo) {
  ShowEditor();
  txtProgram.SetFocus();
  for (const QString& sText : OddTexts) {
    txtProgram.SetText(sText);
    Settle();
    Editor()->selectAll();
    Type("x");
    EXPECT_EQ(txtProgram.Text(), "x");
    Editor()->undo();
    EXPECT_EQ(txtProgram.Text(), sText);
    Editor()->redo();
    EXPECT_EQ(txtProgram.Text(), "x");
    ExpectInStep();
  }
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

TEST_F(Editing, ACopiedBareLineFeedIsPastedAsALineEnd) {
  Start("one\ntwo", 0, 7);
  Editor()->copy();
  EXPECT_EQ(QApplication::clipboard()->text(), "one\ntwo");
  txtProgram.Select(7, 0);
  Settle();
  Editor()->paste();
  EXPECT_EQ(txtProgram.Text(), "one\ntwoone\r\ntwo");
  ExpectInStep();
}

TEST_F(Editing, CopiedLineEndsAreTheClipboards) {
  Start("A\r\nB\r\n", 0, 6);
  Editor()->copy();
  EXPECT_EQ(QApplication::clipboard()->text(), "A\nB\n");
}

/// The sign that stands for a bare line feed, typed by the user, is that sign.
TEST_F(Editing, ASubstitutesSignThatIsTypedStaysItself) {
  Start("A\nB", 2);
  Type(QString(Shown(u'\n')));
  EXPECT_EQ(txtProgram.Text(), "A\n" + QString(Shown(u'\n')) + "B");
  Paste(QString(Shown(u'\n')));
  EXPECT_EQ(txtProgram.Text(), "A\n" + QString(2, Shown(u'\n')) + "B");
  ExpectInStep();
}

TEST_F(Editing, ADeletionMayJoinABareReturnAndABareFeed) {
  Start("A\rX\nB", 2, 1);
  EXPECT_EQ(Editor()->document()->blockCount(), 1);
  Key(Qt::Key_Delete);
  EXPECT_EQ(txtProgram.Text(), "A\r\nB");
  EXPECT_EQ(m_iChanges, 1);
  Settle();
  EXPECT_EQ(Editor()->document()->blockCount(), 2);
  EXPECT_EQ(txtProgram.LineCount(), 2);
  ExpectInStep();
}

/// The next key comes before the event loop has had a turn.
TEST_F(Editing, AKeyRightBehindSuchAJoinLandsInItsPlace) {
  Start("A\rX\nBC", 5, 0);
  Editor()->moveCursor(QTextCursor::Start);
  Editor()->moveCursor(QTextCursor::Right);
  Editor()->moveCursor(QTextCursor::Right);
  QTest::keyPress(Editor(), Qt::Key_Delete);
  txtProgram.Select(4, 0);
  Settle();
  QTest::keyPress(Editor(), Qt::Key_Y);
  EXPECT_EQ(txtProgram.Text(), "A\r\nByC");
  ExpectInStep();
}

TEST_F(Editing, ALineEndMayJoinItsNeighbours) {
  Start("A\r\r\n\nB", 2, 0);
  Key(Qt::Key_Delete);
  EXPECT_EQ(txtProgram.Text(), "A\r\nB");
  Settle();
  EXPECT_EQ(Editor()->document()->blockCount(), 2);
  ExpectInStep();
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

TEST_F(Editing, TextThatOnlyChangesItsLookIsNoEdit) {
  Start("A\nB");
  Editor()->setTabStopDistance(20);
  Editor()->setFont(QFont("Serif"));
  QTextCursor cursor(Editor()->document());
  cursor.select(QTextCursor::Document);
  QTextCharFormat bold;
  bold.setFontWeight(QFont::Bold);
  cursor.mergeCharFormat(bold);
  EXPECT_EQ(m_iChanges, 0);
  EXPECT_EQ(txtProgram.Text(), "A\nB");
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

/// Random typing, deleting, pasting, undoing over a text of odd characters: a model edited the
/// plain way must agree after every step.
TEST_F(Editing, StaysInStepUnderRandomEdits) {
  ShowEditor();
  txtProgram.SetFocus();
  std::mt19937 random(20260131);
  const QStringList aPieces{"a", "\r\n", "\n", "\r", sNul, "\t", QString(QChar(0xA0)), "BC"};
  QString sText;
  for (int i = 0; i < 60; ++i) sText += aPieces[random() % aPieces.size()];
  txtProgram.SetText(sText);
  for (int iStep = 0; iStep < 300; ++iStep) {
    Settle();
    const int iLength = Editor()->document()->characterCount() - 1;
    const int iFrom = static_cast<int>(random() % (iLength + 1));
    const int iTo = std::min(iLength, iFrom + static_cast<int>(random() % 4));
    const int iStart = StationOffset(txtProgram.LineStarts(), iFrom);
    const int iEnd = StationOffset(txtProgram.LineStarts(), iTo);
    txtProgram.Select(iStart, iEnd - iStart);
    Settle();
    const QString sPiece = random() % 3 == 0 ? "" : WithLineEnds(aPieces[random() % 8]);
    QString sModel = txtProgram.Text();
    sModel.replace(iStart, iEnd - iStart, sPiece);
    if (sPiece.isEmpty()) {
      if (iEnd > iStart) Key(Qt::Key_Delete);
    } else {
      Paste(sPiece);
    }
    ASSERT_EQ(txtProgram.Text(), sModel) << "step " << iStep;
    if (random() % 5 == 0) {
      Editor()->undo();
      Editor()->redo();
    }
    ExpectInStep();
    ASSERT_FALSE(HasFailure()) << "step " << iStep;
  }
}

}  // namespace
}  // namespace glidetrak
