#pragma once

#include <QKeyEvent>
#include <QObject>

namespace glidetrak {

/// The keys of a running program. While bProgramRunning is set every key of a form's window goes to
/// frmGlidetrak ahead of whatever has the focus: KeyDown first, then KeyPress when the key has a
/// character. No key reaches a widget or a menu. The keys of frmAbout count too: the start-up box
/// may hold the keyboard when a program is started. Boxes and other windows keep their keys.
class RunKeys : public QObject {
 public:
  explicit RunKeys(QObject* pOwner);

 protected:
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
};

}  // namespace glidetrak
