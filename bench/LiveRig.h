#pragma once

// The rig in real time, shared by the threads that serve it: every access brings the rig up to the
// present first. Between accesses nothing runs, and nobody can tell.
//
// The clock counts on whatever is done to the time of day. A process that was stopped and goes on
// makes up for the time that it missed: the vehicle has meanwhile done what its last byte told it,
// as a real one would have.

#include <chrono>
#include <cstdint>
#include <mutex>
#include <type_traits>

#include "bench/Rig.h"

namespace glidetrak::bench {

class LiveRig {
 public:
  /// Calls use(Rig&), or use(TrackModel&) when it asks for the track alone, at the present time and
  /// returns what it returns. Other threads wait meanwhile.
  template <typename Use>
  auto With(Use use) {
    const std::lock_guard lock(m_mutex);
    CatchUp();
    if constexpr (std::is_invocable_v<Use, Rig&>) {
      return use(m_rig);
    } else {
      return use(m_rig.Track());
    }
  }

 private:
  using Clock = std::chrono::steady_clock;

  void CatchUp() {
    const auto passed =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_start);
    m_rig.Advance(passed.count() - m_lAdvanced);
    m_lAdvanced = passed.count();
  }

  std::mutex m_mutex;
  Rig m_rig;
  const Clock::time_point m_start = Clock::now();
  std::int64_t m_lAdvanced = 0;  ///< ms since m_start that the rig has seen
};

}  // namespace glidetrak::bench
