#pragma once

#include <functional>

namespace glidetrak {

/// From now on a termination signal (of a log-out, of a shut-down of the PC) calls that function
/// from the event loop, so that the rig is not left driving. To be called once.
void OnTermination(std::function<void()> terminate);

}  // namespace glidetrak
