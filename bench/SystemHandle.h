#pragma once

// Windows as the bench rig includes it, and an open object of it that closes with its owner.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <string>
#include <system_error>
#include <utility>

namespace glidetrak::bench {

class SystemHandle {
 public:
  /// Takes what a call of the system returned; both of its values for a failure mean nothing open.
  explicit SystemHandle(HANDLE handle = nullptr)
      : m_handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
  SystemHandle(SystemHandle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
  SystemHandle& operator=(SystemHandle&& other) noexcept {
    std::swap(m_handle, other.m_handle);
    return *this;
  }
  ~SystemHandle() {
    if (m_handle != nullptr) CloseHandle(m_handle);
  }

  /// The system's own; a null pointer when nothing is open.
  HANDLE Get() const { return m_handle; }
  bool IsOpen() const { return m_handle != nullptr; }

  /// Hands it over to the caller, who closes it.
  HANDLE Release() { return std::exchange(m_handle, nullptr); }

 private:
  HANDLE m_handle;
};

/// Throws the system's last error, with what was being done: "cannot serve \\.\pipe\rig: ...".
[[noreturn]] inline void ThrowSystemError(const std::string& sDoing) {
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), sDoing);
}

}  // namespace glidetrak::bench
