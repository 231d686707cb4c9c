#pragma once

// The report lengths that a HID report descriptor declares.

#include <QByteArray>

#include "platform/ReportLayout.h"

namespace glidetrak {

/// Walks the descriptor's items. Fields are bit-sized; a report is rounded up to whole bytes. A
/// descriptor that is cut short or malformed yields what stood ahead of the fault.
ReportLayout ParseReportDescriptor(const QByteArray& descriptor);

}  // namespace glidetrak
