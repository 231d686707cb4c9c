#pragma once

#include <functional>

namespace glidetrak {

/// From now on `suspend` is called from the event loop when the machine is about to sleep, on
/// Windows once for each window; the machine waits for it as long as it waits for anyone (Windows:
/// two seconds; Linux: five, where there is a login manager, and elsewhere nothing is told). To be
/// called once, with the application object there.
void OnSuspend(std::function<void()> suspend);

}  // namespace glidetrak
