#pragma once

#include <QKeyEvent>
#include <QWidget>

namespace glidetrak {

/// The keys of a running program. While bProgramRunning is set every key of the window goes to the
/// form ahead of whatever has the focus: KeyDown first, then KeyPress when the key has a character.
/// No key reaches a widget or a menu. Boxes and other windows keep their keys.
class RunKeys : public QObject {
 public:
  explicit RunKeys(QWidget* pWindow);

 protected:
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

 private:
  bool ReleaseSeen(const QObject* pWatched, const QKeyEvent& event) const;

  QWidget* m_pWindow;
};

}  // namespace glidetrak
