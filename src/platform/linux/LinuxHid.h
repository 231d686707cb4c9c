#pragma once

// HID devices through hidapi on hidraw nodes.

#include <hidapi/hidapi.h>

#include <map>

#include "platform/Platform.h"

namespace glidetrak {

class LinuxHid {
 public:
  ~LinuxHid();

  // As in Machine.
  std::vector<HidListing> Devices();
  qint32 Open(const QByteArray& path);
  void Close(qint32 lHandle);
  bool Attributes(qint32 lHandle, HidAttributes& attributes);
  bool ReportLengths(qint32 lHandle, HidReportLengths& lengths);
  void DropInput(qint32 lHandle);
  qint32 Write(qint32 lHandle, const QByteArray& report);
  HidReadResult Read(qint32 lHandle, qint32 lTimeOut, QByteArray& report);
  QString ErrorText();

 private:
  struct Device {
    hid_device* pDevice;
    QByteArray path;
    bool bNumbered;  ///< its reports carry an id on the wire; false where it does not tell
  };

  Device* Find(qint32 lHandle);

  qint32 m_lNextHandle = 1;
  std::map<qint32, Device> m_aDevices;
};

}  // namespace glidetrak
