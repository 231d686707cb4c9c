#include "view/EventRelay.h"

#include "view/Fire.h"
#include "view/KeyCodes.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

int ButtonOf(Qt::MouseButtons buttons) {
  if (buttons & Qt::LeftButton) return mouseLeft;
  if (buttons & Qt::RightButton) return mouseRight;
  return buttons & Qt::MiddleButton ? mouseMiddle : 0;
}

enum class Relayed { MouseWholly, MouseAndKeys, Keys };

class EventRelay : public QObject {
 public:
  EventRelay(QWidget* pWidget, Control& control, Relayed relayed)
      : QObject(pWidget), m_pWidget(pWidget), m_control(control), m_relayed(relayed) {
    pWidget->setMouseTracking(true);
    pWidget->setAttribute(Qt::WA_NoMousePropagation);
    pWidget->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

 private:
  bool MouseSeen(QMouseEvent& event);

  QWidget* m_pWidget;
  Control& m_control;
  Relayed m_relayed;
};

bool EventRelay::MouseSeen(QMouseEvent& event) {
  if (m_relayed == Relayed::Keys) return false;
  const bool bWholly = m_relayed == Relayed::MouseWholly;
  const bool bClick = bWholly && event.type() == QEvent::MouseButtonRelease &&
                      event.button() == Qt::LeftButton && m_pWidget->isEnabled() &&
                      m_pWidget->rect().contains(event.position().toPoint());
  RelayMouse(m_control, *m_pWidget, event);
  if (bClick) Fire(m_control.Click);
  if (bWholly) event.accept();
  return bWholly;
}

bool EventRelay::eventFilter(QObject*, QEvent* pEvent) {
  if (IsMouseEvent(*pEvent)) return MouseSeen(static_cast<QMouseEvent&>(*pEvent));
  switch (pEvent->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return m_relayed != Relayed::MouseWholly &&
             RelayKey(m_control, static_cast<QKeyEvent&>(*pEvent));
    case QEvent::ToolTip:
      return m_pWidget->toolTip().isEmpty();  // else the panel behind would show its own
    default:
      return false;
  }
}

/// True when the handler swallows it. A key without that code fires nothing.
bool FireKey(const KeyEvent& event, int iCode) {
  if (iCode == 0) return false;
  Fire(event, iCode);
  return iCode == 0;
}

/// With Ctrl it is a key like others.
bool MovesFocus(const QKeyEvent& event) {
  const bool bTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  return bTab && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

bool IsControlCharacter(int iCode) {
  constexpr int iBlank = 32;
  return iCode > 0 && iCode < iBlank;
}

}  // namespace

bool IsMouseEvent(const QEvent& event) {
  return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick ||
         event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::MouseMove;
}

/// The second press of a double click is a press like the first, and the double click comes behind
/// it.
void RelayMouse(Control& control, const QWidget& widget, const QMouseEvent& event) {
  if (!widget.isEnabled()) return;
  const QPointF place = widget.mapFromGlobal(event.globalPosition());
  const float fX = Twips(place.x());
  const float fY = Twips(place.y());
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      Fire(control.MouseDown, ButtonOf(event.button()), fX, fY);
      break;
    case QEvent::MouseButtonDblClick:
      Fire(control.MouseDown, ButtonOf(event.button()), fX, fY);
      if (event.button() == Qt::LeftButton) Fire(control.DblClick);
      break;
    case QEvent::MouseButtonRelease:
      Fire(control.MouseUp, ButtonOf(event.button()), fX, fY);
      break;
    default:
      Fire(control.MouseMove, ButtonOf(event.buttons()), fX, fY);
  }
}

bool RelayKey(Control& control, const QKeyEvent& event) {
  const int iKeyCode = VirtualKeyCode(event);
  if (event.type() == QEvent::KeyRelease) return FireKey(control.KeyUp, iKeyCode);
  if (MovesFocus(event)) return false;
  const int iCharacter = CharacterCode(event);
  const bool bDownSwallowed = FireKey(control.KeyDown, iKeyCode);
  const bool bPressSwallowed = FireKey(control.KeyPress, iCharacter);
  return bPressSwallowed || (bDownSwallowed && !IsControlCharacter(iCharacter));
}

void RelayPassive(QWidget* pWidget, Control& control) {
  new EventRelay(pWidget, control, Relayed::MouseWholly);
}

void RelayActive(QWidget* pWidget, Control& control) {
  new EventRelay(pWidget, control, Relayed::MouseAndKeys);
}

void RelayKeys(QWidget* pWidget, Control& control) {
  new EventRelay(pWidget, control, Relayed::Keys);
}

}  // namespace glidetrak
