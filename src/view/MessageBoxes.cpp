#include "view/MessageBoxes.h"

#include <QKeyEvent>
#include <QMessageBox>

#include "view/MainWindow.h"
#include "view/ToolkitTexts.h"

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
                         BoxButtons buttons) {
  InstallToolkitTexts();
  if (buttons == BoxButtons::YesNo) {
    QuestionBox box(Owner());
    Prepare(box, sText, sTitle, icon);
    return Ask(box);
  }
  QMessageBox box(Owner());
  Prepare(box, sText, sTitle, icon);
  return Tell(box);
}

}  // namespace glidetrak
