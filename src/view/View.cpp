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

void BuildMainForm() {
  pMainWindow = new FormWindow(frmGlidetrak, "frmGlidetrak", nullptr);
  qAddPostRoutine(DestroyView);
  pMainWindow->menuBar()->setNativeMenuBar(false);
  FillMenuBar(pMainWindow->menuBar());
  MakeControls(MainFormTable(), pMainWindow->Client(), *new FocusKeeper(pMainWindow));
  pMainWindow->FitClient();
  new RunKeys(pMainWindow, frmGlidetrak);
  new EmergencyRoads(pMainWindow, RowInRole(Role::EmergencyStop));
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
