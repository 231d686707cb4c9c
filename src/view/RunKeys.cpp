#include "view/RunKeys.h"

#include <QApplication>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "view/Fire.h"
#include "view/FormWindow.h"
#include "view/KeyCodes.h"

namespace glidetrak {

namespace {

/// The key that stops the run must not reach KeyPress: that would be a key of the idle form.
void FirePress(const QKeyEvent& event) {
  if (int iKeyCode = VirtualKeyCode(event)) Fire(frmGlidetrak.KeyDown, iKeyCode);
  int iCharacter = CharacterCode(event);
  if (iCharacter != 0 && bProgramRunning) Fire(frmGlidetrak.KeyPress, iCharacter);
}

/// A release that nobody swallows goes on from the focused widget to the panels behind it, and
/// comes by here each time; it is told once.
bool ReleaseSeen(const QWidget& widget, const QKeyEvent& event) {
  const QWidget* pFocus = widget.window()->focusWidget();
  if (&widget != (pFocus ? pFocus : widget.window())) return false;
  int iKeyCode = VirtualKeyCode(event);
  if (iKeyCode == 0) return false;
  Fire(frmGlidetrak.KeyUp, iKeyCode);
  return iKeyCode == 0;
}

}  // namespace

RunKeys::RunKeys(QObject* pOwner) : QObject(pOwner) {
  qApp->installEventFilter(this);
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
