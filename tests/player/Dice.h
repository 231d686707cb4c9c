#pragma once

// The player's only source of chance: the same seed plays the same sequence on every machine.

#include <QtGlobal>
#include <array>
#include <random>

namespace glidetrak {

class Dice {
 public:
  explicit Dice(quint64 lSeed) : m_engine(lSeed) {}

  /// iLeast to iMost, both included.
  int Between(int iLeast, int iMost) {
    const auto lSpan = static_cast<quint64>(iMost - iLeast) + 1;
    return iLeast + static_cast<int>(m_engine() % lSpan);
  }

  /// True once in that many throws.
  bool OnceIn(int iThrows) { return Between(1, iThrows) == 1; }

  template <class Table>
  const auto& OneOf(const Table& table) {
    return table[static_cast<size_t>(Between(0, static_cast<int>(std::size(table)) - 1))];
  }

 private:
  std::mt19937_64 m_engine;
};

}  // namespace glidetrak
