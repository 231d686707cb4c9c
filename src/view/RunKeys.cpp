#include "view/RunKeys.h"

#include <QApplication>

#include "common/SharedState.h"
#include "view/Fire.h"
#include "view/FormWindow.h"
#include "view/KeyCodes.h"

namespace glidetrak {

RunKeys::RunKeys(QObject* pOwner, Form& mainForm) : QObject(pOwner), m_mainForm(mainForm) {
  qApp->installEventFilter(this);
}

/// The key that stops the run must not reach KeyPress: that would be a key of the idle form.
void RunKeys::FirePress(const QKeyEvent& event) {
  if (int iKeyCode = VirtualKeyCode(event)) Fire(m_mainForm.KeyDown, iKeyCode);
  int iCharacter = CharacterCode(event);
  if (iCharacter != 0 && bProgramRunning) Fire(m_mainForm.KeyPress, iCharacter);
}

/// A release that nobody swallows goes on from the focused widget to the panels behind it, and
/// comes by here each time; it is told once.
bool RunKeys::ReleaseSeen(const QWidget& widget, const QKeyEvent& event) {
  const QWidget* pFocus = widget.window()->focusWidget();
  if (&widget != (pFocus ? pFocus : widget.window())) return false;
  int iKeyCode = VirtualKeyCode(event);
  if (iKeyCode == 0) return false;
  Fire(m_mainForm.KeyUp, iKeyCode);
  return iKeyCode == 0;
}

bool RunKeys::eventFilter(QObject* pWatched, QEvent* pEvent) {
  if (!bProgramRunning || !pWatched->isWidgetType()) return false;
  const auto* pWidget = static_cast<QWidget*>(pWatched);
  if (dynamic_cast<FormWindow*>(pWidget->window()) == nullptr) return false;
  switch (pEvent->type()) {
    case QEvent::ShortcutOverride:
      pEvent->accept();  // the key comes as a key and not as a menu's shortcut
      return true;
    case QEvent::KeyPress:
      FirePress(static_cast<QKeyEvent&>(*pEvent));
      return true;
    case QEvent::KeyRelease:
      return ReleaseSeen(*pWidget, static_cast<QKeyEvent&>(*pEvent));
    default:
      return false;
  }
}

}  // namespace glidetrak
