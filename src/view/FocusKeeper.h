#pragma once

#include <QHash>
#include <QWidget>

#include "form/Controls.h"

namespace glidetrak {

/// Knows which control of a window holds the focus, and fires LostFocus and GotFocus when that
/// changes. A pop-up, a menu, a box or another window takes the keyboard but not the form's focus,
/// and fires neither.
class FocusKeeper : public QObject {
 public:
  explicit FocusKeeper(QWidget* pWindow);

  /// Fills the control's SetFocus and counts the widget among those whose focus is told.
  void Watch(QWidget* pWidget, Control& control);

 private:
  void Update();

  QWidget* m_pWindow;
  QHash<const QWidget*, Control*> m_aControls;
  Control* m_pHolder = nullptr;  ///< null while no control holds the focus
};

}  // namespace glidetrak
