#pragma once

#include <QKeyEvent>
#include <QObject>

#include "form/Controls.h"

namespace glidetrak {

/// The keys of a running program. While bProgramRunning is set every key of a form's window goes to
/// the main form ahead of whatever has the focus: KeyDown first, then KeyPress when the key has a
/// character. No key reaches a widget or a menu. The keys of the About box count too: the start-up
/// box may hold the keyboard when a program is started. Boxes and other windows keep their keys.
class RunKeys : public QObject {
 public:
  RunKeys(QObject* pOwner, Form& mainForm);

 protected:
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

 private:
  void FirePress(const QKeyEvent& event);
  bool ReleaseSeen(const QWidget& widget, const QKeyEvent& event);

  Form& m_mainForm;
};

}  // namespace glidetrak
