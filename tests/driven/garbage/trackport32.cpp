// A parallel library that answers garbage to whatever it is asked.

#include "bench/trackport32.h"

namespace glidetrak {

namespace {

constexpr std::int32_t lGarbage = 0x7FA5C3E1;

}  // namespace

std::int32_t TRACKPORT_CALL LPTAvailable() {
  return lGarbage;
}

std::int32_t TRACKPORT_CALL LPTAddress(std::int32_t) {
  return -lGarbage;
}

std::int32_t TRACKPORT_CALL IsAdapterConnected(std::int32_t) {
  return lGarbage;
}

std::int32_t TRACKPORT_CALL OpenLPT(std::int32_t) {
  return -lGarbage;
}

std::int32_t TRACKPORT_CALL CloseLPT(std::int32_t) {
  return lGarbage;
}

std::int32_t TRACKPORT_CALL ReadAdapter(std::int32_t) {
  return lGarbage;
}

std::int32_t TRACKPORT_CALL WriteAdapter(std::int32_t, std::int32_t) {
  return -lGarbage;
}

std::int32_t TRACKPORT_CALL SetStrobe(std::int32_t) {
  return lGarbage;
}

std::int32_t TRACKPORT_CALL ReadAtoD(std::int32_t, std::int32_t) {
  return lGarbage;
}

}  // namespace glidetrak
