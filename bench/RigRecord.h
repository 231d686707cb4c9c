#pragma once

// What the adapter was handed, byte for byte: the last iKeptBytes of them, with their times.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace glidetrak::bench {

constexpr size_t iKeptBytes = 1000;

class RigRecord {
 public:
  /// Takes a byte at a time in ms since the rig was switched on. The oldest one goes when there is
  /// no room.
  void Add(std::int64_t lTime, int iByte);

  /// One line for each byte that is kept, the oldest first:
  ///
  ///   3: 2417 ms 0x18 power 8 forward
  ///
  /// The number counts from the first byte ever written, so that it shows what is not kept.
  std::string Text() const;

 private:
  struct Entry {
    std::int64_t lTime;
    std::uint8_t iByte;
  };

  std::array<Entry, iKeptBytes> m_aEntries{};
  std::uint64_t m_iWritten = 0;  ///< bytes ever
};

}  // namespace glidetrak::bench
