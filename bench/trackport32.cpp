// The bench rig behind the operations of trackport32: one port, with an adapter on it where a rig
// is served. This is a thin client: the rig is a process of its own (bench-rig serve), which the
// station's end does not touch. A rig that is not served, does not answer in time or speaks another
// version of the wire is no adapter, until IsAdapterConnected finds one again.

#include "bench/trackport32.h"

#include <new>

#include "bench/RigClient.h"

namespace glidetrak {

namespace {

using bench::RigAct;

constexpr std::int32_t lOnlyPort = 1;
constexpr std::int32_t lPortMask = 1;         ///< bit 0: port 1
constexpr std::int32_t lOnlyAddress = 0x378;  ///< where the first parallel port has always been
constexpr std::int32_t lOnlyHandle = 1;

/// Never destroyed: the last byte of a process may be written by what runs after all destructors.
bench::RigClient& Client() {
  alignas(bench::RigClient) static unsigned char aPlace[sizeof(bench::RigClient)];
  static bench::RigClient* pClient = new (aPlace) bench::RigClient;
  return *pClient;
}

std::int32_t Exchange(std::int32_t lAddress, RigAct act, std::int32_t lByte = 0) {
  if (lAddress != lOnlyAddress) return 0;
  return Client().Exchange(act, lByte & 0xFF).value_or(0);
}

}  // namespace

std::int32_t TRACKPORT_CALL LPTAvailable() {
  return lPortMask;
}

std::int32_t TRACKPORT_CALL LPTAddress(std::int32_t lPort) {
  return lPort == lOnlyPort ? lOnlyAddress : 0;
}

std::int32_t TRACKPORT_CALL IsAdapterConnected(std::int32_t lAddress) {
  if (lAddress != lOnlyAddress) return 0;
  return Client().StartAgain(RigAct::AskAdapter).value_or(0);
}

std::int32_t TRACKPORT_CALL OpenLPT(std::int32_t lPort) {
  return lPort == lOnlyPort ? lOnlyHandle : 0;
}

std::int32_t TRACKPORT_CALL CloseLPT(std::int32_t) {
  return 0;
}

std::int32_t TRACKPORT_CALL ReadAdapter(std::int32_t lAddress) {
  return Exchange(lAddress, RigAct::ReadInputs);
}

std::int32_t TRACKPORT_CALL WriteAdapter(std::int32_t lAddress, std::int32_t lByte) {
  return Exchange(lAddress, RigAct::WriteByte, lByte);
}

// Nothing on this track hangs on the strobe line.
std::int32_t TRACKPORT_CALL SetStrobe(std::int32_t) {
  return 0;
}

// The rig's accelerometer converts at once, so no time needs to be allowed for it.
std::int32_t TRACKPORT_CALL ReadAtoD(std::int32_t lAddress, std::int32_t) {
  return Exchange(lAddress, RigAct::ReadAnalog);
}

}  // namespace glidetrak
