#pragma once

// The right to serve a Unix socket at a path. Whoever holds the lock beside it (the path with
// ".lock" behind it) has that right; the system gives the lock back when its holder ends in any
// way. The lock's file stays, and names the socket that its last holder made, so that what a killed
// rig has left can be told from anything else that stands at the path: only the former is removed.

#include <sys/un.h>

#include <string>

#include "bench/FileDescriptor.h"

namespace glidetrak::bench {

class SocketPlace {
 public:
  /// Throws std::runtime_error when another rig has the right, when something else stands at the
  /// path or at that of the lock, or when the lock cannot be made.
  explicit SocketPlace(std::string sPath);
  SocketPlace(SocketPlace&&) = default;

  /// A socket that listens there, for this user alone.
  FileDescriptor Listen();

  /// Removes the socket that was made; nothing else.
  void Clear();

 private:
  bool HoldsOwnSocket() const;
  void NoteOwnSocket();

  std::string m_sPath;
  FileDescriptor m_lock;
};

/// The system's form of the path. Throws std::runtime_error when it is too long for a socket; the
/// bytes behind it are 0.
sockaddr_un SocketAddress(const std::string& sPath);

}  // namespace glidetrak::bench
