#include "platform/TrackportCall.h"

#include "platform/RuntimeError.h"

namespace glidetrak {

namespace {

using NoArguments = qint32(TRACKPORT_CALL*)();
using OneArgument = qint32(TRACKPORT_CALL*)(qint32);
using TwoArguments = qint32(TRACKPORT_CALL*)(qint32, qint32);

}  // namespace

qint32 CallOperation(QFunctionPointer operation, std::initializer_list<qint32> arguments) {
  const qint32* pArguments = arguments.begin();
  switch (arguments.size()) {
    case 0:
      return reinterpret_cast<NoArguments>(operation)();
    case 1:
      return reinterpret_cast<OneArgument>(operation)(pArguments[0]);
    case 2:
      return reinterpret_cast<TwoArguments>(operation)(pArguments[0], pArguments[1]);
    default:
      throw RuntimeError(Fault::PlatformCall);
  }
}

}  // namespace glidetrak
