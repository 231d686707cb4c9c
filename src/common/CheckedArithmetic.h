#pragma once

// Whole-number arithmetic in the widths of the language. A result that does not fit raises
// RuntimeError(Overflow); nothing ever wraps.

#include <QtGlobal>
#include <limits>

#include "platform/RuntimeError.h"

namespace glidetrak {

template <class Narrow>
constexpr Narrow Checked(qint64 lValue) {
  if (lValue < std::numeric_limits<Narrow>::min() || lValue > std::numeric_limits<Narrow>::max()) {
    throw RuntimeError(Fault::Overflow);
  }
  return static_cast<Narrow>(lValue);
}

constexpr qint16 CheckedInt16(qint64 lValue) {
  return Checked<qint16>(lValue);
}
constexpr qint32 CheckedInt32(qint64 lValue) {
  return Checked<qint32>(lValue);
}

/// A real number to a whole one, halves to the even neighbour; Overflow outside the width and for
/// what is no number.
qint16 RoundToInt16(double fValue);
qint32 RoundToInt32(double fValue);

/// Cut towards zero; DivisionByZero for a divisor of 0, Overflow for the one quotient that 32 bits
/// do not hold.
constexpr qint32 CheckedDivide32(qint32 lDividend, qint32 lDivisor) {
  if (lDivisor == 0) throw RuntimeError(Fault::DivisionByZero);
  return CheckedInt32(qint64{lDividend} / lDivisor);
}

}  // namespace glidetrak
