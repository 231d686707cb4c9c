#include "view/MessageBoxes.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QShowEvent>
#include <algorithm>

#include "form/ControlTable.h"
#include "view/MainWindow.h"
#include "view/ToolkitTexts.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

/// The toolkit would take No for an escape from a question, and close with it.
class QuestionBox : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void keyPressEvent(QKeyEvent* pEvent) override {
    if (!pEvent->matches(QKeySequence::Cancel)) QMessageBox::keyPressEvent(pEvent);
  }
  void closeEvent(QCloseEvent* pEvent) override { pEvent->ignore(); }
};

/// The top band on the screen: what stands above the panels and the editor.
QRect TopBand() {
  const QRect band = PlaceOf(*AsControl(RowInRole(Role::TopBand).control));
  return {MainWindow()->Client()->mapToGlobal(band.topLeft()), band.size()};
}

/// The frame that the system puts around a window; the main window has it already.
QSize FrameSize() {
  return MainWindow()->frameGeometry().size() - MainWindow()->geometry().size();
}

/// The place of a box of that size, frame included.
QPoint PlaceOverTopBand(QSize size) {
  const QRect band = TopBand();
  const QRect screen = MainWindow()->screen()->availableGeometry();
  QRect box({}, size);
  box.moveCenter(band.center());
  box.moveBottom(std::min(box.bottom(), band.bottom()));
  box.moveRight(std::min(box.right(), screen.right()));
  box.moveBottom(std::min(box.bottom(), screen.bottom()));
  box.moveLeft(std::max(box.left(), screen.left()));
  box.moveTop(std::max(box.top(), screen.top()));
  return box.topLeft();
}

/// A box knows its size when it is about to show, and not before.
class ErrorBox : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void showEvent(QShowEvent* pEvent) override {
    QMessageBox::showEvent(pEvent);
    if (!pEvent->spontaneous()) move(PlaceOverTopBand(size() + FrameSize()));
  }
};

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::Question:
      return QMessageBox::Question;
    default:
      return QMessageBox::Warning;
  }
}

void Prepare(QMessageBox& box, const QString& sText, const QString& sTitle, BoxIcon icon) {
  box.setTextFormat(Qt::PlainText);
  box.setText(sText);
  box.setWindowTitle(sTitle);
  box.setIcon(IconOf(icon));
}

BoxAnswer Ask(QuestionBox& box) {
  box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

BoxAnswer Tell(QMessageBox& box) {
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
  return BoxAnswer::Ok;
}

/// The main window, which outlives every box; the start-up box may go while the box is open. A
/// minimised owner would hide the box with it.
QWidget* Owner() {
  const bool bShown = MainWindow() != nullptr && MainWindow()->isVisible();
  return bShown && !MainWindow()->isMinimized() ? MainWindow() : nullptr;
}

}  // namespace

BoxAnswer ShowMessageBox(const QString& sText, const QString& sTitle, BoxIcon icon,
                         BoxButtons buttons, BoxPlace place) {
  InstallToolkitTexts();
  if (buttons == BoxButtons::YesNo) {
    QuestionBox box(Owner());
    Prepare(box, sText, sTitle, icon);
    return Ask(box);
  }
  if (place == BoxPlace::TopBand && Owner() != nullptr) {
    ErrorBox box(Owner());
    Prepare(box, sText, sTitle, icon);
    return Tell(box);
  }
  QMessageBox box(Owner());
  Prepare(box, sText, sTitle, icon);
  return Tell(box);
}

}  // namespace glidetrak
