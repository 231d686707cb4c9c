#pragma once

// The byte protocol of the USB adapter, on the adapter's side. Each command is one output report
// and is answered by one input report; bytes are counted behind the report id.
//
//   Set output   byte 0 is 4, byte 16 the output byte; the answer's other bytes mean nothing
//   Read state   byte 0 is 3; answer byte 2 is the input byte, the high nibble of byte 3 the
//                accelerometer's value
//
// An answer repeats its command in byte 0. An adapter whose rig is silent answers as well, with an
// input byte and a value of 0.

#include <cstdint>
#include <vector>

#include "bench/Rig.h"

namespace glidetrak::bench {

using ReportBytes = std::vector<std::uint8_t>;

/// Carries out the command in `data` and gives the answer, iLength bytes or those 4 that mean
/// something, whichever is more. Empty for what is no command.
ReportBytes AnswerReport(Rig& rig, const ReportBytes& data, int iLength);

}  // namespace glidetrak::bench
