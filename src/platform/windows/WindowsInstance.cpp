#include "platform/windows/WindowsInstance.h"

#include <utility>
#include <vector>

#include "platform/windows/Api.h"

// Behind the system's own declarations.
#include <sddl.h>

namespace glidetrak {

namespace {

/// The text of the id of the user whose process this is; "" when the system does not tell.
std::wstring UserId() {
  HANDLE token = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) return {};
  std::vector<char> user(SECURITY_MAX_SID_SIZE + sizeof(TOKEN_USER));
  DWORD lLength = 0;
  LPWSTR sId = nullptr;
  const bool bKnown =
      GetTokenInformation(token, TokenUser, user.data(), static_cast<DWORD>(user.size()),
                          &lLength) &&
      ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid, &sId);
  CloseHandle(token);
  if (!bKnown) return {};
  std::wstring sText = sId;
  LocalFree(sId);
  return sText;
}

/// Lets in the user's other copies, one that runs with an administrator's rights and one that does
/// not alike, and nobody else's.
class UsersOnly {
 public:
  UsersOnly() {
    const std::wstring sUser = UserId();
    if (sUser.empty()) return;
    const std::wstring sText = L"D:(A;;GA;;;" + sUser + L")S:(ML;;NW;;;ME)";
    ConvertStringSecurityDescriptorToSecurityDescriptorW(
        sText.c_str(), SDDL_REVISION_1, &m_attributes.lpSecurityDescriptor, nullptr);
  }
  ~UsersOnly() { LocalFree(m_attributes.lpSecurityDescriptor); }
  UsersOnly(const UsersOnly&) = delete;
  UsersOnly& operator=(const UsersOnly&) = delete;

  SECURITY_ATTRIBUTES* Attributes() { return &m_attributes; }

 private:
  SECURITY_ATTRIBUTES m_attributes{sizeof(SECURITY_ATTRIBUTES), nullptr, FALSE};
};

std::wstring EventName(const QString& sName) {
  return (sName + "-come-forward").toStdWString();
}

}  // namespace

QString UsersInstanceName() {
  return "Global\\Glidetrak-" + QString::fromStdWString(UserId());
}

WindowsInstance::~WindowsInstance() {
  m_notifier.reset();
  if (m_event != nullptr) CloseHandle(m_event);
  if (m_mutex != nullptr) CloseHandle(m_mutex);
}

bool WindowsInstance::Take() {
  UsersOnly usersOnly;
  m_mutex = CreateMutexW(usersOnly.Attributes(), FALSE, m_sName.toStdWString().c_str());
  if (m_mutex != nullptr && GetLastError() == ERROR_ALREADY_EXISTS) {
    CloseHandle(std::exchange(m_mutex, nullptr));
    return false;
  }
  m_event = CreateEventW(usersOnly.Attributes(), FALSE, FALSE, EventName(m_sName).c_str());
  if (m_event == nullptr) return true;
  m_notifier = std::make_unique<QWinEventNotifier>(m_event);
  QObject::connect(m_notifier.get(), &QWinEventNotifier::activated, m_notifier.get(), [this] {
    if (m_activate) m_activate();
  });
  return true;
}

void WindowsInstance::ActivateOther() {
  const HANDLE event = OpenEventW(EVENT_MODIFY_STATE, FALSE, EventName(m_sName).c_str());
  if (event == nullptr) return;
  AllowSetForegroundWindow(ASFW_ANY);
  SetEvent(event);
  CloseHandle(event);
}

}  // namespace glidetrak
