#include "bench/Rig.h"

#include <algorithm>

namespace glidetrak::bench {

void Rig::Advance(std::int64_t lMilliseconds) {
  if (lMilliseconds <= 0) return;
  m_lTime += lMilliseconds;
  m_track.Advance(std::min(lMilliseconds, lLongestAdvance));
}

void Rig::SetAttached(bool bAttached) {
  if (!bAttached) m_track.SetOutput(0);
  m_bAttached = bAttached;
}

void Rig::Write(int iByte) {
  if (!m_bAttached) return;
  m_record.Add(m_lTime, iByte);
  m_track.SetOutput(iByte);
}

}  // namespace glidetrak::bench
