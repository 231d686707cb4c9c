// Image buttons: Press ahead of Click, by mouse and by key.

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
  EXPECT_EQ(m_aNotes, QStringList{"press"});
  Release(Widget("cmdManual"), {5, 5});
  EXPECT_EQ(m_aNotes, QStringList({"press", "click"}));
}

TEST_F(ImageButtons, AReleaseOutsideIsNoClick) {
  Show();
  Press(Widget("cmdManual"), {5, 5});
  Release(Widget("cmdManual"), {5, 100});
  EXPECT_EQ(m_aNotes, QStringList{"press"});
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
