#pragma once

// The report lengths that a HID report descriptor declares.

#include <QByteArray>

#include "platform/Hid.h"

namespace glidetrak {

struct ReportLayout {
  HidReportLengths lengths;  ///< of the longest input and output report, the id byte counted
  bool bNumbered = false;    ///< reports carry an id on the wire
};

/// Walks the descriptor's items. Fields are bit-sized; a report is rounded up to whole bytes. A
/// descriptor that is cut short or malformed yields what stood ahead of the fault.
ReportLayout ParseReportDescriptor(const QByteArray& descriptor);

}  // namespace glidetrak
