#pragma once

// One copy per user: a lock in the user's run-time folder, and a local socket through which a later
// copy asks the first to come forward.
//
// The lock is the system's own, on an open file, and goes with its process however that ends. What
// stands in the file counts for nothing, so that no file that was left behind, empty or unreadable
// keeps the user out.

#include <QLocalServer>
#include <functional>
#include <memory>

namespace glidetrak {

/// Where the lock may lie when XDG_RUNTIME_DIR does not name a folder of this user's.
struct InstanceFolders {
  QString sSystems;  ///< the run-time folder that the system makes for the user
  QString sOwn;      ///< made by the station where there is no other, with mode 0700
};
InstanceFolders UsersFolders();

class LinuxInstance {
 public:
  explicit LinuxInstance(InstanceFolders folders = UsersFolders())
      : m_folders(std::move(folders)) {}
  ~LinuxInstance();
  LinuxInstance(const LinuxInstance&) = delete;
  LinuxInstance& operator=(const LinuxInstance&) = delete;

  /// True when this is the first copy, which then listens. A copy that cannot lock for want of a
  /// folder counts as the first: nothing is to keep a user from starting.
  bool Take();

  /// Asks the first copy; waits half a second at most, since a copy that hangs cannot answer.
  void ActivateOther();

  void SetActivation(std::function<void()> activate) { m_activate = std::move(activate); }

  /// What XDG_RUNTIME_DIR names, else the system's folder, else our own: the first that belongs to
  /// the user and can be written. So copies of which only one has the variable, or one has another
  /// user's, still meet. "" when there is none.
  QString Folder() const;

 private:
  void Listen();

  InstanceFolders m_folders;
  int m_iLock = -1;  ///< descriptor of the locked file; -1 without a lock
  std::unique_ptr<QLocalServer> m_server;
  std::function<void()> m_activate;
};

}  // namespace glidetrak
