#pragma once

// Finds one USB HID device by vendor id, product id and version, opens it, learns its report
// lengths and exchanges whole reports with it. It knows nothing of the rig. It reopens a lost
// device by itself at the next report; while the device is gone each report attempt searches for
// it once. It raises nothing and shows nothing.
//
//   state    connected flag  handles      lengths known  leaves by
//   New      false           0            no             the first act [OpenDevice]
//   Open     true            both set     yes            a read that times out: Closed
//   [CloseDevice];
//                                                        one that fails: Stale [ReadReport]
//   Deaf     true            write only   yes            bDeviceConnected alone [OpenDevice]
//   Mute     true            write set    no             the next act [OpenDevice]
//   Stale    false           both set     yes            the next act [OpenDevice]
//   Closed   false           0            as before      the next act [OpenDevice]
//
// The acts are WriteReport, ReadReport and bDeviceConnected; the last opens afresh in every state.
// OpenDevice closes what is open, then ends in Open, Deaf or Mute with a device and in Closed
// without. A write that fails or is refused leads nowhere.
//
// Deaf is a device whose second opening, for reads, failed: it takes reports, and each read brings
// nothing at once. Mute is one whose report lengths could not be learnt, by an object that never
// learnt any: it can exchange nothing. An object that has learnt them once keeps them over a close,
// and a reopening that cannot learn them goes on with those.
//
// An answer that came too late for its read must not be taken for the answer to a later report, and
// other processes' answers on the same device arrive here too. So each write first drops what waits
// to be read.
//
// Example: a device that declares output reports of 64 bytes declares 65 with the report id.
// WriteReport({3, 0, 0}) puts 00 03 00 00 and 61 zeros on the wire.

#include <QByteArray>
#include <QString>
#include <optional>
#include <span>

#include "hardware/modUSBHID.h"
#include "platform/Hid.h"

namespace glidetrak {

class clsUSBHID {
 public:
  clsUSBHID() = default;
  ~clsUSBHID();
  clsUSBHID(const clsUSBHID&) = delete;
  clsUSBHID& operator=(const clsUSBHID&) = delete;

  /// Sends data behind a report id of 0, zero-filled to the length of an output report. False when
  /// no device is there, when the data is empty or longer than that length less 1, or when nothing
  /// was written.
  bool WriteReport(const QByteArray& data);

  /// For a process that crashes: one write of an output report to the device if it is open. The
  /// report begins with its id and is cut to the device's length. Takes no memory.
  void WriteInCrash(std::span<const char> report);

  /// The next input report without its report id, always one byte less than the declared length,
  /// with zeros behind what the device sent; nothing when none came. Blocks for up to lReadTimeOut.
  std::optional<QByteArray> ReadReport();

  /// Opens the device afresh and tells whether it is there.
  bool bDeviceConnected();

  qint16 iVendorID = iDefaultVendorID;
  qint16 iProductID = iDefaultProductID;
  /// iAnyVersion takes any; when a device is accepted this takes its version.
  qint16 iVersionNumber = iAnyVersion;

 private:
  void OpenWhenNeeded();
  void OpenDevice();
  void CloseDevice();
  bool AcceptDevice();
  void LearnReportLengths();
  void RecordLastError();

  qint32 m_lHIDhandle = 0;          ///< writes go here; 0 when closed
  qint32 m_lReadHandle = 0;         ///< reads go here; 0 when closed
  HidReportLengths m_capabilities;  ///< as last learnt; zeros until m_bLengthsKnown
  bool m_bLengthsKnown = false;
  bool m_bConnected = false;
  QString m_sLastError;  ///< of the last platform call; read by nobody, a debugging aid
};

}  // namespace glidetrak
