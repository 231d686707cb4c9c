#pragma once

// The values that every room shares. Each lives as long as the process; the comment names the room
// that owns it and says who else writes it.

#include <QProperty>
#include <QtGlobal>

namespace glidetrak {

/// A Control Program runs: from the moment a run's tables stand until it ends, and during a Trace
/// step. Owned by language/; the emergency stop, Stop, Space and a reset program clear it, and the
/// run loop sees that when its pump returns.
inline QProperty<bool> bProgramRunning{false};

/// The rig's last input byte, low 8 bits in use; 0 at start-up. A bit that is 1 is ON: 0
/// START_BUTTON, 1 CITY_CALL, 2 AIRPORT_CALL, 3 LIGHT_SENSOR, 4 TIME_GATE_A, 5 TIME_GATE_B,
/// 6 SOUND_SENSOR, 7 rig present (parallel link only). Written by the tick; the impact display
/// puts the analog bits over bits 0 to 3.
inline qint32 lInputImage = 0;

/// The rig's output byte, low 8 bits in use; 0 at start-up: bits 0 to 3 power, bit 4 direction, 1
/// forward. Owned by track/, the only room that writes it.
inline qint32 lOutputImage = 0;

/// The rig answers; writes and the tick's slower work depend on it. Owned by hardware/.
inline bool bLinkUp = false;

/// The active link is USB; when false the parallel port is used, open or not. Owned by hardware/.
inline bool bUsbLink = false;

enum ControlMode { modeManual = 0, modeProgram = 1 };

/// ControlMode of the operating panel; Manual at start-up. Written by the mode buttons and by New
/// and Open.
inline qint16 iControlMode = modeManual;

/// /DEBUGMODE was on the command line: debug displays are kept up to date. Owned by shell/.
inline bool bDebugMode = false;

/// Shut-down has begun: ticks do nothing any more and no close prompt comes.
inline bool bShuttingDown = false;

}  // namespace glidetrak
