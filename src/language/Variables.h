#pragma once

#include <QtGlobal>
#include <array>

namespace glidetrak {

constexpr int iVariableSlots = 30;

/// Slots 1 to 30 (0 is never used); the slot is the character's code less 64, so that A to Z are 1
/// to 26. Slots 27 to 30 ([ \ ] ^) are written by GET alone and read by nothing.
inline std::array<qint16, iVariableSlots + 1> iVariables{};

/// All 30 to 0.
inline void ClearVariables() {
  iVariables.fill(0);
}

/// The slot of a character code; it may lie outside 1 to 30.
constexpr int SlotOf(int iCharCode) {
  return iCharCode - 64;
}

/// Raises BadBound for a slot outside 1 to 30.
void StoreVariable(int iSlot, qint16 iValue);

}  // namespace glidetrak
