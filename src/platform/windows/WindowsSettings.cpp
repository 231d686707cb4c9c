#include "platform/windows/WindowsSettings.h"

#include "platform/windows/Api.h"

namespace glidetrak {

namespace {

constexpr DWORD lTextTypes = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;

HKEY Root(Scope scope) {
  return scope == Scope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

}  // namespace

QString WindowsSettings::Text(const QString& sKey, const QString& sName) {
  const std::wstring sPath = sKey.toStdWString();
  const std::wstring sValue = sName.toStdWString();
  DWORD lBytes = 0;
  LSTATUS result = RegGetValueW(Root(m_scope), sPath.c_str(), sValue.c_str(), lTextTypes, nullptr,
                                nullptr, &lBytes);
  std::wstring sText;
  // Another program may lengthen the value between the two calls.
  while (result == ERROR_SUCCESS || result == ERROR_MORE_DATA) {
    sText.resize(lBytes / sizeof(wchar_t) + 1);
    lBytes = static_cast<DWORD>(sText.size() * sizeof(wchar_t));
    result = RegGetValueW(Root(m_scope), sPath.c_str(), sValue.c_str(), lTextTypes, nullptr,
                          sText.data(), &lBytes);
    if (result == ERROR_SUCCESS) return QString::fromWCharArray(sText.c_str());
  }
  return {};
}

std::optional<qint32> WindowsSettings::Number(const QString& sKey, const QString& sName) {
  DWORD lValue = 0;
  DWORD lBytes = sizeof lValue;
  if (RegGetValueW(Root(m_scope), sKey.toStdWString().c_str(), sName.toStdWString().c_str(),
                   RRF_RT_REG_DWORD, nullptr, &lValue, &lBytes) != ERROR_SUCCESS) {
    return {};
  }
  return static_cast<qint32>(lValue);
}

bool WindowsSettings::Write(const QString& sKey, const QString& sName, const QString& sValue) {
  HKEY key = nullptr;
  if (RegCreateKeyExW(Root(m_scope), sKey.toStdWString().c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                      nullptr, &key, nullptr) != ERROR_SUCCESS) {
    return false;
  }
  const std::wstring sText = sValue.toStdWString();
  const auto lBytes = static_cast<DWORD>((sText.size() + 1) * sizeof(wchar_t));
  const LSTATUS result = RegSetValueExW(key, sName.toStdWString().c_str(), 0, REG_SZ,
                                        reinterpret_cast<const BYTE*>(sText.c_str()), lBytes);
  RegCloseKey(key);
  return result == ERROR_SUCCESS;
}

}  // namespace glidetrak
