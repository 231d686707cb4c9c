#pragma once

// The adapter layer chooses the adapter (USB first, the parallel port second), keeps the link
// state, retries a link that is down and shuts the hardware down. The rooms above see the rig only
// through ReadInputPort, ReadAnalogPort and WriteOutputPort; a failed exchange is told to nobody
// and shows only as a changed bLinkUp.
//
//   link state   bLinkUp  bUsbLink  tmrReconnect   lblHWState
//   USB up       true     true      off            detected
//   Parallel up  true     false     off            detected
//   Down         false    false     each 5000 ms   not detected
//
//   any -> Down             a parallel read that fails [HandleLinkLost], a failed CheckHardware
//   Down -> USB up, Parallel up  [CheckHardware, from tmrReconnect]
//
// A USB adapter that vanishes does not lead to Down: its reads give 0, the label goes on saying
// detected, and the device class finds it again by itself. The output byte is not sent again when
// a link comes back. Both are deliberate.

#include <QtGlobal>

namespace glidetrak {

/// The state last shown in lblHWState.
inline bool bLinkUpShown = false;

/// I/O address of the parallel port in use; 0 until one is found.
inline qint32 lPortAddress = 0;

/// What OpenLPT returned; 0 until a port was opened.
inline qint32 lPortHandle = 0;

/// The lost-link message was shown; it comes once in the life of the process.
inline bool bLinkMessageShown = false;

/// No last byte is owed to the rig: it has had it, or this copy of the station gives up to another
/// one and must not stop what that one drives. Set here, and by shell/ in a copy that is refused.
inline bool bRigLetGo = false;

/// The last analog value on the USB link, 0 to 15.
inline qint16 iUsbAnalog = 0;

/// Looks for an adapter and opens it; true when the rig answers. Silent but for DetectAdapter's
/// box.
bool CheckHardware();

/// USB, then the first of three parallel ports that has an adapter. When the library cannot be
/// called a warning is shown, at each attempt.
bool DetectAdapter();

/// The input byte, low 8 bits. bFail is set when the parallel rig did not answer in 9 reads, and
/// then lValue is the last of them, or 0 when the library failed. A dead USB device leaves bFail
/// alone and reads 0.
void ReadInputPort(bool& bFail, qint32& lValue);

/// One analog reading, no retry: 0 to 15 on USB; on the parallel link what the library gives, its
/// low 4 bits in use, -1 for none.
qint32 ReadAnalogPort();

/// Sends lOutputImage as it stands over the active link.
void WriteOutputPort();

/// Brings lblHWState and tmrReconnect in line with bLinkUp, if it has changed since it was shown.
void ShowLinkState();

/// From the tick, when a read failed. The message box stands inside the tick.
void HandleLinkLost();

/// A retry. One that comes while an earlier one's message box is open does nothing, so that a
/// missing library covers the window with one box and not with one each 5 s.
void tmrReconnect_Timer();

/// Lets go of the rig: its last byte is a literal 0, not the image. With the link down, or with no
/// last byte owed, no hardware is touched. Ends with a wait of 200 ms, after which ticks do
/// nothing.
void ShutDownHardware();

/// For an end of the process that is no shut-down: the literal 0, if the link is up and a last byte
/// is owed. Pumps nothing; on USB it waits for the reply like every exchange.
void StopRigAtEnd();

/// The same for a process that crashes: on USB it is one write to the device that is open. Takes no
/// memory; what the library does in its call is the library's own.
void StopRigInCrash();

}  // namespace glidetrak
