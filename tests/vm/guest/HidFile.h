#pragma once

// The HID devices of this machine as a program sees them through hidapi. Reports are given and
// taken behind the report id.

#include <hidapi/hidapi.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "bench/UhidDevice.h"

namespace glidetrak::bench {

constexpr int iRigVendor = 0x0CFE;
constexpr int iRigProduct = 0x0046;

struct HidListing {
  std::string sPath;
  int iProduct;
  int iVersion;
};

/// The devices of the rig's maker.
inline std::vector<HidListing> ListDevices() {
  std::vector<HidListing> aFound;
  hid_device_info* pFirst = hid_enumerate(iRigVendor, 0);
  for (const hid_device_info* pInfo = pFirst; pInfo != nullptr; pInfo = pInfo->next) {
    aFound.push_back({pInfo->path, pInfo->product_id, pInfo->release_number});
  }
  hid_free_enumeration(pFirst);
  return aFound;
}

/// Waits up to 10 s, far beyond what anything here takes, for the condition.
template <typename Condition>
bool WaitFor(Condition condition) {
  for (int i = 0; i < 1000; ++i) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}

/// The kernel makes and takes away device nodes behind the back of who plugs.
inline bool WaitForDevices(size_t iCount) {
  return WaitFor([=] { return ListDevices().size() == iCount; });
}

class HidFile {
 public:
  explicit HidFile(const std::string& sPath) : m_pDevice(hid_open_path(sPath.c_str())) {}
  ~HidFile() {
    if (m_pDevice != nullptr) hid_close(m_pDevice);
  }
  HidFile(const HidFile&) = delete;
  HidFile& operator=(const HidFile&) = delete;

  bool Open() const { return m_pDevice != nullptr; }

  /// True when the kernel took all of it.
  bool Write(const ReportBytes& data) {
    ReportBytes report{0};
    report.insert(report.end(), data.begin(), data.end());
    return hid_write(m_pDevice, report.data(), report.size()) == static_cast<int>(report.size());
  }

  /// Bytes read into `data`, 0 at a time-out, -1 when the device is gone.
  int Read(ReportBytes& data, int iTimeOut) {
    data.assign(iMostBytes, 0);
    const int iCount = hid_read_timeout(m_pDevice, data.data(), data.size(), iTimeOut);
    data.resize(iCount < 0 ? 0 : static_cast<size_t>(iCount));
    return iCount;
  }

 private:
  static constexpr size_t iMostBytes = 4096;

  hid_device* m_pDevice;
};

}  // namespace glidetrak::bench
