#include "view/ViewTest.h"

#include <QApplication>

#include "form/DesignState.h"
#include "strings/LanguageFunctions.h"
#include "strings/ResourceStrings.h"

namespace glidetrak {

ViewTest::ViewTest() {
  pMachine = &m_machine;
  SetUILanguage(iEnglish);
  ResetForms();
  BuildView();
}

void ViewTest::Show() {
  frmGlidetrak.Show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(MainWindow()));
  Settle();
}

void ViewTest::ShowEditor() {
  pnlProgramBox.Visible = true;
  txtProgram.Visible = true;
  Show();
}

void ViewTest::Settle() {
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
}

QWidget* ViewTest::Widget(const QString& sName) {
  return MainWindow()->findChild<QWidget*>(sName);
}

QPlainTextEdit* ViewTest::Editor() {
  return MainWindow()->findChild<QPlainTextEdit*>("txtProgram");
}

QWidget* ViewTest::AboutWindow() {
  return Widget("frmAbout");
}

void ViewTest::Mouse(QWidget* pWidget, QEvent::Type type, QPoint place, Qt::MouseButton button,
                     Qt::MouseButtons held) {
  QMouseEvent event(type, place, pWidget->mapToGlobal(place), button, held, Qt::NoModifier);
  QApplication::sendEvent(pWidget, &event);
}

void ViewTest::Press(QWidget* pWidget, QPoint place, Qt::MouseButton button) {
  Mouse(pWidget, QEvent::MouseButtonPress, place, button, button);
}

void ViewTest::Release(QWidget* pWidget, QPoint place, Qt::MouseButton button) {
  Mouse(pWidget, QEvent::MouseButtonRelease, place, button, Qt::NoButton);
}

void ViewTest::Move(QWidget* pWidget, QPoint place, Qt::MouseButtons held) {
  Mouse(pWidget, QEvent::MouseMove, place, Qt::NoButton, held);
}

void ViewTest::DoubleClick(QWidget* pWidget, QPoint place) {
  Press(pWidget, place);
  Release(pWidget, place);
  Mouse(pWidget, QEvent::MouseButtonDblClick, place, Qt::LeftButton, Qt::LeftButton);
  Release(pWidget, place);
}

std::function<void()> ViewTest::Note(QStringList& aNotes, const QString& sNote) {
  return [&aNotes, sNote] { aNotes.append(sNote); };
}

std::function<void(int, float, float)> ViewTest::Note(std::vector<HeardMouse>& aHeard) {
  return [&aHeard](int iButton, float fX, float fY) { aHeard.push_back({iButton, fX, fY}); };
}

}  // namespace glidetrak
