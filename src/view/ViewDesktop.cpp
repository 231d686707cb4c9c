#include "view/ViewDesktop.h"

#include <QApplication>
#include <QScreen>

#include "view/MainWindow.h"
#include "view/MessageBoxes.h"
#include "view/Monitors.h"
#include "view/Units.h"

namespace glidetrak {

void ViewDesktop::PumpEvents() {
  QCoreApplication::processEvents();
}

BoxAnswer ViewDesktop::ShowBox(const QString& sText, const QString& sTitle, BoxIcon icon,
                               BoxButtons buttons, BoxPlace place) {
  return ShowMessageBox(sText, sTitle, icon, buttons, place);
}

void ViewDesktop::Beep() {
  QApplication::beep();
}

std::optional<PixelRect> ViewDesktop::NearestMonitor() {
  return RectOf(NearestScreen(MainWindow()->geometry()));
}

std::optional<PixelRect> ViewDesktop::WorkArea() {
  const QScreen* pScreen = QGuiApplication::primaryScreen();
  return RectOf(pScreen != nullptr ? pScreen->availableGeometry() : QRect());
}

std::optional<PixelRect> ViewDesktop::NormalRect() {
  return RectOf(MainWindow()->normalGeometry());
}

std::optional<PixelRect> ViewDesktop::WindowRect() {
  return RectOf(MainWindow()->geometry());
}

void ViewDesktop::MoveWindow(qint32 lLeft, qint32 lTop) {
  Form& form = MainWindow()->ShownForm();
  form.Left = Twips(lLeft);
  form.Top = Twips(lTop);
  form.Refresh();
}

bool ViewDesktop::IsMainWindowActive() {
  return MainWindow()->isActiveWindow();
}

}  // namespace glidetrak
