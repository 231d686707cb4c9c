#pragma once

// A HID device opened by its path, which is UTF-8, as a handle of the system's.

#include <QByteArray>
#include <QString>
#include <string>

#include "platform/windows/Api.h"

namespace glidetrak {

/// With those rights, 0 for none, and shared; INVALID_HANDLE_VALUE when it cannot be opened so. The
/// caller closes it.
inline HANDLE OpenHidPath(const QByteArray& path, DWORD iRights) {
  const std::wstring sPath = QString::fromUtf8(path).toStdWString();
  return CreateFileW(sPath.c_str(), iRights, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                     OPEN_EXISTING, 0, nullptr);
}

}  // namespace glidetrak
