#pragma once

#include <functional>

namespace glidetrak {

/// From now on `suspend` is called from the event loop each time the machine is about to sleep; the
/// machine waits for it as long as it waits for anyone (Linux: five seconds, where there is a login
/// manager, and elsewhere nothing is told). To be called once, with the application object there.
void OnSuspend(std::function<void()> suspend);

}  // namespace glidetrak
