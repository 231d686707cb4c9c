#pragma once

// HID devices through hidapi, which does the same on each system but for the report lengths
// (ReportLayout.h) and for what HidapiCalls.h evens out.

#include <hidapi/hidapi.h>

#include <map>

#include "platform/Hid.h"

namespace glidetrak {

class HidapiHid : public Hid {
 public:
  HidapiHid() = default;
  ~HidapiHid() override;
  HidapiHid(const HidapiHid&) = delete;
  HidapiHid& operator=(const HidapiHid&) = delete;

  std::vector<HidListing> Devices(qint16 iVendorID, qint16 iProductID) override;
  qint32 Open(const QByteArray& path) override;
  void Close(qint32 lHandle) override;
  bool Attributes(qint32 lHandle, HidAttributes& attributes) override;
  bool ReportLengths(qint32 lHandle, HidReportLengths& lengths) override;
  void DropInput(qint32 lHandle) override;
  qint32 Write(qint32 lHandle, const QByteArray& report) override;
  HidReadResult Read(qint32 lHandle, qint32 lTimeOut, QByteArray& report) override;
  QString ErrorText() override;

 private:
  struct Device {
    hid_device* pDevice;
    QByteArray path;
    bool bNumbered;  ///< its reports carry an id on the wire; false where it does not tell
    std::vector<unsigned char> aSent;  ///< the last report: a write that timed out still reads it
  };

  Device* Find(qint32 lHandle);

  qint32 m_lNextHandle = 1;
  std::map<qint32, Device> m_aDevices;
};

}  // namespace glidetrak
