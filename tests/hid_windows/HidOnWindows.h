#pragma once

// The HID devices of the machine as the station asks for them, one handle at a time.

#include "hid_windows/StationHid.h"

namespace glidetrak {

class HidOnWindows : public StationHid {
 protected:
  qint32 Opened(const PipeAdapter& adapter) {
    const qint32 lHandle = m_devices.Open(PathOf(adapter));
    EXPECT_NE(lHandle, 0);
    return lHandle;
  }

  static QByteArray PathOf(const PipeAdapter& adapter) {
    return QString::fromStdWString(adapter.sPath).toUtf8();
  }

  /// A whole report that comes at once; empty when none does.
  QByteArray ReadNow(qint32 lHandle, int iLength = 65) {
    QByteArray report(iLength, '\0');
    if (m_devices.Read(lHandle, 0, report) != HidReadResult::Success) return {};
    return report;
  }

  /// Reports for which nobody asked, told apart by the byte behind the id.
  void SendNumbered(PipeAdapter& adapter, int iFirst, int iLast) {
    for (int i = iFirst; i <= iLast; ++i) {
      bench::ReportBytes report(adapter.told.iInput);
      report[1] = static_cast<std::uint8_t>(i);
      adapter.Send(report);
    }
  }
};

}  // namespace glidetrak
