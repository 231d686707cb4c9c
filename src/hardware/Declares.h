#pragma once

// The operations of the closed library trackport32, through which the parallel adapter is reached.
// All integers are 32-bit and passed by value. Each call raises RuntimeError when the library, or
// that operation of it, is missing.

#include "platform/Platform.h"

namespace glidetrak {

/// Bit n set: parallel port n+1 can be used, n from 0 to 2. 0 or negative: none.
inline qint32 LPTAvailable() {
  return pMachine->CallTrackport("LPTAvailable", {});
}

/// I/O address of a port, 1 to 3.
inline qint32 LPTAddress(qint32 lPort) {
  return pMachine->CallTrackport("LPTAddress", {lPort});
}

/// Non-zero when the adapter hangs on the port at that address.
inline qint32 IsAdapterConnected(qint32 lAddress) {
  return pMachine->CallTrackport("IsAdapterConnected", {lAddress});
}

/// Reserves a port, 1 to 3; the handle that CloseLPT takes.
inline qint32 OpenLPT(qint32 lPort) {
  return pMachine->CallTrackport("OpenLPT", {lPort});
}

inline void CloseLPT(qint32 lHandle) {
  pMachine->CallTrackport("CloseLPT", {lHandle});
}

/// The input byte; bit 7 set means rig present.
inline qint32 ReadAdapter(qint32 lAddress) {
  return pMachine->CallTrackport("ReadAdapter", {lAddress});
}

/// Drives the output byte.
inline void WriteAdapter(qint32 lAddress, qint32 lByte) {
  pMachine->CallTrackport("WriteAdapter", {lAddress, lByte});
}

/// Called once, after the last write of shut-down.
inline void SetStrobe(qint32 lAddress) {
  pMachine->CallTrackport("SetStrobe", {lAddress});
}

/// What ReadAtoD is given beside the address; what it counts is known to the library alone.
constexpr qint32 lAtoDArgument = 50000;

/// The analog value, a 4-bit reading in its low bits; -1 when there is none.
inline qint32 ReadAtoD(qint32 lAddress) {
  return pMachine->CallTrackport("ReadAtoD", {lAddress, lAtoDArgument});
}

}  // namespace glidetrak
