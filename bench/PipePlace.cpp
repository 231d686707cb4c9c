#include "bench/PipePlace.h"

#include <aclapi.h>
#include <sddl.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace glidetrak::bench {

namespace {

constexpr DWORD iBuffer = 4096;  ///< bytes each way that the system holds for a client
constexpr DWORD iLeftoverPause = 20;
constexpr int iLeftoverTries = 100;  ///< with the pause: two seconds

/// Who runs this process, with the memory for the system's answer.
class User {
 public:
  User() {
    HANDLE token = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0) return;
    const SystemHandle owner(token);
    DWORD iSize = 0;
    m_bKnown = GetTokenInformation(token, TokenUser, m_aBytes, sizeof m_aBytes, &iSize) != 0;
  }

  /// Null when the system does not tell.
  PSID Sid() const {
    return m_bKnown ? reinterpret_cast<const TOKEN_USER*>(m_aBytes)->User.Sid : nullptr;
  }

 private:
  alignas(TOKEN_USER) BYTE m_aBytes[sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE] = {};
  bool m_bKnown = false;
};

/// S-1-5-...
std::string UserText() {
  const User user;
  LPSTR pText = nullptr;
  if (user.Sid() == nullptr || ConvertSidToStringSidA(user.Sid(), &pText) == 0) {
    ThrowSystemError("cannot tell whose rig it is");
  }
  const std::string sText = pText;
  LocalFree(pText);
  return sText;
}

bool BelongsToUser(HANDLE pipe) {
  const User user;
  PSID pOwner = nullptr;
  PSECURITY_DESCRIPTOR pSecurity = nullptr;
  if (GetSecurityInfo(pipe, SE_KERNEL_OBJECT, OWNER_SECURITY_INFORMATION, &pOwner, nullptr, nullptr,
                      nullptr, &pSecurity) != ERROR_SUCCESS) {
    return false;
  }
  const bool bOwn = user.Sid() != nullptr && pOwner != nullptr && EqualSid(user.Sid(), pOwner) != 0;
  LocalFree(pSecurity);
  return bOwn;
}

/// The system's form of the name; empty when it is no pipe of this machine, which would have it
/// opened as a file or on another machine.
std::wstring PipePath(const std::string& sName) {
  constexpr std::wstring_view sStart = L"\\\\.\\pipe\\";
  std::wstring sPath(sName.size(), L'\0');
  const int iSize = static_cast<int>(sName.size());
  const int iLength = MultiByteToWideChar(CP_UTF8, 0, sName.data(), iSize, sPath.data(), iSize);
  sPath.resize(static_cast<size_t>(iLength));
  const int iStart = static_cast<int>(sStart.size());
  const bool bPipe =
      sPath.size() > sStart.size() &&
      CompareStringOrdinal(sPath.data(), iStart, sStart.data(), iStart, TRUE) == CSTR_EQUAL;
  return bPipe ? sPath : std::wstring();
}

/// A name for the lock: it may bear no backslash beyond its first part, which has it hold in all
/// sessions of the machine, as pipes do.
std::wstring LockName(std::wstring sPath) {
  std::replace(sPath.begin(), sPath.end(), L'\\', L'/');
  return L"Global\\" + sPath;
}

[[noreturn]] void ThrowInTheWay(const std::string& sName) {
  throw std::runtime_error(sName + " is in the way: it was not made by a bench rig of this user");
}

/// Somebody serves there, be it that he lets us in or not.
bool IsServed(const std::string& sName) {
  const SystemHandle pipe = OpenPipe(sName);
  return pipe.IsOpen() || GetLastError() == ERROR_PIPE_BUSY ||
         GetLastError() == ERROR_ACCESS_DENIED;
}

SystemHandle TakeLock(const std::string& sName, const std::wstring& sPath,
                      SECURITY_ATTRIBUTES attributes) {
  SystemHandle lock(CreateMutexW(&attributes, FALSE, LockName(sPath).c_str()));
  const DWORD iError = GetLastError();
  if (lock.IsOpen() && iError != ERROR_ALREADY_EXISTS) return lock;
  if (lock.IsOpen()) throw std::runtime_error("another rig is served at " + sName);
  if (iError == ERROR_ACCESS_DENIED) ThrowInTheWay(sName);
  ThrowSystemError("cannot serve " + sName);
}

}  // namespace

std::string OwnPipeName() {
  return "\\\\.\\pipe\\glidetrak-bench-" + UserText();
}

SystemHandle OpenPipe(const std::string& sName) {
  const std::wstring sPath = PipePath(sName);
  // Whoever serves there may learn who we are and nothing more.
  constexpr DWORD iFlags = FILE_FLAG_OVERLAPPED | SECURITY_SQOS_PRESENT | SECURITY_IDENTIFICATION;
  SystemHandle pipe(CreateFileW(sPath.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                OPEN_EXISTING, iFlags, nullptr));
  if (!pipe.IsOpen() || BelongsToUser(pipe.Get())) return pipe;
  pipe = SystemHandle();
  SetLastError(ERROR_ACCESS_DENIED);
  return pipe;
}

void AwaitPipe(const std::string& sName, unsigned iMilliseconds) {
  // The numbers below that have a meaning of their own.
  WaitNamedPipeW(PipePath(sName).c_str(), std::max(iMilliseconds, 2u));
}

UserSecurity::UserSecurity() {
  const std::string sUser = UserText();
  const std::string sText = "O:" + sUser + "D:P(A;;GA;;;" + sUser + ")";
  if (ConvertStringSecurityDescriptorToSecurityDescriptorA(sText.c_str(), SDDL_REVISION_1,
                                                           &m_pDescriptor, nullptr) == 0) {
    ThrowSystemError("cannot keep a rig to its user");
  }
}

PipePlace::PipePlace(const std::string& sName) : m_sName(sName) {
  const std::wstring sPath = PipePath(sName);
  if (sPath.empty()) {
    throw std::runtime_error("a rig is served at a name that begins with \\\\.\\pipe\\, not at " +
                             sName);
  }
  m_lock = TakeLock(sName, sPath, m_security.Attributes());
}

SystemHandle PipePlace::TakeFirst() const {
  for (int i = 0; i < iLeftoverTries; ++i) {
    // Not every system minds the flag.
    if (IsServed(m_sName)) ThrowInTheWay(m_sName);
    SystemHandle pipe = Make(FILE_FLAG_FIRST_PIPE_INSTANCE);
    if (pipe.IsOpen()) return pipe;
    if (GetLastError() != ERROR_ACCESS_DENIED) ThrowSystemError("cannot serve " + m_sName);
    Sleep(iLeftoverPause);
  }
  throw std::runtime_error(m_sName + " is still held by a client of a rig that has ended");
}

SystemHandle PipePlace::Make(DWORD iFlag) const {
  SECURITY_ATTRIBUTES attributes = m_security.Attributes();
  return SystemHandle(
      CreateNamedPipeW(PipePath(m_sName).c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED | iFlag,
                       PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS,
                       PIPE_UNLIMITED_INSTANCES, iBuffer, iBuffer, 0, &attributes));
}

}  // namespace glidetrak::bench
