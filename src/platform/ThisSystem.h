#pragma once

// The system that the station was built for.

#include <functional>

namespace glidetrak {

/// Sets pMachine and pHid. `activate` is called from the event loop when a later copy asks this one
/// to come forward. To be called once, with the application object there.
void UseThisSystem(std::function<void()> activate);

}  // namespace glidetrak
