#pragma once

#include "common/SkipOnError.h"

namespace glidetrak {

/// Fires an event of the station. The toolkit's event loop carries no exceptions, so a run-time
/// failure that a handler lets through ends here, without a word like every other.
template <class Event, class... Arguments>
void Fire(const Event& event, Arguments&&... arguments) {
  SkipOnError([&] { event(arguments...); });
}

}  // namespace glidetrak
