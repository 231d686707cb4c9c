#pragma once

// The values that every room shares. Each lives as long as the process; the comment names every
// writer, and tests/architecture holds the sources to it.

#include <QProperty>
#include <QtGlobal>

namespace glidetrak {

/// A Control Program runs: from the moment a run's tables stand until it ends, and during a Trace
/// step. Set by run control in language/. Cleared there at the end of a run or step, by Stop and
/// Space, by an error and by BREAK; by AbortProgram (emergency stop, suspend); and by a reset
/// program (New, Load, a pre-set, start-up). The run loop sees that when its pump returns. The view
/// watches it.
inline QProperty<bool> bProgramRunning{false};

/// The rig's last input byte, low 8 bits in use; 0 at start-up. A bit that is 1 is ON: 0
/// START_BUTTON, 1 CITY_CALL, 2 AIRPORT_CALL, 3 LIGHT_SENSOR, 4 TIME_GATE_A, 5 TIME_GATE_B,
/// 6 SOUND_SENSOR, 7 rig present (parallel link only). Written by each tick, which stores a failed
/// read too; the impact display puts the analog bits over bits 0 to 3; start-up sets it to 0.
inline qint32 lInputImage = 0;

/// The rig's output byte, low 8 bits in use: bits 0 to 3 power, bit 4 direction, 1 forward. Written
/// by SetPower and SetOutputBit in track/OutputImage, which send it; start-up sets it to 0 unsent.
/// Shut-down sends a literal 0 and leaves it as it stands.
inline qint32 lOutputImage = 0;

/// The rig answers; writes and the tick's slower work depend on it. Its states stand at the top of
/// hardware/AdapterLayer.h, which alone writes it.
inline bool bLinkUp = false;

/// The active link is USB; when false the parallel port is used, open or not. Written by
/// hardware/AdapterLayer alone; true with bLinkUp false is its state USB late.
inline bool bUsbLink = false;

enum ControlMode { modeManual = 0, modeProgram = 1 };

/// ControlMode of the operating panel. Written by the mode buttons, by New and Open (Program), and
/// by start-up (Manual).
inline qint16 iControlMode = modeManual;

/// /DEBUGMODE was on the command line: debug displays are kept up to date. Written once, by the
/// command line's parser in shell/.
inline bool bDebugMode = false;

/// Shut-down has begun and the rig been let go: ticks do nothing any more and no close prompt
/// comes. Set by ShutDownHardware; never cleared.
inline bool bShuttingDown = false;

}  // namespace glidetrak
