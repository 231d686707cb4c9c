#pragma once

// The USB adapter: vendor 0x0CFE, product 0x0046, any version. Every act is one output report
// followed by one input report; data bytes are counted behind the report id, from 0.
//
//   Set output, 19 bytes:  4, 1, 14 zeros, the output byte at 16, 2 zeros. The reply is dropped.
//   Read state,  3 bytes:  3, 0, 0. In the reply byte 2 is the digital input, byte 3 the analog
//                          byte with its value, 0 to 15, in the high nibble.
//
// An exchange blocks the thread: the search for a device that was lost, the write for as long as
// the system takes (on Windows 1000 ms at most), then the wait for the reply, 1000 ms at most. None
// raises anything.

#include <QtGlobal>

namespace glidetrak {

/// A new device object each time, the old one closed first; true when the adapter is there and
/// open.
bool UsbOpenAdapter();

/// True when the report was written, whatever became of the reply. Before the first UsbOpenAdapter
/// and behind UsbCloseAdapter this is false and the readings below are 0.
bool UsbWriteOutput(quint8 iByte);

/// The digital input byte; 0 when no reply came.
quint8 UsbReadInput();

/// The analog byte as it came; 0 when no reply came. An exchange of its own.
quint8 UsbReadAnalog();

/// Set output with the byte 0 for a process that crashes: one write to the device that is open, its
/// reply not awaited. Nothing is opened, and no memory is taken.
void UsbWriteZeroInCrash();

/// Drops the device object, which closes the device.
void UsbCloseAdapter();

}  // namespace glidetrak
