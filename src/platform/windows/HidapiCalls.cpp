#include "platform/HidapiCalls.h"

#include <cwchar>

#include "platform/windows/HidPath.h"

namespace glidetrak {

const int iHeldBesideQueue = 1;

/// hidapi opens without any rights what it may not exchange reports with; the station would then
/// take a device for the rig's link to which nothing can be written.
hid_device* OpenForReports(const QByteArray& path) {
  const HANDLE device = OpenHidPath(path, GENERIC_READ | GENERIC_WRITE);
  if (device == INVALID_HANDLE_VALUE) return nullptr;
  CloseHandle(device);
  return hid_open_path(path.constData());
}

/// hid_write tells a failure, too, when the system has carried the report out at once. It knows of
/// no error then, and of one in every other case.
qint32 SendReport(hid_device* pDevice, std::span<const unsigned char> report) {
  const int iCount = hid_write(pDevice, report.data(), report.size());
  if (iCount >= 0) return iCount;
  const bool bSent = std::wcscmp(hid_error(pDevice), L"Success") == 0;
  return bSent ? static_cast<qint32>(report.size()) : 0;
}

}  // namespace glidetrak
