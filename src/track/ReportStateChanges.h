#pragma once

namespace glidetrak {

/// Tells the operating panel when something that it shows has changed since it was last told.
/// Runs in every tick, and behind FORWARD and BACKWARD.
void ReportStateChanges();

}  // namespace glidetrak
