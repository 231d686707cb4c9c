#include "view/EmergencyRoads.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>

#include "common/SharedState.h"
#include "view/Fire.h"

namespace glidetrak {

namespace {

bool IsEmergencyKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_F12 || event.key() == Qt::Key_Pause;
}

/// One that refuses to close ends the attempt.
void ClosePopups() {
  while (QWidget* pPopup = QApplication::activePopupWidget()) {
    pPopup->close();
    if (pPopup == QApplication::activePopupWidget()) return;
  }
}

}  // namespace

EmergencyRoads::EmergencyRoads(FormWindow* pWindow, const ControlRow& button)
    : QObject(pWindow),
      m_pWindow(pWindow),
      m_button(*AsControl(button.control)),
      m_pButton(pWindow->findChild<QWidget*>(button.sName)) {
  qApp->installEventFilter(this);
}

/// A second copy has windows too before it gives up, and a rig that is not its own.
bool EmergencyRoads::IsOpenForUse() const {
  return m_pWindow->ShownForm().Visible && !bShuttingDown;
}

void EmergencyRoads::PressButton() const {
  if (IsOpenForUse()) Fire(m_button.MouseDown, mouseLeft, 0.0F, 0.0F);
}

bool EmergencyRoads::eventFilter(QObject*, QEvent* pEvent) {
  switch (pEvent->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
      const auto& key = static_cast<QKeyEvent&>(*pEvent);
      if (!IsEmergencyKey(key)) return false;
      if (pEvent->type() == QEvent::KeyPress && !key.isAutoRepeat()) PressButton();
      return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return PressSeen(static_cast<QMouseEvent&>(*pEvent));
    default:
      return false;
  }
}

/// Without a pop-up the press finds the button by itself.
bool EmergencyRoads::PressSeen(const QMouseEvent& event) {
  if (QApplication::activePopupWidget() == nullptr || !IsOpenForUse()) return false;
  if (!CoversButton(event.globalPosition().toPoint())) return false;
  PressButton();
  ClosePopups();
  return true;
}

/// The button itself is what one sees at that place of the screen.
bool EmergencyRoads::CoversButton(QPoint place) const {
  const QPoint inside = m_pWindow->mapFromGlobal(place);
  if (m_pWindow->isMinimized() || m_pWindow->childAt(inside) != m_pButton) return false;
  return std::ranges::none_of(QApplication::topLevelWidgets(), [&](const QWidget* pOther) {
    return pOther != m_pWindow && pOther->isVisible() && pOther->geometry().contains(place);
  });
}

}  // namespace glidetrak
