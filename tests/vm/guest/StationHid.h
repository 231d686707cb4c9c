#pragma once

// The station's own HID class and adapter layer on the system's real HID stack.

#include <gtest/gtest.h>

#include <optional>

#include "HidFile.h"
#include "hardware/USBIntegration.h"
#include "hardware/clsUSBHID.h"
#include "platform/HidapiHid.h"
#include "platform/linux/LinuxMachine.h"
#include "virtual/VirtualPlatform.h"

namespace glidetrak {

constexpr int iLongestExchange = 1500;  ///< ms: the read's 1000 and what a busy guest adds

inline QByteArray SetOutput(char cByte, int iLength = 19) {
  QByteArray data(iLength, '\0');
  data[0] = 4;
  data[1] = 1;
  data[16] = cByte;
  return data;
}

/// Boxes and the form stand on the virtual platform; the machine below is the real one.
class StationHid : public testing::Test {
 protected:
  StationHid() {
    pMachine = &m_machine;
    pHid = &m_devices;
  }
  ~StationHid() override {
    UsbCloseAdapter();
    pMachine = &m_desktop;
    pHid = &m_desktop.rig;
  }

  void Plug(bench::UhidConfig config = {}) {
    m_device.emplace(m_rig, config);
    m_device->Plug();
    ASSERT_TRUE(bench::WaitForDevices(1));
  }

  void PlugAndOpen(bench::UhidConfig config = {}) {
    Plug(config);
    m_hid.iProductID = bench::iRigProduct;
    ASSERT_TRUE(m_hid.bDeviceConnected());
  }

  size_t ReportsSeen() const { return m_device->Counts().aReports.size(); }

  bench::LiveRig m_rig;
  VirtualPlatform m_desktop;
  LinuxMachine m_machine;
  HidapiHid m_devices;
  std::optional<bench::UhidDevice> m_device;
  clsUSBHID m_hid;
};

}  // namespace glidetrak
