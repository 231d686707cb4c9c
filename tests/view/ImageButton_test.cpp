// Image buttons: Press ahead of Click, by mouse and by key.

#include <QApplication>
#include <QTimer>
#include <QWindow>

#include "common/MiscCode.h"
#include "view/ViewDesktop.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class ImageButtons : public ViewTest {
 protected:
  ImageButtons() {
    cmdManual.Press = Note(m_aNotes, "press");
    cmdManual.Click = Note(m_aNotes, "click");
  }
  QStringList m_aNotes;
};

TEST_F(ImageButtons, PressComesAheadOfTheClickOfTheMouse) {
  Show();
  Press(Widget("cmdManual"), {5, 5});
  EXPECT_TRUE(m_aNotes.isEmpty());
  Release(Widget("cmdManual"), {5, 5});
  EXPECT_EQ(m_aNotes, QStringList({"press", "click"}));
}

TEST_F(ImageButtons, AReleaseOutsideIsNoClick) {
  Show();
  Press(Widget("cmdManual"), {5, 5});
  Release(Widget("cmdManual"), {5, 100});
  EXPECT_TRUE(m_aNotes.isEmpty());
}

/// The first click on Trace compiles and may tell an error in a box; the same click still steps.
/// A hand lets go of the button once, and a box in front of the window would swallow that.
TEST_F(ImageButtons, ABoxInPressDoesNotLoseTheClick) {
  Show();
  QWindow* pWindow = Widget("cmdManual")->window()->windowHandle();
  const QPoint place = Widget("cmdManual")->mapTo(Widget("cmdManual")->window(), QPoint(5, 5));
  bool bLetGo = false;
  const auto letGo = [&] {
    if (!bLetGo) QTest::mouseRelease(pWindow, Qt::LeftButton, {}, place);
    bLetGo = true;
  };
  cmdManual.Press = [&] {
    QTimer::singleShot(0, [&] {
      letGo();
      m_aNotes.append("box");
      QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    ViewDesktop().ShowBox("text", "title", BoxIcon::Exclamation, BoxButtons::Ok);
  };
  QTest::mousePress(pWindow, Qt::LeftButton, {}, place);
  letGo();
  EXPECT_EQ(m_aNotes, QStringList({"box", "click"}));
}

TEST_F(ImageButtons, KeysPressThem) {
  Show();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    m_aNotes.clear();
    QTest::keyClick(Widget("cmdManual"), key);
    EXPECT_EQ(m_aNotes, QStringList({"press", "click"})) << key;
  }
}

TEST_F(ImageButtons, ADisabledOneDoesNothing) {
  Show();
  cmdManual.Enabled = false;
  QTest::mouseClick(Widget("cmdManual"), Qt::LeftButton);
  QTest::keyClick(Widget("cmdManual"), Qt::Key_Return);
  EXPECT_TRUE(m_aNotes.isEmpty());
}

TEST_F(ImageButtons, HearTheMouseMoveOverThem) {
  Show();
  std::vector<HeardMouse> aHeard;
  cmdManual.MouseMove = Note(aHeard);
  Move(Widget("cmdManual"), {3, 2});
  EXPECT_EQ(aHeard, std::vector<HeardMouse>({{0, 45, 30}}));
}

/// Counts the paintings of a widget.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget* pWidget) { pWidget->installEventFilter(this); }
  bool eventFilter(QObject* /*pWatched*/, QEvent* pEvent) override {
    if (pEvent->type() == QEvent::Paint) ++iPaintings;
    return false;
  }

  int iPaintings = 0;
};

TEST_F(ImageButtons, ArePaintedByTheFirstMoveOverThemAlone) {
  Show();
  cmdManual.MouseMove = [](int, float, float) {
    SetPictureIfChanged(cmdManual, true, PictureId::DefBtn, PictureId::DiagBtnWF);
  };
  Settle();
  PaintCount count(Widget("cmdManual"));
  for (int i = 0; i < 5; ++i) {
    Move(Widget("cmdManual"), {3 + i, 2});
    Settle();
    EXPECT_EQ(count.iPaintings, 1) << i;
  }
}

/// Run stays in its click until the program ends, and Stop must work meanwhile.
TEST_F(ImageButtons, AClickMayLastWhileOthersAreClicked) {
  Show();
  bool bStopped = false;
  cmdProgram.Click = [&] { bStopped = true; };
  cmdManual.Click = [&] {
    QTest::mouseClick(Widget("cmdProgram"), Qt::LeftButton);
    Settle();
    m_aNotes.append(bStopped ? "stopped" : "went on");
  };
  QTest::mouseClick(Widget("cmdManual"), Qt::LeftButton);
  EXPECT_EQ(m_aNotes, QStringList({"press", "stopped"}));
}

TEST_F(ImageButtons, PalesWhenDisabled) {
  const QImage enabled = Widget("cmdManual")->grab().toImage();
  cmdManual.Enabled = false;
  EXPECT_NE(Widget("cmdManual")->grab().toImage(), enabled);
}

TEST_F(ImageButtons, ShowsItsTextInItsColour) {
  cmdManual.Caption = "Manual";
  const QImage plain = Widget("cmdManual")->grab().toImage();
  cmdManual.ForeColor = lChosenYellow;
  EXPECT_NE(Widget("cmdManual")->grab().toImage(), plain);
}

}  // namespace
}  // namespace glidetrak
