#pragma once

// A named pipe of one user's own. Its security lets that user alone in and names them as its owner,
// by which a client tells it from a pipe that somebody else has put at the same name. Whoever holds
// the lock that bears its name has the right to serve it; the system gives both back when their
// holder ends in any way.

#include <string>

#include "bench/SystemHandle.h"

namespace glidetrak::bench {

/// Where the pipe of this user is when nothing else is told. Throws std::runtime_error when the
/// system does not tell who the user is.
std::string OwnPipeName();

/// A connection to what is served at the name. Nothing is open when there is none or what is there
/// is not this user's pipe; the system's last error is ERROR_PIPE_BUSY when another try may find
/// it, and ERROR_ACCESS_DENIED when it is somebody else's.
SystemHandle OpenPipe(const std::string& sName);

/// Waits that many ms, at least 2, for an instance that nobody is connected to.
void AwaitPipe(const std::string& sName, unsigned iMilliseconds);

/// Lets in the user who runs this process, and nobody else. Throws std::runtime_error when the
/// system does not tell who that is.
class UserSecurity {
 public:
  UserSecurity();
  ~UserSecurity() { LocalFree(m_pDescriptor); }
  UserSecurity(const UserSecurity&) = delete;
  UserSecurity& operator=(const UserSecurity&) = delete;

  /// For what is made; not handed on to processes that are started.
  SECURITY_ATTRIBUTES Attributes() const {
    return {sizeof(SECURITY_ATTRIBUTES), m_pDescriptor, FALSE};
  }

 private:
  PSECURITY_DESCRIPTOR m_pDescriptor = nullptr;
};

class PipePlace {
 public:
  /// Throws std::runtime_error when another rig has the right, or when the name is none of a pipe
  /// of this machine.
  explicit PipePlace(const std::string& sName);

  /// The first instance. Throws std::runtime_error when something else stands there, which is left
  /// alone, or when it cannot be had. The name is taken too as long as a client of a rig that has
  /// ended holds on to its end: that is waited for, two seconds at most.
  SystemHandle TakeFirst() const;

  /// A further one, for one more client; nothing open when the system has none to give.
  SystemHandle TakeNext() const { return Make(0); }

 private:
  SystemHandle Make(DWORD iFlag) const;

  std::string m_sName;
  UserSecurity m_security;
  SystemHandle m_lock;
};

}  // namespace glidetrak::bench
