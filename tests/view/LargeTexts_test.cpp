// Texts so large that the widget is filled piece by piece.

#include <QScrollBar>

#include "common/SharedState.h"
#include "view/EditorText.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class LargeTexts : public ViewTest {
 protected:
  /// Two million characters, a carriage return and a line feed at every place where a piece may
  /// end.
  static QString Large() {
    QString sText;
    while (sText.size() < 2'000'000) sText += "PRINT \"ABCDEFGHIJKLM\"\r\n";
    return sText;
  }
  static int Shown() { return Editor()->document()->characterCount() - 1; }
  static int Wanted() {
    return static_cast<int>(txtProgram.Text().size()) - txtProgram.LineCount() + 1;
  }
  static bool WaitUntilFilled() {
    return QTest::qWaitFor([] { return Shown() == Wanted(); }, 60'000);
  }
};

TEST_F(LargeTexts, ComeInPieces) {
  ShowEditor();
  txtProgram.SetText(Large());
  EXPECT_GT(Shown(), 0);
  EXPECT_LT(Shown(), Wanted());
  EXPECT_TRUE(Editor()->isReadOnly());
  ASSERT_TRUE(WaitUntilFilled());
  EXPECT_FALSE(Editor()->isReadOnly());
  EXPECT_EQ(StationText(*Editor()->document(), 0, Shown()), txtProgram.Text());
}

TEST_F(LargeTexts, UpToAMillionCharactersComeAtOnce) {
  ShowEditor();
  txtProgram.SetText(QString(1'000'000 / 100, QString("x").at(0)) + "\r\n");
  EXPECT_EQ(Shown(), Wanted());
  txtProgram.SetText(Large().left(1'000'000));
  EXPECT_EQ(Shown(), Wanted());
  EXPECT_FALSE(Editor()->isReadOnly());
}

TEST_F(LargeTexts, CannotBeEditedUntilTheyAreComplete) {
  ShowEditor();
  const QString sText = Large();
  txtProgram.SetText(sText);
  QTest::keyClicks(Editor(), "x");
  EXPECT_EQ(txtProgram.Text(), sText);
  ASSERT_TRUE(WaitUntilFilled());
  QTest::keyClicks(Editor(), "x");
  EXPECT_EQ(txtProgram.Text(), "x" + sText);
}

TEST_F(LargeTexts, AnotherTextTakesOverHalfway) {
  ShowEditor();
  txtProgram.SetText(Large());
  txtProgram.SetText("short");
  Settle();
  EXPECT_EQ(Editor()->toPlainText(), "short");
  EXPECT_FALSE(Editor()->isReadOnly());
  txtProgram.SetText(Large() + "A");
  Settle();
  txtProgram.SetText(Large() + "B");
  ASSERT_TRUE(WaitUntilFilled());
  EXPECT_EQ(StationText(*Editor()->document(), 0, Shown()), txtProgram.Text());
}

TEST_F(LargeTexts, ASelectionBeyondTheFilledPartIsShownInTheEnd) {
  ShowEditor();
  txtProgram.SetText(Large());
  const int iStart = txtProgram.LineStarts()[80'000];
  txtProgram.Select(iStart, 5);
  Settle();
  EXPECT_EQ(txtProgram.SelStart(), iStart);
  ASSERT_TRUE(WaitUntilFilled());
  Settle();
  EXPECT_EQ(Editor()->textCursor().selectedText(), "PRINT");
  EXPECT_EQ(Editor()->textCursor().blockNumber(), 80'000);
}

/// It begins in what is filled and ends two lines ahead of the end of the text.
TEST_F(LargeTexts, ASelectionIsCutWhereTheFilledPartEndsAndWholeInTheEnd) {
  ShowEditor();
  txtProgram.SetText(Large());
  const int iEnd = txtProgram.LineStarts()[txtProgram.LineStarts().size() - 3];
  txtProgram.Select(6, iEnd - 6);
  QCoreApplication::sendPostedEvents();
  ASSERT_LT(Shown(), Wanted());
  EXPECT_EQ(Editor()->textCursor().selectionStart(), 6);
  EXPECT_LE(Editor()->textCursor().selectionEnd(), Shown());
  EXPECT_EQ(txtProgram.SelLength(), iEnd - 6) << "what was cut in the widget is not told";
  ASSERT_TRUE(WaitUntilFilled());
  Settle();
  EXPECT_EQ(Editor()->textCursor().selectionStart(), 6);
  EXPECT_EQ(Editor()->textCursor().selectionEnd(), DocumentPosition(txtProgram.LineStarts(), iEnd));
  EXPECT_EQ(txtProgram.SelLength(), iEnd - 6);
}

/// Only a selection that was cut is applied again, and scrolled to, when the text is complete.
TEST_F(LargeTexts, ASelectionThatWasNotCutLeavesTheScrollPlace) {
  ShowEditor();
  txtProgram.SetText(Large());
  txtProgram.Select(static_cast<int>(txtProgram.Text().size()), 0);
  QCoreApplication::sendPostedEvents();
  txtProgram.Select(0, 5);
  QCoreApplication::sendPostedEvents();
  ASSERT_LT(Shown(), Wanted());
  EXPECT_EQ(Editor()->textCursor().selectedText(), "PRINT");
  Editor()->verticalScrollBar()->setValue(1'000);
  ASSERT_TRUE(WaitUntilFilled());
  Settle();
  EXPECT_EQ(Editor()->verticalScrollBar()->value(), 1'000);
  EXPECT_EQ(Editor()->textCursor().selectedText(), "PRINT");
}

TEST_F(LargeTexts, TakeAReplacementHalfway) {
  ShowEditor();
  const QString sText = Large();
  txtProgram.SetText(sText);
  txtProgram.Select(0, 5);
  QCoreApplication::sendPostedEvents();
  ASSERT_LT(Shown(), Wanted());
  txtProgram.ReplaceSelection("HALT\r\n");
  EXPECT_EQ(txtProgram.Text(), "HALT\r\n" + sText.mid(5));
  EXPECT_TRUE(Editor()->isReadOnly());
  ASSERT_TRUE(WaitUntilFilled());
  EXPECT_EQ(StationText(*Editor()->document(), 0, Shown()), txtProgram.Text());
}

TEST_F(LargeTexts, StayLockedHalfwayWhenARunEnds) {
  ShowEditor();
  const QString sText = Large();
  bProgramRunning = true;
  txtProgram.SetText(sText);
  bProgramRunning = false;
  ASSERT_LT(Shown(), Wanted());
  QTest::keyClicks(Editor(), "x");
  Editor()->selectAll();
  Editor()->cut();
  Editor()->paste();
  Editor()->undo();
  EXPECT_EQ(txtProgram.Text(), sText);
  ASSERT_TRUE(WaitUntilFilled());
  EXPECT_FALSE(Editor()->isReadOnly());
  EXPECT_FALSE(Editor()->document()->isUndoAvailable()) << "the pieces are no edits";
}

TEST_F(LargeTexts, StayLockedInARunWhenTheyAreComplete) {
  ShowEditor();
  txtProgram.SetText(Large());
  bProgramRunning = true;
  ASSERT_TRUE(WaitUntilFilled());
  EXPECT_TRUE(Editor()->isReadOnly());
  bProgramRunning = false;
  EXPECT_FALSE(Editor()->isReadOnly());
}

TEST_F(LargeTexts, AReplacementMayMakeALineTooLongAndShortenItAgain) {
  ShowEditor();
  txtProgram.SetText("A\r\nB");
  txtProgram.Select(1, 0);
  txtProgram.ReplaceSelection(QString(60'000, u'x'));
  Settle();
  EXPECT_TRUE(Editor()->isReadOnly());
  EXPECT_EQ(Shown(), 50'000);
  txtProgram.Select(1, 60'000);
  txtProgram.ReplaceSelection("");
  Settle();
  EXPECT_EQ(txtProgram.Text(), "A\r\nB");
  EXPECT_EQ(Editor()->toPlainText(), "A\nB");
  EXPECT_FALSE(Editor()->isReadOnly());
}

/// Laying it out would take minutes, and no program has such a line.
TEST_F(LargeTexts, ALineThatIsTooLongIsShownInPartForReading) {
  ShowEditor();
  const QString sText = "A\r\n" + QString(60'000, QChar(0)) + "\r\nB";
  txtProgram.SetText(sText);
  Settle();
  EXPECT_EQ(Shown(), 50'002);
  EXPECT_TRUE(Editor()->isReadOnly());
  QTest::keyClicks(Editor(), "x");
  Editor()->selectAll();
  Editor()->cut();
  EXPECT_EQ(txtProgram.Text(), sText);
  txtProgram.Select(static_cast<int>(sText.size()), 0);
  Settle();
  EXPECT_EQ(Editor()->textCursor().position(), 50'002);
  EXPECT_EQ(txtProgram.SelStart(), sText.size());
  txtProgram.SetText("B");
  EXPECT_FALSE(Editor()->isReadOnly());
}

}  // namespace
}  // namespace glidetrak
