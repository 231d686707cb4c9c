#pragma once

// The track model in real time, shared by the threads that serve it: every access brings the model
// up to the present first. Between accesses nothing runs.

#include <chrono>
#include <cstdint>
#include <mutex>

#include "bench/TrackModel.h"

namespace glidetrak::bench {

class LiveRig {
 public:
  /// Calls use(TrackModel&) with the model at the present time and returns what it returns. Other
  /// threads wait meanwhile.
  template <typename Use>
  auto With(Use use) {
    const std::lock_guard lock(m_mutex);
    CatchUp();
    return use(m_model);
  }

 private:
  using Clock = std::chrono::steady_clock;

  void CatchUp() {
    const auto passed =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_start);
    m_model.Advance(passed.count() - m_lAdvanced);
    m_lAdvanced = passed.count();
  }

  std::mutex m_mutex;
  TrackModel m_model;
  const Clock::time_point m_start = Clock::now();
  std::int64_t m_lAdvanced = 0;  ///< ms since m_start that the model has seen
};

}  // namespace glidetrak::bench
