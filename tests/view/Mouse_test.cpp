// Mouse events reach the control under the mouse, in twips, and nobody else.

#include "view/Units.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class MouseEvents : public ViewTest {
 protected:
  MouseEvents() { imgLever.MouseMove = Note(m_aMoves); }
  std::vector<HeardMouse> m_aMoves;
  QStringList m_aNotes;
};

TEST_F(MouseEvents, MovesComeWithoutAButton) {
  Show();
  Move(Widget("imgLever"), {10, 4});
  EXPECT_EQ(m_aMoves, std::vector<HeardMouse>({{0, 150, 60}}));
  EXPECT_TRUE(Widget("imgLever")->hasMouseTracking());
}

TEST_F(MouseEvents, MovesTellTheHeldButton) {
  Show();
  Move(Widget("imgLever"), {1, 2}, Qt::LeftButton);
  Move(Widget("imgLever"), {1, 2}, Qt::RightButton);
  Move(Widget("imgLever"), {1, 2}, Qt::MiddleButton);
  Move(Widget("imgLever"), {1, 2}, Qt::LeftButton | Qt::RightButton);
  EXPECT_EQ(
      m_aMoves,
      std::vector<HeardMouse>(
          {{mouseLeft, 15, 30}, {mouseRight, 15, 30}, {mouseMiddle, 15, 30}, {mouseLeft, 15, 30}}));
}

TEST_F(MouseEvents, ADragGoesOnOutsideTheImage) {
  Show();
  Move(Widget("imgLever"), {5, -20}, Qt::LeftButton);
  EXPECT_EQ(m_aMoves, std::vector<HeardMouse>({{mouseLeft, 75, -300}}));
}

/// The whole way through the window: the image keeps a drag that has left it.
TEST_F(MouseEvents, TheWindowGrabsTheMouseForADrag) {
  Show();
  const QPoint place = Widget("imgLever")->mapTo(MainWindow(), QPoint(10, 10));
  QTest::mousePress(MainWindow()->windowHandle(), Qt::LeftButton, {}, place);
  QTest::mouseMove(MainWindow()->windowHandle(), place - QPoint(0, 100));
  Settle();
  QTest::mouseRelease(MainWindow()->windowHandle(), Qt::LeftButton, {}, place - QPoint(0, 100));
  ASSERT_FALSE(m_aMoves.empty());
  EXPECT_EQ(m_aMoves.back(), (HeardMouse{mouseLeft, 150, -1350}));
}

TEST_F(MouseEvents, PressAndReleaseTellTheirButton) {
  Show();
  std::vector<HeardMouse> aDowns;
  std::vector<HeardMouse> aUps;
  btnEmergency.MouseDown = Note(aDowns);
  btnEmergency.MouseUp = Note(aUps);
  Press(Widget("btnEmergency"), {4, 6}, Qt::RightButton);
  Release(Widget("btnEmergency"), {5, 6}, Qt::RightButton);
  EXPECT_EQ(aDowns, std::vector<HeardMouse>({{mouseRight, 60, 90}}));
  EXPECT_EQ(aUps, std::vector<HeardMouse>({{mouseRight, 75, 90}}));
}

TEST_F(MouseEvents, AClickIsALeftReleaseInside) {
  Show();
  picTogTimer.Click = Note(m_aNotes, "click");
  QWidget* pToggle = Widget("picTogTimer");
  Press(pToggle, {5, 5});
  EXPECT_TRUE(m_aNotes.isEmpty());
  Release(pToggle, {6, 6});
  EXPECT_EQ(m_aNotes, QStringList{"click"});
  Press(pToggle, {5, 5});
  Release(pToggle, {5, 500});
  Press(pToggle, {5, 5}, Qt::RightButton);
  Release(pToggle, {5, 5}, Qt::RightButton);
  EXPECT_EQ(m_aNotes, QStringList{"click"});
}

TEST_F(MouseEvents, ADoubleClickIsTwoClicksAndADoubleClick) {
  pnlDebug.Visible = true;
  Show();
  pnlDebug.MouseDown = [this](int, float, float) { m_aNotes.append("down"); };
  pnlDebug.Click = Note(m_aNotes, "click");
  pnlDebug.DblClick = Note(m_aNotes, "double");
  DoubleClick(Widget("pnlDebug"), {3, 25});
  EXPECT_EQ(m_aNotes, QStringList({"down", "click", "down", "double", "click"}));
}

TEST_F(MouseEvents, NothingGoesOnToThePanelBehind) {
  Show();
  picSensors.MouseMove = [this](int, float, float) { m_aNotes.append("move"); };
  picSensors.MouseDown = [this](int, float, float) { m_aNotes.append("down"); };
  imgSensors.MouseMove = [this](int, float, float) { m_aNotes.append("image"); };
  Move(Widget("lblTimer"), {1, 1});
  Press(Widget("lblTimer"), {1, 1});
  EXPECT_TRUE(m_aNotes.isEmpty());
  Move(Widget("imgSensors"), {1, 1});
  EXPECT_EQ(m_aNotes, QStringList{"image"});
}

TEST_F(MouseEvents, ADisabledControlHearsNothing) {
  Show();
  picTogTimer.Click = Note(m_aNotes, "click");
  picTogTimer.MouseDown = [this](int, float, float) { m_aNotes.append("down"); };
  picSensors.MouseDown = [this](int, float, float) { m_aNotes.append("behind"); };
  picTogTimer.Enabled = false;
  Press(Widget("picTogTimer"), {5, 5});
  Release(Widget("picTogTimer"), {5, 5});
  EXPECT_TRUE(m_aNotes.isEmpty());
}

TEST_F(MouseEvents, ADisabledPanelDisablesWhatStandsOnIt) {
  Show();
  picControls.Enabled = false;
  Move(Widget("imgLever"), {1, 1});
  EXPECT_TRUE(m_aMoves.empty());
}

TEST_F(MouseEvents, TheFormHearsItsOwnBackground) {
  Show();
  std::vector<HeardMouse> aHeard;
  frmGlidetrak.MouseMove = Note(aHeard);
  Move(MainWindow()->Client(), {700, 500});
  EXPECT_EQ(aHeard, std::vector<HeardMouse>({{0, 10500, 7500}}));
}

TEST_F(MouseEvents, TheEditorHearsThemInItsOwnPlace) {
  ShowEditor();
  std::vector<HeardMouse> aHeard;
  txtProgram.MouseMove = Note(aHeard);
  QWidget* pViewport = Editor()->viewport();
  Move(pViewport, {20, 10});
  const QPoint corner = pViewport->mapTo(Editor(), QPoint(20, 10));
  EXPECT_EQ(aHeard, std::vector<HeardMouse>({{0, Twips(corner.x()), Twips(corner.y())}}));
}

TEST_F(MouseEvents, DisplaysOfTheDebugPanelDoNotAnswer) {
  pnlDebug.Visible = true;
  Show();
  QTest::mouseClick(Widget("chkTiming"), Qt::LeftButton);
  QTest::mouseClick(Widget("optDirection_0"), Qt::LeftButton);
  EXPECT_FALSE(chkTiming.Value);
  EXPECT_FALSE(optDirection[0].Value);
  EXPECT_TRUE(optDirection[1].Value);
  EXPECT_FALSE(Widget("chkTiming")->property("checked").toBool());
  EXPECT_TRUE(Widget("optDirection_1")->property("checked").toBool());
}

TEST_F(MouseEvents, AFailingHandlerEndsInTheEvent) {
  Show();
  picTogTimer.Click = [] { throw RuntimeError(Fault::Overflow); };
  Press(Widget("picTogTimer"), {5, 5});
  EXPECT_NO_THROW(Release(Widget("picTogTimer"), {5, 5}));
}

}  // namespace
}  // namespace glidetrak
