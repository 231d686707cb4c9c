#pragma once

// What hidapi does on one system otherwise than on another, evened out. Each system has a source of
// its own.

#include <hidapi/hidapi.h>

#include <QByteArray>
#include <span>

namespace glidetrak {

/// Opens the device of that path for reading and writing reports; null when it cannot be opened for
/// both. The caller closes it with hid_close.
hid_device* OpenForReports(const QByteArray& path);

/// Input reports that hidapi itself holds beside the system's queue: one on Windows, where it has a
/// read under way between two calls.
extern const int iHeldBesideQueue;

/// Sends one output report, its id first; the count of bytes sent, 0 on failure. On Windows the
/// report stays where it is until the next one or hid_close. Takes no memory when all goes well.
qint32 SendReport(hid_device* pDevice, std::span<const unsigned char> report);

}  // namespace glidetrak
