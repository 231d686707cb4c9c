// The stand-in for the adapter maker's library: it offers every operation and has no port, so that
// the station looks for a parallel adapter, finds none and says so by its link label alone.

#include "bench/trackport32.h"

namespace glidetrak {

std::int32_t TRACKPORT_CALL LPTAvailable() {
  return 0;
}

std::int32_t TRACKPORT_CALL LPTAddress(std::int32_t) {
  return 0;
}

std::int32_t TRACKPORT_CALL IsAdapterConnected(std::int32_t) {
  return 0;
}

std::int32_t TRACKPORT_CALL OpenLPT(std::int32_t) {
  return 0;
}

std::int32_t TRACKPORT_CALL CloseLPT(std::int32_t) {
  return 0;
}

// Bit 7 clear: no rig.
std::int32_t TRACKPORT_CALL ReadAdapter(std::int32_t) {
  return 0;
}

std::int32_t TRACKPORT_CALL WriteAdapter(std::int32_t, std::int32_t) {
  return 0;
}

std::int32_t TRACKPORT_CALL SetStrobe(std::int32_t) {
  return 0;
}

std::int32_t TRACKPORT_CALL ReadAtoD(std::int32_t, std::int32_t) {
  return 0;
}

}  // namespace glidetrak
