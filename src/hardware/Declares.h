#pragma once

// The closed library trackport32 of the parallel adapter. All integers are 32-bit and passed by
// value. Each call raises RuntimeError when the library, or that operation of it, is missing.

#include "platform/Platform.h"

namespace glidetrak {

/// Drives the output byte of the adapter at that address.
inline void WriteAdapter(qint32 lAddress, qint32 lByte) {
  pMachine->CallTrackport("WriteAdapter", {lAddress, lByte});
}

}  // namespace glidetrak
