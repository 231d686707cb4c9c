#include "view/FocusKeeper.h"

#include <QApplication>
#include <utility>

#include "view/Fire.h"

namespace glidetrak {

/// The window is asked, not the signal: it remembers its focus while another window is active.
FocusKeeper::FocusKeeper(QWidget* pWindow) : QObject(pWindow), m_pWindow(pWindow) {
  connect(qApp, &QApplication::focusChanged, this, [this] { Update(); });
}

/// While another window is active no focus signal comes, hence the update by hand.
void FocusKeeper::Watch(QWidget* pWidget, Control& control) {
  m_aControls.insert(pWidget, &control);
  control.SetFocus = [this, pWidget] {
    if (!pWidget->isVisible() || !pWidget->isEnabled()) return;
    pWidget->setFocus(Qt::OtherFocusReason);
    Update();
  };
}

void FocusKeeper::Update() {
  Control* pNow = m_aControls.value(m_pWindow->focusWidget());
  if (pNow == m_pHolder) return;
  Control* pBefore = std::exchange(m_pHolder, pNow);
  if (pBefore) Fire(pBefore->LostFocus);
  if (pNow && pNow == m_pHolder) Fire(pNow->GotFocus);
}

}  // namespace glidetrak
