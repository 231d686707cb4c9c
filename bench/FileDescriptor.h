#pragma once

// An open file of the system that closes with its owner.

#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace glidetrak::bench {

class FileDescriptor {
 public:
  explicit FileDescriptor(int iNumber = -1) : m_iNumber(iNumber) {}
  FileDescriptor(FileDescriptor&& other) noexcept : m_iNumber(std::exchange(other.m_iNumber, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(m_iNumber, other.m_iNumber);
    return *this;
  }
  ~FileDescriptor() {
    if (m_iNumber >= 0) close(m_iNumber);
  }

  /// The system's number for it; -1 when nothing is open.
  int Number() const { return m_iNumber; }

  /// Hands it over to the caller, who closes it.
  int Release() { return std::exchange(m_iNumber, -1); }

 private:
  int m_iNumber;
};

/// Throws the system's last error, with what was being done: "cannot open /dev/uhid: ...".
[[noreturn]] inline void ThrowSystemError(const std::string& sDoing) {
  throw std::system_error(errno, std::generic_category(), sDoing);
}

}  // namespace glidetrak::bench
