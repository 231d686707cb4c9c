#pragma once

// The machine of the system that the station is built for.

#ifdef _WIN32
#include "platform/windows/WindowsMachine.h"
#else
#include "platform/linux/LinuxMachine.h"
#endif

namespace glidetrak {

#ifdef _WIN32
using ThisMachine = WindowsMachine;
#else
using ThisMachine = LinuxMachine;
#endif

}  // namespace glidetrak
