#pragma once

// The nine operations of the library trackport32, for those who build one: the bench library, which
// serves the model track, and the stand-in, which has no port. All integers are 32-bit and passed
// by value. On 32-bit Windows the callee clears the stack.

#include <cstdint>

#if defined(_WIN32)
#define TRACKPORT_EXPORT extern "C" __declspec(dllexport)
#else
#define TRACKPORT_EXPORT extern "C" __attribute__((visibility("default")))
#endif

#if defined(_WIN32) && !defined(_WIN64)
#define TRACKPORT_CALL __stdcall
#else
#define TRACKPORT_CALL
#endif

namespace glidetrak {

/// Bit n set: parallel port n+1 can be used, n from 0 to 2; 0: none.
TRACKPORT_EXPORT std::int32_t TRACKPORT_CALL LPTAvailable();

/// The I/O address of port 1 to 3; 0 for a port that is not there.
TRACKPORT_EXPORT std::int32_t TRACKPORT_CALL LPTAddress(std::int32_t lPort);

/// Non-zero when the adapter hangs on the port at that address.
TRACKPORT_EXPORT std::int32_t TRACKPORT_CALL IsAdapterConnected(std::int32_t lAddress);

/// Reserves port 1 to 3 and gives a handle; 0 for a port that is not there.
TRACKPORT_EXPORT std::int32_t TRACKPORT_CALL OpenLPT(std::int32_t lPort);

/// Gives a port back; the result means nothing.
TRACKPORT_EXPORT std::int32_t TRACKPORT_CALL CloseLPT(std::int32_t lHandle);

/// The input byte; bit 7 set means that the rig is present.
TRACKPORT_EXPORT std::int32_t TRACKPORT_CALL ReadAdapter(std::int32_t lAddress);

/// Drives the output byte; the result means nothing.
TRACKPORT_EXPORT std::int32_t TRACKPORT_CALL WriteAdapter(std::int32_t lAddress,
                                                          std::int32_t lByte);

/// Called once, after the last write; the result means nothing.
TRACKPORT_EXPORT std::int32_t TRACKPORT_CALL SetStrobe(std::int32_t lAddress);

/// A 4-bit reading in the low bits. The time allowed for the conversion is the library's to read.
TRACKPORT_EXPORT std::int32_t TRACKPORT_CALL ReadAtoD(std::int32_t lAddress, std::int32_t lTime);

}  // namespace glidetrak
