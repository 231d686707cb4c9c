#pragma once

#include <QtGlobal>

namespace glidetrak {

/// How a timed wait treats the event queue and the tick.
enum class Pump { No, Yes };
enum class Tick { LeftOn, Suspended };

/// The one timed wait of the station: spins on the millisecond counter until lTime ms have gone by,
/// pumping events on each pass if asked. It never looks at bProgramRunning, so a stop does not cut
/// it short. With Tick::Suspended tmrSystem is disabled for the time of the wait and enabled after
/// it, whatever it was before.
///
/// The difference of tick counts is 32-bit and checked. When the counter turns negative, after
/// 24.8 days of uptime, the wait ends at once, silently, and leaves a suspended tmrSystem
/// disabled. Deliberate, like the wait's disregard for everything else.
void DelayMilliseconds(Pump pump, qint32 lTime, Tick tick);

}  // namespace glidetrak
