// The model track behind the operations of trackport32: one port with one adapter on it. The model
// starts, and takes its control socket, at the first call. Where another rig has the socket already
// the model runs all the same; only `bench-rig` does not reach it.

#include "bench/trackport32.h"

#include <cstdio>
#include <exception>
#include <optional>

#include "bench/ControlSocket.h"
#include "bench/LiveRig.h"

namespace glidetrak {

namespace {

constexpr std::int32_t lOnlyPort = 1;
constexpr std::int32_t lPortMask = 1;         ///< bit 0: port 1
constexpr std::int32_t lOnlyAddress = 0x378;  ///< where the first parallel port has always been
constexpr std::int32_t lOnlyHandle = 1;

class ServedRig {
 public:
  ServedRig() {
    try {
      m_socket.emplace(m_rig, bench::ControlSocketPath());
    } catch (const std::exception& failure) {
      std::fprintf(stderr, "bench rig: not reachable by bench-rig: %s\n", failure.what());
    }
  }

  bench::LiveRig& Rig() { return m_rig; }

 private:
  bench::LiveRig m_rig;
  std::optional<bench::ControlSocket> m_socket;
};

bench::LiveRig& Rig() {
  static ServedRig served;
  return served.Rig();
}

}  // namespace

std::int32_t TRACKPORT_CALL LPTAvailable() {
  Rig();
  return lPortMask;
}

std::int32_t TRACKPORT_CALL LPTAddress(std::int32_t lPort) {
  return lPort == lOnlyPort ? lOnlyAddress : 0;
}

std::int32_t TRACKPORT_CALL IsAdapterConnected(std::int32_t lAddress) {
  if (lAddress != lOnlyAddress) return 0;
  return Rig().With([](bench::TrackModel& model) { return model.Plugged() ? 1 : 0; });
}

std::int32_t TRACKPORT_CALL OpenLPT(std::int32_t lPort) {
  return lPort == lOnlyPort ? lOnlyHandle : 0;
}

std::int32_t TRACKPORT_CALL CloseLPT(std::int32_t) {
  return 0;
}

std::int32_t TRACKPORT_CALL ReadAdapter(std::int32_t lAddress) {
  if (lAddress != lOnlyAddress) return 0;
  return Rig().With([](bench::TrackModel& model) { return model.Inputs(); });
}

std::int32_t TRACKPORT_CALL WriteAdapter(std::int32_t lAddress, std::int32_t lByte) {
  if (lAddress != lOnlyAddress) return 0;
  return Rig().With([=](bench::TrackModel& model) {
    model.SetOutput(lByte);
    return 0;
  });
}

// Nothing on this track hangs on the strobe line.
std::int32_t TRACKPORT_CALL SetStrobe(std::int32_t) {
  return 0;
}

// The model's accelerometer converts at once, so no time needs to be allowed for it.
std::int32_t TRACKPORT_CALL ReadAtoD(std::int32_t lAddress, std::int32_t) {
  if (lAddress != lOnlyAddress) return 0;
  return Rig().With([](bench::TrackModel& model) { return model.Plugged() ? model.Analog() : 0; });
}

}  // namespace glidetrak
