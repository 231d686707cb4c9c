// The editor's selection, from the station to the widget and back.

#include <QScrollBar>

#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Selection : public ViewTest {
 protected:
  void Start(const QString& sText) {
    ShowEditor();
    txtProgram.SetText(sText);
    txtProgram.SetFocus();
    Settle();
  }
  void ExpectSelected(int iFrom, int iTo) {
    EXPECT_EQ(Editor()->textCursor().selectionStart(), iFrom);
    EXPECT_EQ(Editor()->textCursor().selectionEnd(), iTo);
  }
};

const QString sThreeLines = "one\r\ntwo\r\nthree";

TEST_F(Selection, OfTheStationIsShownAtTheNextTurnOfTheEventLoop) {
  Start(sThreeLines);
  txtProgram.Select(5, 3);
  ExpectSelected(0, 0);
  Settle();
  ExpectSelected(4, 7);
  EXPECT_EQ(Editor()->textCursor().selectedText(), "two");
}

TEST_F(Selection, OnlyTheLastOneBeforeThatTurnIsShown) {
  Start(sThreeLines);
  int iMoves = 0;
  QObject::connect(Editor(), &QPlainTextEdit::cursorPositionChanged, Editor(), [&] { ++iMoves; });
  txtProgram.Select(0, 3);
  txtProgram.Select(5, 3);
  txtProgram.Select(10, 5);
  Settle();
  ExpectSelected(8, 13);
  EXPECT_EQ(iMoves, 1);
}

TEST_F(Selection, ThatWasShownIsNotToldBack) {
  Start(sThreeLines);
  txtProgram.Select(4, 2);
  Settle();
  ExpectSelected(3, 5);
  EXPECT_EQ(txtProgram.SelStart(), 4);
  EXPECT_EQ(txtProgram.SelLength(), 2);
}

TEST_F(Selection, OfTheUserIsTold) {
  Start(sThreeLines);
  QTest::keyClick(Editor(), Qt::Key_Down);
  EXPECT_EQ(txtProgram.SelStart(), 5);
  EXPECT_EQ(txtProgram.SelLength(), 0);
  QTest::keyClick(Editor(), Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(txtProgram.SelStart(), 5);
  EXPECT_EQ(txtProgram.SelLength(), 5);
  EXPECT_EQ(txtProgram.SelText(), "two\r\n");
}

TEST_F(Selection, OfTheUserMayRunBackwards) {
  Start(sThreeLines);
  txtProgram.Select(6, 0);
  Settle();
  for (int i = 0; i < 3; ++i) QTest::keyClick(Editor(), Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(txtProgram.SelText(), "e\r\nt");
  EXPECT_EQ(txtProgram.SelStart(), 2);
}

TEST_F(Selection, OfTheUserTakesTheSubstitutesFor) {
  Start("a\nb\rc" + QString(QChar(0)) + "d\r\ne");
  Editor()->selectAll();
  EXPECT_EQ(txtProgram.SelText(), txtProgram.Text());
}

TEST_F(Selection, IsScrolledIntoView) {
  QString sText;
  for (int i = 0; i < 500; ++i) sText += QString("LINE %1\r\n").arg(i);
  Start(sText);
  EXPECT_EQ(Editor()->verticalScrollBar()->value(), 0);
  txtProgram.Select(txtProgram.LineStarts()[400], 8);
  Settle();
  EXPECT_GT(Editor()->verticalScrollBar()->value(), 300);
  EXPECT_TRUE(Editor()->viewport()->rect().contains(Editor()->cursorRect()));
  txtProgram.Select(0, 6);
  Settle();
  EXPECT_EQ(Editor()->verticalScrollBar()->value(), 0);
}

TEST_F(Selection, ShowsInADisabledEditorAsInAnEnabledOne) {
  Start(sThreeLines);
  txtProgram.Select(5, 3);
  Settle();
  const QColor selected = Editor()->palette().color(QPalette::Active, QPalette::Highlight);
  const QRect line = Editor()->cursorRect();
  const auto colourLeftOfCaret = [&] {
    const QImage image = Editor()->viewport()->grab().toImage();
    return image.pixelColor(line.left() - 4, line.top() + 1);
  };
  EXPECT_EQ(colourLeftOfCaret(), selected);
  txtProgram.Enabled = false;
  Settle();
  EXPECT_EQ(colourLeftOfCaret(), selected);
  EXPECT_EQ(Editor()->palette().color(QPalette::Disabled, QPalette::Text), QColor(Qt::black));
}

TEST_F(Selection, OfADoubleClickIsTheWordWhenTheStationHearsIt) {
  Start("alpha beta\r\ngamma");
  QString sHeard;
  txtProgram.DblClick = [&] { sHeard = txtProgram.SelText(); };
  const QRect caret = Editor()->cursorRect();
  DoubleClick(Editor()->viewport(), caret.center() + QPoint(4, 0));
  EXPECT_EQ(sHeard, "alpha");
}

TEST_F(Selection, ThatADoubleClickBroughtOutlastsATremblingHand) {
  Start("alpha beta\r\ngamma");
  txtProgram.DblClick = [] { txtProgram.Select(0, 10); };
  QWidget* pViewport = Editor()->viewport();
  const QPoint place = Editor()->cursorRect().center() + QPoint(4, 0);
  QTest::mousePress(pViewport, Qt::LeftButton, {}, place);
  QTest::mouseRelease(pViewport, Qt::LeftButton, {}, place);
  Mouse(pViewport, QEvent::MouseButtonDblClick, place, Qt::LeftButton, Qt::LeftButton);
  Settle();
  Move(pViewport, place + QPoint(1, 0), Qt::LeftButton);
  Release(pViewport, place + QPoint(1, 0));
  Settle();
  EXPECT_EQ(txtProgram.SelText(), "alpha beta");
  ExpectSelected(0, 10);
}

TEST_F(Selection, OfADragIsTold) {
  Start("alpha beta");
  QWidget* pViewport = Editor()->viewport();
  const QPoint start = Editor()->cursorRect().center();
  Press(pViewport, start);
  Move(pViewport, start + QPoint(200, 0), Qt::LeftButton);
  Release(pViewport, start + QPoint(200, 0));
  EXPECT_EQ(txtProgram.SelText(), "alpha beta");
}

}  // namespace
}  // namespace glidetrak
