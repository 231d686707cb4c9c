// Characters that the widget shows as something else, or not at all, under the user's edits.

#include <QApplication>
#include <QClipboard>
#include <random>

#include "view/EditorTest.h"
#include "view/EditorText.h"

namespace glidetrak {
namespace {

using OddCharacters = EditorTest;

const QString sNul = QString(QChar(0));

TEST_F(OddCharacters, ArriveByPaste) {
  Start("AB", 1);
  const QString sOdd = QString::fromUtf8("\t\u00A0\u00E9\u20AC\u00B6") + QChar(0x0C) + QChar(0x81);
  Paste(sOdd);
  EXPECT_EQ(txtProgram.Text(), "A" + sOdd + "B");
  ExpectInStep();
}

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

TEST_F(OddCharacters, SurviveAnEditElsewhere) {
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

TEST_F(OddCharacters, SurviveUndo) {
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

TEST_F(OddCharacters, ACopiedBareLineFeedIsPastedAsALineEnd) {
  Start("one\ntwo", 0, 7);
  Editor()->copy();
  EXPECT_EQ(QApplication::clipboard()->text(), "one\ntwo");
  txtProgram.Select(7, 0);
  Settle();
  Editor()->paste();
  EXPECT_EQ(txtProgram.Text(), "one\ntwoone\r\ntwo");
  ExpectInStep();
}

/// The sign that stands for a bare line feed, typed by the user, is that sign.
TEST_F(OddCharacters, ASubstitutesSignThatIsTypedStaysItself) {
  Start("A\nB", 2);
  Type(QString(Shown(u'\n')));
  EXPECT_EQ(txtProgram.Text(), "A\n" + QString(Shown(u'\n')) + "B");
  Paste(QString(Shown(u'\n')));
  EXPECT_EQ(txtProgram.Text(), "A\n" + QString(2, Shown(u'\n')) + "B");
  ExpectInStep();
}

TEST_F(OddCharacters, ADeletionMayJoinABareReturnAndABareFeed) {
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
TEST_F(OddCharacters, AKeyRightBehindSuchAJoinLandsInItsPlace) {
  Start("A\rX\nB", 2, 1);
  Key(Qt::Key_Delete);
  Type("y");
  EXPECT_EQ(txtProgram.Text(), "Ay\r\nB");
  ExpectInStep();
}

TEST_F(OddCharacters, ALineEndMayJoinItsNeighbours) {
  Start("A\r\r\n\nB", 2, 0);
  Key(Qt::Key_Delete);
  EXPECT_EQ(txtProgram.Text(), "A\r\nB");
  Settle();
  EXPECT_EQ(Editor()->document()->blockCount(), 2);
  ExpectInStep();
}

TEST_F(OddCharacters, TextThatOnlyChangesItsLookIsNoEdit) {
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

/// Random typing, deleting, pasting, undoing over a text of odd characters: a model edited the
/// plain way must agree after every step.
TEST_F(OddCharacters, StaysInStepUnderRandomEdits) {
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
