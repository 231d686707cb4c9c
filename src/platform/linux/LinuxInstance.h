#pragma once

// One copy per user: a lock in the user's run-time folder, and a local socket through which a later
// copy asks the first to come forward.

#include <QLocalServer>
#include <QLockFile>
#include <functional>
#include <memory>

namespace glidetrak {

class LinuxInstance {
 public:
  /// True when this is the first copy, which then listens. A copy that cannot lock for want of a
  /// folder counts as the first: nothing is to keep a user from starting.
  bool Take();

  /// Asks the first copy; waits half a second at most, since a copy that hangs cannot answer.
  void ActivateOther();

  void SetActivation(std::function<void()> activate) { m_activate = std::move(activate); }

 private:
  void Listen();

  std::unique_ptr<QLockFile> m_lock;
  std::unique_ptr<QLocalServer> m_server;
  std::function<void()> m_activate;
};

}  // namespace glidetrak
