// Texts so large that the widget is filled piece by piece.

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
