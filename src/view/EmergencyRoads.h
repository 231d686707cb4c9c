#pragma once

#include <QMouseEvent>

#include "form/ControlTable.h"
#include "view/FormWindow.h"

namespace glidetrak {

/// The roads to the emergency stop that no menu, list, box or dialog bars. F12 and Pause press it
/// from every window of the station, but not by auto-repeat; neither key ever goes further. A press
/// of the mouse over its button that a pop-up would take for its own closing presses it, and
/// closes the pop-up. Nothing of it before the main window has been shown and once shut-down has
/// begun.
///
/// To be made behind every other filter of the application, so that it sees the keys first.
class EmergencyRoads : public QObject {
 public:
  /// `button` is the control whose MouseDown stops the vehicle.
  EmergencyRoads(FormWindow* pWindow, const ControlRow& button);

 protected:
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

 private:
  bool IsOpenForUse() const;
  void PressButton() const;
  bool PressSeen(const QMouseEvent& event);
  bool CoversButton(QPoint place) const;

  FormWindow* m_pWindow;
  const Control& m_button;
  QWidget* m_pButton;  ///< the widget of m_button
};

}  // namespace glidetrak
