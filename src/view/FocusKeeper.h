#pragma once

#include <QHash>
#include <QWidget>

#include "form/Controls.h"

namespace glidetrak {

/// Knows which control of a window holds the focus, and fires LostFocus and GotFocus when that
/// changes. A pop-up, a menu, a box or another window takes the keyboard but not the form's focus,
/// and fires neither.
///
/// The toolkit would hand the focus of a control that goes away to its neighbour in the tab order,
/// where the user's next key presses a button that nobody looked at. Here it goes to the grab: the
/// control that the form's table gives Role::FocusKeeper.
class FocusKeeper : public QObject {
 public:
  explicit FocusKeeper(QWidget* pWindow);

  /// Fills the control's SetFocus and counts the widget among those whose focus is told.
  void Watch(QWidget* pWidget, Control& control);

  /// Makes a widget the grab; a window needs none.
  void SetGrab(QWidget* pWidget) { m_pGrab = pWidget; }

  /// To be called ahead of hiding or disabling a widget. The focus on it or in it goes to
  /// the grab when that can take it and stays behind, else to nobody.
  void TakeFrom(QWidget* pWidget);

 private:
  void Update();

  QWidget* m_pWindow;
  QHash<const QWidget*, Control*> m_aControls;
  Control* m_pHolder = nullptr;  ///< null while no control holds the focus
  QWidget* m_pGrab = nullptr;    ///< null on a window without one
};

}  // namespace glidetrak
