#include "view/RunKeys.h"

#include <QApplication>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "view/Fire.h"
#include "view/KeyCodes.h"

namespace glidetrak {

namespace {

/// The key that stops the run must not reach KeyPress: that would be a key of the idle form.
void FirePress(const QKeyEvent& event) {
  if (int iKeyCode = VirtualKeyCode(event)) Fire(frmGlidetrak.KeyDown, iKeyCode);
  int iCharacter = CharacterCode(event);
  if (iCharacter != 0 && bProgramRunning) Fire(frmGlidetrak.KeyPress, iCharacter);
}

}  // namespace

RunKeys::RunKeys(QWidget* pWindow) : QObject(pWindow), m_pWindow(pWindow) {
  qApp->installEventFilter(this);
}

bool RunKeys::eventFilter(QObject* pWatched, QEvent* pEvent) {
  if (!bProgramRunning || !pWatched->isWidgetType()) return false;
  if (static_cast<QWidget*>(pWatched)->window() != m_pWindow) return false;
  switch (pEvent->type()) {
    case QEvent::ShortcutOverride:
      pEvent->accept();  // the key comes as a key and not as a menu's shortcut
      return true;
    case QEvent::KeyPress:
      FirePress(static_cast<QKeyEvent&>(*pEvent));
      return true;
    case QEvent::KeyRelease:
      return ReleaseSeen(pWatched, static_cast<QKeyEvent&>(*pEvent));
    default:
      return false;
  }
}

/// A release that nobody swallows goes on from the focused widget to the panels behind it, and
/// comes by here each time; it is told once.
bool RunKeys::ReleaseSeen(const QObject* pWatched, const QKeyEvent& event) const {
  const QWidget* pFocus = m_pWindow->focusWidget();
  if (pWatched != (pFocus ? pFocus : m_pWindow)) return false;
  int iKeyCode = VirtualKeyCode(event);
  if (iKeyCode == 0) return false;
  Fire(frmGlidetrak.KeyUp, iKeyCode);
  return iKeyCode == 0;
}

}  // namespace glidetrak
