#pragma once

// The HID devices of the machine, in the station's own terms. platform/linux and platform/windows
// answer it, tests with their virtual rig. Failures are told by the results.
//
// Write waits until the device has taken the report: on Linux as long as the kernel lets it, on
// Windows 1000 ms at most. Read says how long it waits. On Windows Devices and Open ask a device of
// the wanted ids for its texts, too, and wait for what it says. Nothing else waits for a device.
//
// Example: a device whose input reports hold 64 bytes has an iInput of 65. Read fills bytes 1 to 64
// and leaves a 0 at 0 where the device's reports are not numbered.

#include <QByteArray>
#include <QString>
#include <vector>

namespace glidetrak {

struct HidAttributes {
  qint16 iVendorID = 0;  ///< the 16 bits as they are, so that ids from 0x8000 are negative
  qint16 iProductID = 0;
  qint16 iVersionNumber = 0;
};

/// A device as the enumeration tells of it, without opening it.
struct HidListing {
  QByteArray path;
  qint16 iVendorID = 0;  ///< as in HidAttributes
  qint16 iProductID = 0;
};

/// Both lengths in bytes, counting the report id byte; 0 where the device has no such report.
struct HidReportLengths {
  quint16 iInput = 0;
  quint16 iOutput = 0;
};

enum class HidReadResult { Success, TimeOut, Failed };

/// Input reports that one DropInput drops: the places of an input queue, and an end to it where a
/// device sends faster than they are dropped.
constexpr int iMostDropped = 64;

class Hid {
 public:
  virtual ~Hid() = default;

  /// The HID devices of that vendor and product that are present, each path once. None is opened
  /// for its reports, and one of another vendor or product is asked for nothing but its ids.
  virtual std::vector<HidListing> Devices(qint16 iVendorID, qint16 iProductID) = 0;

  /// Opens a device for reading and writing, shared; a handle, never negative, or 0 when it cannot
  /// be opened. Each handle has an input queue of its own, in which every input report of the
  /// device waits from the opening on, whoever asked for it. The caller closes it.
  virtual qint32 Open(const QByteArray& path) = 0;
  /// Nothing for a handle that is not open.
  virtual void Close(qint32 lHandle) = 0;

  /// False, and nothing written, when the device does not tell.
  virtual bool Attributes(qint32 lHandle, HidAttributes& attributes) = 0;
  virtual bool ReportLengths(qint32 lHandle, HidReportLengths& lengths) = 0;

  /// Drops what waits in the handle's input queue, at most iMostDropped reports (and on Windows the
  /// one that a read under way has taken off it), and never waits
  /// for one. Nothing for a handle whose device is gone.
  virtual void DropInput(qint32 lHandle) = 0;

  /// Writes one whole output report, the report id first; the count of bytes written, 0 on failure.
  /// A report that the device did not take in time may still reach it until the handle is closed.
  virtual qint32 Write(qint32 lHandle, const QByteArray& report) = 0;

  /// Waits up to lTimeOut ms for one input report. On Success `report`, which comes with the length
  /// of an input report, holds the report id first; what the device did not send stays as it was.
  virtual HidReadResult Read(qint32 lHandle, qint32 lTimeOut, QByteArray& report) = 0;

  /// The text of the last error, for a debugger; "" when there was none.
  virtual QString ErrorText() = 0;
};

/// Set before start-up, and stays set until the process ends; owns nothing.
inline Hid* pHid = nullptr;

}  // namespace glidetrak
