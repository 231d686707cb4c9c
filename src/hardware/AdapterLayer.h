#pragma once

// The adapter layer chooses the adapter (USB first, the parallel port second), keeps the link
// state, retries a link that is down and shuts the hardware down. The rooms above see the rig only
// through ReadInputPort, ReadAnalogPort and WriteOutputPort; a failed exchange is told to nobody
// and shows only as a changed bLinkUp.
//
//   link state   bLinkUp  bUsbLink  tmrReconnect   lblHWState     what holds
//   USB up       true     true      off            detected       reads and writes go to USB
//   Parallel up  true     false     off            detected       a port is open at lPortAddress
//   Down         false    false     each 5000 ms   not detected   ticks read at lPortAddress and
//                                                                 fail; nothing is written
//   USB late     false    true      each 5000 ms   not detected   ticks read USB; nothing is
//                                                                 written
//
//   Down -> USB up        a device is there at the first look [CheckHardware]
//   Down -> USB late      it comes between the two looks of one check: the second takes it and
//                         leaves bLinkUp as it stands [DetectAdapter]
//   Down -> Parallel up   a port has an adapter [DetectAdapter]
//   Parallel up -> Down   nine reads in a tick without an answer, or a library that fails
//                         [HandleLinkLost]
//   USB late -> any       as from Down, by the next retry
//
// A check runs at start-up and at each retry, so in Down and in USB late only. One that finds no
// adapter, or whose library fails in the search, ends in Down. One that fails behind the search
// does not: an adapter that is on its port and does not answer leaves the link in Parallel up,
// shown as detected, until the next tick's read takes it down.
//
// A USB adapter that vanishes does not lead to Down: its reads give 0, the label goes on saying
// detected, and the device class finds it again by itself. The output byte is not sent again when
// a link comes back. Both are deliberate.
//
// bLinkUp and bUsbLink stand in common/SharedState.h.

#include <QtGlobal>

namespace glidetrak {

/// bLinkUp as lblHWState shows it. Written by ShowLinkState, and by start-up, which sets it to the
/// opposite of bLinkUp so that the first state is shown whatever it is.
inline bool bLinkUpShown = false;

/// I/O address of the port that was last looked at, with an adapter or without; 0 until then. Reads
/// while the link is down go there. Written by the search alone.
inline qint32 lPortAddress = 0;

/// What OpenLPT returned last, for CloseLPT; 0 until a port was opened. Written by the search
/// alone.
inline qint32 lPortHandle = 0;

/// The lost-link message was shown and closed; it comes once in the life of the process. Written by
/// HandleLinkLost.
inline bool bLinkMessageShown = false;

/// No last byte is owed to the rig: it has had it, or this copy of the station gives up to another
/// one and must not stop what that one drives. Set by the three ends below while the link is up,
/// and by shell/ in a copy that is refused; never cleared. Other writes do not look at it.
inline bool bRigLetGo = false;

/// The last analog value on the USB link, 0 to 15; 0 until the first. Written by ReadAnalogPort.
inline qint16 iUsbAnalog = 0;

/// Looks for an adapter and opens it; true when the rig answers, or a USB device is open. On the
/// port it writes a literal 0, not the image, and reads the input; on USB found at the first look
/// it exchanges nothing. With USB late the 0 goes to lPortAddress all the same. Silent but for
/// DetectAdapter's box; raises nothing.
bool CheckHardware();

/// USB, then the first of three parallel ports that has an adapter, which is opened. True when
/// there is one; false takes bLinkUp away. When the library cannot be called a warning is shown, at
/// each attempt, and the result is false.
bool DetectAdapter();

/// The input byte; on the parallel link as the library gives it, its low 8 bits in use. bFail is
/// set when the parallel rig did not answer in 9 reads, and then lValue is the last of them, or 0
/// when the library failed. A dead USB device leaves bFail alone and reads 0.
void ReadInputPort(bool& bFail, qint32& lValue);

/// One analog reading, no retry: 0 to 15 on USB, 0 when no reply came; on the parallel link what
/// the library gives, its low 4 bits in use, -1 for none. Raises RuntimeError without the library.
qint32 ReadAnalogPort();

/// Sends lOutputImage as it stands over the active link, up or down. Raises RuntimeError without
/// the library on the parallel link; a USB device that does not take it is told to nobody.
void WriteOutputPort();

/// Brings lblHWState and tmrReconnect in line with bLinkUp, if it has changed since it was shown.
void ShowLinkState();

/// From the tick, when a parallel read failed: shows the link as lost and starts the retry. The
/// message box stands inside the tick.
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
