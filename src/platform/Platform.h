#pragma once

// What the station asks of the machine, in the station's own terms. `Machine` is what needs no
// window (platform/linux and platform/windows answer it), `Desktop` what does (view/ answers it).
// Tests answer both with one virtual platform. The two pointers below are set before start-up and
// stay set until the process ends; they own nothing.
//
// Paths are written the station's way, with backslashes, and are compared without regard to case.
// Files are bytes; text is QString.

#include <QByteArray>
#include <QString>
#include <initializer_list>
#include <optional>
#include <vector>

#include "platform/RuntimeError.h"

namespace glidetrak {

/// The two scopes of the settings store.
enum class Scope { User, Machine };

struct HidAttributes {
  qint16 iVendorID = 0;  ///< the 16 bits as they are, so that ids from 0x8000 are negative
  qint16 iProductID = 0;
  qint16 iVersionNumber = 0;
};

/// Both lengths in bytes, counting the report id byte; 0 where the device has no such report.
struct HidReportLengths {
  quint16 iInput = 0;
  quint16 iOutput = 0;
};

enum class HidReadResult { Success, TimeOut, Failed };

class Machine {
 public:
  virtual ~Machine() = default;

  /// Milliseconds since the machine started, resolution 1 ms. 32 bits: the value turns negative
  /// after 24.8 days and comes round to 0 after 49.7.
  virtual qint32 GetTickCount() = 0;

  /// The pass of a wait that does not pump. A real machine does nothing in it; on a virtual one
  /// 1 ms goes by.
  virtual void SpinOnce() {}

  /// Ends the process at once; nothing after the call runs.
  [[noreturn]] virtual void EndProcess() = 0;

  /// The whole file. Throws FileNotFound, or FileAccess for what is no regular file or cannot be
  /// read; never blocks on a pipe.
  virtual QByteArray ReadFile(const QString& sPath) = 0;

  /// The bits of FileAttribute. Throws FileNotFound when the path names nothing.
  virtual int FileAttributes(const QString& sPath) = 0;

  /// A number from the settings store, for a value of the 32-bit number type only; nothing for a
  /// text, for a missing value or a missing key. `sKey` is the path below the scope's root.
  virtual std::optional<qint32> ReadRegistryNumber(Scope scope, const QString& sKey,
                                                   const QString& sName) = 0;

  /// The user's default language as a 16-bit language code; 1033 where it is not known.
  virtual int UserDefaultLanguage() = 0;

  /// The present time of day in the locale's long format, without the zone.
  virtual QString LongTime() = 0;

  /// Paths of the HID devices that are present.
  virtual std::vector<QByteArray> HidPaths() = 0;

  /// Opens a device for reading and writing, shared; a handle, or 0 when it cannot be opened. Each
  /// handle has an input queue of its own.
  virtual qint32 HidOpen(const QByteArray& path) = 0;
  virtual void HidClose(qint32 lHandle) = 0;

  /// False, and nothing written, when the device does not tell.
  virtual bool GetHidAttributes(qint32 lHandle, HidAttributes& attributes) = 0;
  virtual bool GetHidReportLengths(qint32 lHandle, HidReportLengths& lengths) = 0;

  /// Writes one whole output report, the report id first; the count of bytes written, 0 on failure.
  virtual qint32 HidWrite(qint32 lHandle, const QByteArray& report) = 0;

  /// Waits up to lTimeOut ms for one input report. On Success `report`, which comes with the length
  /// of an input report, holds the report id first; what the device did not send stays as it was.
  virtual HidReadResult HidRead(qint32 lHandle, qint32 lTimeOut, QByteArray& report) = 0;

  /// The text of the last HID error, for a debugger; "" when there was none.
  virtual QString HidErrorText() = 0;

  /// Calls the operation of that name of the library trackport32; all integers are 32-bit and
  /// passed by value, 0 to 2 of them. Throws PlatformCall when the library or the operation is
  /// missing.
  virtual qint32 CallTrackport(const char* sOperation, std::initializer_list<qint32> arguments) = 0;
};

/// Bits of Machine::FileAttributes.
enum FileAttribute { attrReadOnly = 1, attrFolder = 16 };

enum class BoxIcon { Exclamation, Information, Warning, Question };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Processes all queued user and timer events, then returns. Handlers run to their end inside.
  virtual void PumpEvents() = 0;

  /// A modal box; returns when the user has closed it. Other events go on meanwhile.
  virtual BoxAnswer ShowBox(const QString& sText, const QString& sTitle, BoxIcon icon,
                            BoxButtons buttons) = 0;

  /// The system's default beep.
  virtual void Beep() = 0;
};

inline Machine* pMachine = nullptr;
inline Desktop* pDesktop = nullptr;

}  // namespace glidetrak
