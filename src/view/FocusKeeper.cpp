#include "view/FocusKeeper.h"

#include <QApplication>
#include <QMenuBar>
#include <utility>

#include "view/Fire.h"

namespace glidetrak {

namespace {

bool CanTakeFocus(const QWidget* pWidget) {
  return pWidget != nullptr && pWidget->isVisible() && pWidget->isEnabled();
}

/// Whether it is the widget itself or stands in it.
bool BelongsTo(const QWidget* pWidget, const QWidget* pWhole) {
  return pWidget == pWhole || pWhole->isAncestorOf(pWidget);
}

}  // namespace

/// The window is asked, not the signal: it remembers its focus while another window is active.
FocusKeeper::FocusKeeper(QWidget* pWindow) : QObject(pWindow), m_pWindow(pWindow) {
  connect(qApp, &QApplication::focusChanged, this, [this] { Update(); });
}

/// While another window is active no focus signal comes, hence the update by hand.
void FocusKeeper::Watch(QWidget* pWidget, Control& control) {
  m_aControls.insert(pWidget, &control);
  control.SetFocus = [this, pWidget] {
    if (!CanTakeFocus(pWidget)) return;
    pWidget->setFocus(Qt::OtherFocusReason);
    Update();
  };
}

/// The window's own focus, also where a pop-up has the keyboard: it comes back to that.
void FocusKeeper::TakeFrom(QWidget* pWidget) {
  QWidget* pFocus = m_pWindow->focusWidget();
  if (pFocus == nullptr || !BelongsTo(pFocus, pWidget)) return;
  if (CanTakeFocus(m_pGrab) && !BelongsTo(m_pGrab, pWidget)) {
    m_pGrab->setFocus(Qt::OtherFocusReason);
  } else {
    pFocus->clearFocus();
  }
  Update();
}

/// Worked by keys, the menu bar is the window's focus until it gives it back.
void FocusKeeper::Update() {
  const QWidget* pFocus = m_pWindow->focusWidget();
  if (qobject_cast<const QMenuBar*>(pFocus) != nullptr) return;
  Control* pNow = m_aControls.value(pFocus);
  if (pNow == m_pHolder) return;
  Control* pBefore = std::exchange(m_pHolder, pNow);
  if (pBefore) Fire(pBefore->LostFocus);
  if (pNow && pNow == m_pHolder) Fire(pNow->GotFocus);
}

}  // namespace glidetrak
