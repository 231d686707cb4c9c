// Every control of the two forms has its widget, in its place, over and under the right others.

#include <QLabel>
#include <QTimer>

#include "view/Units.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

using Widgets = ViewTest;

/// Timers are no widgets; dialogs and image lists are nothing to see.
bool HasWidget(const ControlRef& control) {
  return !std::holds_alternative<Timer*>(control) &&
         !std::holds_alternative<FileDialog*>(control) &&
         !std::holds_alternative<ImageList*>(control);
}

QWidget* WidgetOf(const QWidget* pWindow, const char* sName) {
  return pWindow->findChild<QWidget*>(sName);
}

void ExpectPlaces(const QWidget* pWindow, std::span<const ControlRow> rows) {
  for (const ControlRow& row : rows) {
    if (!HasWidget(row.control) || row.iMembers > 1) continue;
    const QWidget* pWidget = WidgetOf(pWindow, row.sName);
    ASSERT_NE(pWidget, nullptr) << row.sName;
    if (std::holds_alternative<Label*>(row.control)) continue;
    const QRect place = PlaceOf(*AsControl(row.control));
    EXPECT_EQ(pWidget->geometry().topLeft(), place.topLeft()) << row.sName;
    EXPECT_EQ(pWidget->width(), place.width()) << row.sName;
    EXPECT_EQ(pWidget->height(), std::max(1, place.height())) << row.sName;
  }
}

TEST_F(Widgets, StandAtTheirControlsPlaces) {
  ExpectPlaces(MainWindow(), MainFormTable());
}

TEST_F(Widgets, OfTheAboutBoxStandAtTheirControlsPlaces) {
  ExpectPlaces(AboutWindow(), AboutFormTable());
}

TEST_F(Widgets, LieInTheirContainers) {
  EXPECT_EQ(Widget("imgLever")->parentWidget(), Widget("picControls"));
  EXPECT_EQ(Widget("txtProgram")->parentWidget(), Widget("pnlProgramBox"));
  EXPECT_EQ(Widget("ledInput_3")->parentWidget(), Widget("pnlDebug"));
  EXPECT_EQ(Widget("picSensors")->parentWidget(), MainWindow()->Client());
  EXPECT_EQ(Widget("picClose")->window(), AboutWindow());
}

TEST_F(Widgets, OfArraysAreNamedByIndex) {
  for (const MemberRow& row : MemberTable()) {
    const QString sName = QString("%1_%2").arg(row.sArray).arg(row.iIndex);
    const QWidget* pWidget = Widget(sName);
    ASSERT_NE(pWidget, nullptr) << sName.toStdString();
    EXPECT_EQ(pWidget->pos(), PlaceOf(*AsControl(row.control)).topLeft()) << sName.toStdString();
  }
  EXPECT_EQ(Widget("ledInput"), nullptr);
}

TEST_F(Widgets, OfTimersAreTimers) {
  for (const char* sName : {"tmrSystem", "tmrReconnect", "tmrEmergencyFlash", "tmrUpdate"}) {
    EXPECT_NE(MainWindow()->findChild<QTimer*>(sName), nullptr) << sName;
  }
}

TEST_F(Widgets, OfTextLabelsStandAtTheirPlaces) {
  EXPECT_EQ(Widget("lblMessage")->geometry(), PlaceOf(lblMessage));
  EXPECT_EQ(Widget("lblHELPFormat")->geometry(), PlaceOf(lblHELPFormat));
}

TEST_F(Widgets, OfHiddenControlsAreHidden) {
  Show();
  for (const char* sName : {"pnlProgramBox", "pnlMessage", "pnlCommandSel", "pnlDebug",
                            "cmbExamples", "btnTmrReset", "imgDefBtn", "imgDiagBtnWF"}) {
    EXPECT_TRUE(Widget(sName)->isHidden()) << sName;
  }
  for (const char* sName : {"picHardware", "picSensors", "imgLever", "cmdManual", "lblTimer"}) {
    EXPECT_TRUE(Widget(sName)->isVisible()) << sName;
  }
}

TEST_F(Widgets, PanelBackgroundsLieLowest) {
  Show();
  const QWidget* pSensors = Widget("picSensors");
  EXPECT_EQ(pSensors->childAt(PlaceOf(lblTimer).center()), Widget("lblTimer"));
  EXPECT_EQ(pSensors->childAt(PlaceOf(imgBarGraph).center()), Widget("imgBarGraph"));
  EXPECT_EQ(pSensors->childAt(3, 3), Widget("imgSensors"));
  const QWidget* pControls = Widget("picControls");
  EXPECT_EQ(pControls->childAt(PlaceOf(imgLever).center()), Widget("imgLever"));
  lblHWState.Left = 0;
  lblHWState.Top = 0;
  EXPECT_EQ(Widget("picHardware")->childAt(5, 5), Widget("lblHWState"));
}

TEST_F(Widgets, ResetLiesOverTheEmergencyStop) {
  Show();
  EXPECT_EQ(Widget("picControls")->childAt(PlaceOf(btnRstStop).center()), Widget("btnRstStop"));
}

TEST_F(Widgets, TheFocusKeeperLiesBehindTheEditor) {
  ShowEditor();
  QWidget* pTop = Widget("pnlProgramBox")->childAt(PlaceOf(txtFocusGrab).center());
  EXPECT_EQ(pTop, Editor()->viewport());
  EXPECT_TRUE(Widget("txtFocusGrab")->isVisible());
}

TEST_F(Widgets, FloatingPanelsLieOnTop) {
  for (PictureBox* pPanel : {&pnlMessage, &pnlCommandSel, &pnlDebug}) {
    pPanel->Visible = true;
    pPanel->Left = 4500;
    pPanel->Top = 5000;
  }
  Show();
  const QPoint place = PlaceOf(pnlMessage).topLeft() + QPoint(2, 2);
  EXPECT_EQ(MainWindow()->Client()->childAt(place), Widget("pnlDebug"));
  pnlDebug.Visible = false;
  EXPECT_EQ(MainWindow()->Client()->childAt(place), Widget("pnlCommandSel"));
  pnlCommandSel.Visible = false;
  EXPECT_EQ(MainWindow()->Client()->childAt(place), Widget("pnlMessage"));
}

TEST_F(Widgets, HelpPanesLieOverTheirFrame) {
  pnlCommandSel.Visible = true;
  Show();
  const QWidget* pPanel = Widget("pnlCommandSel");
  EXPECT_EQ(pPanel->childAt(PlaceOf(lblCompDesc).center()), Widget("lblCompDesc"));
  EXPECT_EQ(pPanel->childAt(PlaceOf(fraHelp).bottomLeft() + QPoint(2, -2)), Widget("fraHelp"));
}

TEST_F(Widgets, LampsLieOverTheirFrames) {
  pnlDebug.Visible = true;
  Show();
  const QWidget* pPanel = Widget("pnlDebug");
  EXPECT_EQ(pPanel->childAt(PlaceOf(ledInput[4]).center()), Widget("ledInput_4"));
  EXPECT_EQ(pPanel->childAt(PlaceOf(ledOutput[4]).center()), Widget("ledOutput_4"));
}

/// What a legend's text needs and where its middle is.
void ExpectLegend(const Label& label, const QString& sCaption) {
  const auto* pWidget = MainWindow()->findChild<QLabel*>("lblOn1");
  const int iNeeded = QFontMetrics(pWidget->font()).horizontalAdvance(sCaption);
  EXPECT_GE(pWidget->width(), iNeeded);
  EXPECT_NEAR(pWidget->geometry().center().x(), PlaceOf(label).center().x(), 1);
}

TEST_F(Widgets, LegendsHoldTheirTextAroundTheirMiddle) {
  lblOn1.Caption = "ON";
  const int iDesign = Widget("lblOn1")->font().pixelSize();
  EXPECT_EQ(Widget("lblOn1")->geometry(), PlaceOf(lblOn1));
  lblOn1.Caption = "ENCENDIDA";
  ExpectLegend(lblOn1, "ENCENDIDA");
  EXPECT_LT(Widget("lblOn1")->font().pixelSize(), iDesign);
  lblOn1.Left = 900;
  ExpectLegend(lblOn1, "ENCENDIDA");
  lblOn1.Caption = "ON";
  EXPECT_EQ(Widget("lblOn1")->font().pixelSize(), iDesign);
}

TEST_F(Widgets, NamesGrowToTheRight) {
  lblProgName.Caption = "Glidetrak Control";
  const QRect place = AboutWindow()->findChild<QLabel*>("lblProgName")->geometry();
  EXPECT_EQ(place.topLeft(), PlaceOf(lblProgName).topLeft());
  EXPECT_GT(place.width(), SizeOf(lblProgName).width());
}

}  // namespace
}  // namespace glidetrak
