#include "language/Variables.h"

#include "platform/RuntimeError.h"

namespace glidetrak {

void StoreVariable(int iSlot, qint16 iValue) {
  if (iSlot < 1 || iSlot > iVariableSlots) throw RuntimeError(Fault::BadBound);
  iVariables[static_cast<size_t>(iSlot)] = iValue;
}

}  // namespace glidetrak
