#include "view/View.h"

#include <QApplication>
#include <QIcon>
#include <QMenuBar>
#include <utility>

#include "form/ControlTable.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "view/ControlWidgets.h"
#include "view/EmergencyRoads.h"
#include "view/MainWindow.h"
#include "view/MenuBar.h"
#include "view/Monitors.h"
#include "view/PictureStore.h"
#include "view/Pointers.h"
#include "view/RunKeys.h"
#include "view/SessionEnd.h"

namespace glidetrak {

namespace {

FormWindow* pMainWindow = nullptr;

/// The main window owns the About window and everything else of the view.
void DestroyView() {
  delete std::exchange(pMainWindow, nullptr);
}

QWidget* Widget(const QString& sName) {
  return pMainWindow->findChild<QWidget*>(sName);
}

/// The tables draw a container's controls in their order, which is right but for these: panel
/// backgrounds lie lowest, the focus keeper behind the editor, and the lamps' frames behind the
/// lamps.
void OrderOverlaps() {
  for (int i = 8; i < 24; ++i) Widget(QString("ledOutput_%1").arg(i))->lower();
  for (const char* sName :
       {"txtFocusGrab", "imgSensors", "imgControls", "imgProgBoxBack", "imgHardware"}) {
    Widget(sName)->lower();
  }
}

/// Tab out of the editor finds no button or list that the next keys would operate.
void OrderTabs() {
  QWidget::setTabOrder(Widget("txtProgram"), Widget("txtFocusGrab"));
}

void BuildMainForm() {
  pMainWindow = new FormWindow(frmGlidetrak, "frmGlidetrak", nullptr);
  qAddPostRoutine(DestroyView);
  pMainWindow->menuBar()->setNativeMenuBar(false);
  FillMenuBar(pMainWindow->menuBar());
  MakeControls(MainFormTable(), pMainWindow->Client(), *new FocusKeeper(pMainWindow));
  OrderOverlaps();
  OrderTabs();
  pMainWindow->FitClient();
  new RunKeys(pMainWindow);
  new EmergencyRoads(pMainWindow);
  WatchSessionEnd(pMainWindow);
}

void SetIcon() {
  constexpr QSize IconSize(64, 64);
  QGuiApplication::setWindowIcon(
      PictureAt(PictureId::AboutEmblem, IconSize, 1, Fit::KeepProportions));
}

void BuildAboutForm() {
  auto* pWindow = new FormWindow(frmAbout, "frmAbout", pMainWindow);
  MakeControls(AboutFormTable(), pWindow->Client(), *new FocusKeeper(pWindow));
  pWindow->FitClient();
  pWindow->setFixedSize(pWindow->size());
}

void WatchScreen() {
  TellScreenSize();
  QObject::connect(qApp, &QGuiApplication::primaryScreenChanged, pMainWindow, TellScreenSize);
  ObserveScreenPointer(pMainWindow);
}

}  // namespace

FormWindow* MainWindow() {
  return pMainWindow;
}

/// A box that closes while the main window is still hidden would else be taken for the last window.
void BuildView() {
  QGuiApplication::setQuitOnLastWindowClosed(false);
  SetIcon();
  BuildMainForm();
  BuildAboutForm();
  WatchScreen();
}

}  // namespace glidetrak
