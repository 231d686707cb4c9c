#pragma once

namespace glidetrak {

/// Fills the event slots of every control, control by control.
void WireEvents();

}  // namespace glidetrak
