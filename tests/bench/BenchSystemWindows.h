#pragma once

#include "BenchSystem.h"
#include "bench/SystemHandle.h"

namespace glidetrak::bench {

/// Has the program take an event of its console (CTRL_C_EVENT and its like), as the system does it:
/// by a thread of the program's own. So neither side needs a console.
void SendConsoleEvent(const Program& program, DWORD iEvent);

}  // namespace glidetrak::bench
