#pragma once

// How the operations of the parallel library are called: 32-bit integers by value, in the standard
// call convention where a system has one.

#include <QtGlobal>
#include <initializer_list>

#ifdef _WIN32
#define TRACKPORT_CALL __stdcall
#else
#define TRACKPORT_CALL
#endif

namespace glidetrak {

/// Calls the operation with its 0 to 2 arguments; throws PlatformCall for more.
qint32 CallOperation(QFunctionPointer operation, std::initializer_list<qint32> arguments);

}  // namespace glidetrak
