#include "platform/HidapiCalls.h"

#include <algorithm>

namespace glidetrak {

const int iHeldBesideQueue = 0;

hid_device* OpenForReports(const QByteArray& path) {
  return hid_open_path(path.constData());
}

qint32 SendReport(hid_device* pDevice, std::span<const unsigned char> report) {
  return std::max(0, hid_write(pDevice, report.data(), report.size()));
}

}  // namespace glidetrak
