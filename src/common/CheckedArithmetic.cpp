#include "common/CheckedArithmetic.h"

#include <cmath>

namespace glidetrak {

namespace {

template <class Narrow>
Narrow RoundTo(double fValue) {
  const double fRounded = std::nearbyint(fValue);  // the default mode: halves to even
  if (!(fRounded >= std::numeric_limits<Narrow>::min() &&
        fRounded <= std::numeric_limits<Narrow>::max())) {
    throw RuntimeError(Fault::Overflow);
  }
  return static_cast<Narrow>(fRounded);
}

}  // namespace

qint16 RoundToInt16(double fValue) {
  return RoundTo<qint16>(fValue);
}

qint32 RoundToInt32(double fValue) {
  return RoundTo<qint32>(fValue);
}

}  // namespace glidetrak
