#include "bench/SocketPlace.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <cstring>
#include <stdexcept>

namespace glidetrak::bench {

namespace {

constexpr int iWaiting = 16;  ///< connections that may queue
const std::string sNoteStart = "glidetrak-bench socket ";

std::string LockPath(const std::string& sPath) {
  return sPath + ".lock";
}

/// What the lock's file says, at most the length of a note; empty in a new file.
std::string ReadNote(const FileDescriptor& lock) {
  char aText[80];
  const ssize_t iCount = pread(lock.Number(), aText, sizeof aText, 0);
  return {aText, static_cast<size_t>(iCount < 0 ? 0 : iCount)};
}

FileDescriptor OpenLock(const std::string& sPath) {
  SocketAddress(sPath);  // a path that cannot be served gets no lock
  const std::string sLock = LockPath(sPath);
  const int iFlags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  FileDescriptor lock(open(sLock.c_str(), iFlags, S_IRUSR | S_IWUSR));
  if (lock.Number() < 0) ThrowSystemError("cannot make " + sLock);
  struct stat status {};
  fstat(lock.Number(), &status);
  const std::string sNote = S_ISREG(status.st_mode) ? ReadNote(lock) : "?";
  if (!sNote.empty() && sNote.rfind(sNoteStart, 0) != 0) {
    throw std::runtime_error(sLock + " is in the way: it is no lock of a bench rig");
  }
  return lock;
}

/// Which file it is, beyond its name: no two that stand at the same time have the same note.
std::string NoteOf(const std::string& sPath) {
  struct stat status {};
  if (lstat(sPath.c_str(), &status) != 0 || !S_ISSOCK(status.st_mode)) return {};
  return sNoteStart + std::to_string(status.st_dev) + " " + std::to_string(status.st_ino) + "\n";
}

}  // namespace

SocketPlace::SocketPlace(std::string sPath) : m_sPath(std::move(sPath)), m_lock(OpenLock(m_sPath)) {
  if (flock(m_lock.Number(), LOCK_EX | LOCK_NB) != 0) {
    throw std::runtime_error("another rig is served at " + m_sPath);
  }
  struct stat status {};
  if (lstat(m_sPath.c_str(), &status) == 0 && !HoldsOwnSocket()) {
    throw std::runtime_error(m_sPath + " is in the way: it was not made by a bench rig");
  }
  Clear();
}

FileDescriptor SocketPlace::Listen() {
  FileDescriptor listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  const sockaddr_un address = SocketAddress(m_sPath);
  // The socket's own mode is that of the file that stands for it, from its first moment on.
  if (listener.Number() < 0 || fchmod(listener.Number(), S_IRUSR | S_IWUSR) != 0 ||
      bind(listener.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    ThrowSystemError("cannot serve " + m_sPath);
  }
  NoteOwnSocket();
  if (listen(listener.Number(), iWaiting) != 0) ThrowSystemError("cannot serve " + m_sPath);
  return listener;
}

void SocketPlace::Clear() {
  if (HoldsOwnSocket()) unlink(m_sPath.c_str());
}

bool SocketPlace::HoldsOwnSocket() const {
  const std::string sNote = NoteOf(m_sPath);
  return !sNote.empty() && sNote == ReadNote(m_lock);
}

/// A socket that could not be noted would be in everybody's way later, and goes at once.
void SocketPlace::NoteOwnSocket() {
  const std::string sNote = NoteOf(m_sPath);
  const bool bNoted =
      ftruncate(m_lock.Number(), 0) == 0 &&
      pwrite(m_lock.Number(), sNote.data(), sNote.size(), 0) == static_cast<ssize_t>(sNote.size());
  if (bNoted) return;
  const int iError = errno;
  unlink(m_sPath.c_str());
  errno = iError;
  ThrowSystemError("cannot write " + LockPath(m_sPath));
}

sockaddr_un SocketAddress(const std::string& sPath) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (sPath.size() >= sizeof address.sun_path) {
    throw std::runtime_error("the path of the rig's socket is too long: " + sPath);
  }
  std::memcpy(address.sun_path, sPath.c_str(), sPath.size());
  return address;
}

}  // namespace glidetrak::bench
