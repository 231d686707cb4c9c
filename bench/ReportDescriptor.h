#pragma once

// The HID report descriptor of the bench's device: one input and one output report of plain bytes,
// without report numbers.

#include "bench/RigProtocol.h"

namespace glidetrak::bench {

constexpr int iMostReportBytes = 4095;  ///< with the id byte, all that a uhid event carries

/// Lengths in data bytes, 0 to iMostReportBytes; a length of 0 leaves that report out.
ReportBytes ReportDescriptor(int iInputLength, int iOutputLength);

}  // namespace glidetrak::bench
