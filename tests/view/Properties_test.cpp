// A changed property shows on the widget.

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include "view/Fonts.h"
#include "view/Units.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

using Properties = ViewTest;

TEST_F(Properties, PlaceAndSizeAreRoundedToPixels) {
  imgLever.Left = 7.4F;
  imgLever.Top = 2237.5F;
  imgLever.Width = 1807;
  imgLever.Height = 760;
  EXPECT_EQ(Widget("imgLever")->geometry(), QRect(0, 149, 120, 51));
  EXPECT_EQ(imgLever.Top, 2237.5F);
}

TEST_F(Properties, VisibleAndEnabledReachTheWidget) {
  Show();
  imgLever.Visible = false;
  EXPECT_FALSE(Widget("imgLever")->isVisible());
  imgLever.Visible = true;
  EXPECT_TRUE(Widget("imgLever")->isVisible());
  cmdRunProgram.Enabled = false;
  EXPECT_FALSE(Widget("cmdRunProgram")->isEnabled());
  cmdRunProgram.Enabled = true;
  EXPECT_TRUE(Widget("cmdRunProgram")->isEnabled());
}

TEST_F(Properties, LabelsShowPlainText) {
  auto* pLabel = MainWindow()->findChild<QLabel*>("lblMessage");
  lblMessage.Caption = "<b>bold</b> & more";
  EXPECT_EQ(pLabel->text(), "<b>bold</b> & more");
  EXPECT_EQ(pLabel->textFormat(), Qt::PlainText);
  EXPECT_TRUE(pLabel->wordWrap());
  lblMessage.ForeColor = lChosenYellow;
  EXPECT_EQ(pLabel->palette().color(QPalette::WindowText), QColor(192, 192, 0));
}

TEST_F(Properties, ButtonsShowTheirCaption) {
  cmdForward.Caption = "Adelante";
  EXPECT_EQ(qobject_cast<QAbstractButton*>(Widget("cmdForward"))->text(), "Adelante");
}

TEST_F(Properties, ToolTipsArePlainAndMayBeEmpty) {
  EXPECT_EQ(Widget("lblPowerLevel")->toolTip(), "Power Level");
  lblPowerLevel.ToolTipText = "";
  EXPECT_TRUE(Widget("lblPowerLevel")->toolTip().isEmpty());
  lblPowerLevel.ToolTipText = "<i>x</i>";
  EXPECT_EQ(Widget("lblPowerLevel")->toolTip(), "<qt>&lt;i&gt;x&lt;/i&gt;</qt>");
}

/// Else the tip of the panel behind would come up.
TEST_F(Properties, NoToolTipIsAnAnswerOfItsOwn) {
  QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), QPoint(2, 2));
  picSensors.ToolTipText = "panel";
  EXPECT_TRUE(QCoreApplication::sendEvent(Widget("lblTimer"), &event));
  EXPECT_TRUE(event.isAccepted());
}

TEST_F(Properties, DisplaysFollowTheirValues) {
  const auto* pForward = qobject_cast<QAbstractButton*>(Widget("optDirection_1"));
  const auto* pBackward = qobject_cast<QAbstractButton*>(Widget("optDirection_0"));
  const auto* pTiming = qobject_cast<QAbstractButton*>(Widget("chkTiming"));
  EXPECT_TRUE(pForward->isChecked());
  optDirection[1].Value = false;
  EXPECT_FALSE(pForward->isChecked());
  EXPECT_FALSE(pBackward->isChecked());
  optDirection[0].Value = true;
  chkTiming.Value = true;
  EXPECT_TRUE(pBackward->isChecked());
  EXPECT_TRUE(pTiming->isChecked());
}

QColor ColourAt(QWidget* pWidget, QPoint place) {
  return pWidget->grab().toImage().pixelColor(place);
}

TEST_F(Properties, LampsShowTheirColour) {
  QWidget* pLamp = Widget("ledInput_2");
  EXPECT_EQ(ColourAt(pLamp, {5, 5}), QColor(Qt::black));
  ledInput[2].FillColor = lLampYellow;
  EXPECT_EQ(ColourAt(pLamp, {5, 5}), QColor(0xF3, 0xD1, 0x12));
  EXPECT_EQ(ColourAt(pLamp, {0, 0}), QColor(Qt::black));
}

TEST_F(Properties, PanelsShowTheirBackground) {
  EXPECT_EQ(ColourAt(Widget("picHardware"), {280, 5}), ColourOf(lPanelBackground));
  picHardware.BackColor = lGrey;
  EXPECT_EQ(ColourAt(Widget("picHardware"), {280, 5}), QColor(192, 192, 192));
}

TEST_F(Properties, PicturesFollowTheirIds) {
  const QImage off = Widget("picTogTimer")->grab().toImage();
  picTogTimer.Picture = PictureId::ToggleOn;
  EXPECT_NE(Widget("picTogTimer")->grab().toImage(), off);
  const QImage low = Widget("imgBarGraph")->grab().toImage();
  imgBarGraph.Picture = PictureId::Bar15;
  EXPECT_NE(Widget("imgBarGraph")->grab().toImage(), low);
}

TEST_F(Properties, ListsShowTheirEntries) {
  cmbExamples.List = QStringList{"one", "two"};
  lstProgCommands.List = QStringList{"PRINT ", "BREAK", "LABEL "};
  const auto* pCombo = MainWindow()->findChild<QComboBox*>("cmbExamples");
  const auto* pList = MainWindow()->findChild<QListWidget*>("lstProgCommands");
  ASSERT_EQ(pCombo->count(), 2);
  EXPECT_EQ(pCombo->itemText(1), "two");
  EXPECT_EQ(pCombo->currentIndex(), -1);
  ASSERT_EQ(pList->count(), 3);
  EXPECT_EQ(pList->item(0)->text(), "PRINT ");
  cmbExamples.ListIndex = 1;
  lstProgCommands.ListIndex = 2;
  EXPECT_EQ(pCombo->currentIndex(), 1);
  EXPECT_EQ(pList->currentRow(), 2);
}

TEST_F(Properties, FacesThatWindowsHasAsPixelsGiveWayToThoseThatItDraws) {
  EXPECT_EQ(MakeFont({"MS Sans Serif", 8.25F, true}).families().first(), "Microsoft Sans Serif");
  EXPECT_EQ(MakeFont({"Courier", 9.75F, false}).families().first(), "Courier New");
  EXPECT_EQ(MakeFont({"Courier New", 9, false}).families().first(), "Courier New");
}

TEST_F(Properties, FontsHaveTheDesignSizes) {
  EXPECT_EQ(Widget("txtProgram")->font().pixelSize(), 13);
  EXPECT_EQ(Widget("lblTimer")->font().pixelSize(), 24);
  EXPECT_EQ(Widget("cmdManual")->font().pixelSize(), 11);
  EXPECT_TRUE(Widget("lstProgCommands")->font().bold());
  EXPECT_FALSE(Widget("txtProgram")->font().bold());
}

TEST_F(Properties, TheWindowHasItsCaption) {
  frmGlidetrak.Caption = "PLAN.GTP : Glidetrak Control";
  EXPECT_EQ(MainWindow()->windowTitle(), "PLAN.GTP : Glidetrak Control");
}

}  // namespace
}  // namespace glidetrak
