#pragma once

// The rig as it hangs on a PC: the track, the adapter between the two, and the record of what the
// adapter was handed. It holds no clock.
//
// Two plugs can be pulled. Without the lead between track and adapter the adapter is there and the
// rig silent; without the adapter the PC's port has nothing. Either way the track is without power,
// and has none when the plug is put back, until the next byte.

#include <cstdint>

#include "bench/RigRecord.h"
#include "bench/TrackModel.h"

namespace glidetrak::bench {

/// ms in which everything that runs on the track has come to its end: a button or a noise lasts for
/// a minute at most, a journey at the weakest power for less. A longer time makes no difference.
constexpr std::int64_t lLongestAdvance = 120'000;

class Rig {
 public:
  /// Moves time on by that many ms; of a time beyond lLongestAdvance the track is spared the rest,
  /// in which nothing would happen.
  void Advance(std::int64_t lMilliseconds);

  /// Takes the adapter off its port or puts it back.
  void SetAttached(bool bAttached);
  bool Attached() const { return m_bAttached; }

  /// The output byte, which goes to the record too. Nothing while the adapter is off its port.
  void Write(int iByte);

  /// Bits 0 to 6 of the input byte as the adapter sees them: none without the lead.
  int Sensors() const { return Reachable() ? m_track.Sensors() : 0; }

  /// The byte on the parallel link: the sensors and bit 7, or 0 when a plug is out.
  int Inputs() const { return m_bAttached ? m_track.Inputs() : 0; }

  /// The accelerometer's value, 0 to 15; 0 when a plug is out.
  int Analog() const { return Reachable() ? m_track.Analog() : 0; }

  TrackModel& Track() { return m_track; }
  const TrackModel& Track() const { return m_track; }
  const RigRecord& Record() const { return m_record; }

 private:
  bool Reachable() const { return m_bAttached && m_track.Plugged(); }

  TrackModel m_track;
  RigRecord m_record;
  std::int64_t m_lTime = 0;  ///< ms since the rig was switched on
  bool m_bAttached = true;
};

}  // namespace glidetrak::bench
