#pragma once

// One copy per user, in whatever session of that user's: a mutex of the system's that bears the
// user's id, and an event by which a later copy asks the first to come forward. Both end with their
// process, however that ends.

#include <QString>
#include <QWinEventNotifier>
#include <functional>
#include <memory>

namespace glidetrak {

/// The name under which this user's copies meet.
QString UsersInstanceName();

class WindowsInstance {
 public:
  explicit WindowsInstance(QString sName = UsersInstanceName()) : m_sName(std::move(sName)) {}
  ~WindowsInstance();
  WindowsInstance(const WindowsInstance&) = delete;
  WindowsInstance& operator=(const WindowsInstance&) = delete;

  /// True when this is the first copy, which then listens. A copy that cannot tell counts as the
  /// first: nothing is to keep a user from starting.
  bool Take();

  /// Asks the first copy and hands it the right to come to the front. Does not wait for it, since a
  /// copy that hangs cannot answer.
  void ActivateOther();

  void SetActivation(std::function<void()> activate) { m_activate = std::move(activate); }

 private:
  QString m_sName;
  void* m_mutex = nullptr;  ///< handle; null in a copy that is not the first
  void* m_event = nullptr;  ///< handle; set by a later copy
  std::unique_ptr<QWinEventNotifier> m_notifier;
  std::function<void()> m_activate;
};

}  // namespace glidetrak
