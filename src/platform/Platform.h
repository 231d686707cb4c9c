#pragma once

// What the station asks of the machine, in the station's own terms. `Machine` is what needs no
// window (platform/linux and platform/windows answer it), `Desktop` what does (view/ answers it);
// the HID devices have an interface of their own, Hid.h. Tests answer Machine and Desktop with one
// virtual platform. The two pointers below are set before start-up and stay set until the process
// ends; they own nothing.
//
// Paths are written the station's way, with backslashes, and are compared without regard to case.
// Files are bytes; text is QString.

#include <QByteArray>
#include <QString>
#include <initializer_list>
#include <optional>

#include "platform/RuntimeError.h"

namespace glidetrak {

/// The two scopes of the settings store.
enum class Scope { User, Machine };

class Machine {
 public:
  virtual ~Machine() = default;

  /// Milliseconds since the machine started, resolution 1 ms. 32 bits: the value turns negative
  /// after 24.8 days and comes round to 0 after 49.7.
  virtual qint32 GetTickCount() = 0;

  /// The pass of a wait that does not pump. A real machine does nothing in it; on a virtual one
  /// 1 ms goes by.
  virtual void SpinOnce() {}

  /// Ends the process at once, behind the last deed of ProcessEnd.h; nothing after the call runs.
  [[noreturn]] virtual void EndProcess() = 0;

  /// The whole file. Throws FileNotFound, or FileAccess for what is no regular file or cannot be
  /// read; never blocks on a pipe.
  virtual QByteArray ReadFile(const QString& sPath) = 0;

  /// The bits of FileAttribute. Throws FileNotFound when the path names nothing.
  virtual int FileAttributes(const QString& sPath) = 0;

  /// Creates the file, or replaces it, with these bytes. A file that DeleteFile took away gets its
  /// mode back. Throws FileAccess when it cannot be opened, and then nothing was written;
  /// WriteBroken when the write broke off, and then a part of it may stay.
  virtual void WriteFile(const QString& sPath, const QByteArray& bytes) = 0;

  /// Deletes the file; of a link its target, and the link stays. Throws FileNotFound or FileAccess.
  virtual void DeleteFile(const QString& sPath) = 0;

  /// What stands behind the program's name on the command line, as one raw text; "" for nothing. A
  /// path in it is the station's way of writing it.
  virtual QString CommandLine() = 0;

  /// Folder of the executable, with or without a backslash at its end.
  virtual QString ExecutableFolder() = 0;

  /// Throws FileAccess.
  virtual void SetCurrentFolder(const QString& sPath) = 0;

  /// Between the station's paths and those that the machine itself and its dialogs use. The station
  /// path of a file that is there means that very file from then on.
  virtual QString NativePath(const QString& sStationPath) = 0;
  virtual QString StationPath(const QString& sNativePath) = 0;

  /// The user's documents folder, or the home folder where there is none. Throws PlatformCall when
  /// neither is known.
  virtual QString DocumentsFolder() = 0;

  /// A text from the settings store, "" for a missing one. `sKey` is the path below the scope's
  /// root; names match without regard to case.
  virtual QString ReadSetting(Scope scope, const QString& sKey, const QString& sName) = 0;

  /// True only when the value has reached the store.
  virtual bool WriteSetting(Scope scope, const QString& sKey, const QString& sName,
                            const QString& sValue) = 0;

  /// The value of a key in a section of an INI file, as bytes; nothing when it is not there.
  virtual std::optional<QByteArray> ConfigurationValue(const QString& sSection, const QString& sKey,
                                                       const QString& sPath) = 0;

  /// True when this is the user's only running copy; from then on it answers later copies.
  virtual bool TakeSingleInstance() = 0;

  /// Asks the earlier copy to come forward; returns within a bounded time.
  virtual void ActivateOtherCopy() = 0;

  /// A number from the settings store, for a value of the 32-bit number type only; nothing for a
  /// text, for a missing value or a missing key. `sKey` is the path below the scope's root.
  virtual std::optional<qint32> ReadRegistryNumber(Scope scope, const QString& sKey,
                                                   const QString& sName) = 0;

  /// The user's default language as a 16-bit language code; 1033 where it is not known.
  virtual int UserDefaultLanguage() = 0;

  /// The present time of day in the locale's long format, without the zone.
  virtual QString LongTime() = 0;

  /// Calls the operation of that name, a literal, of the library trackport32; all integers are
  /// 32-bit and passed by value, 0 to 2 of them. Throws PlatformCall when the library or the
  /// operation is missing.
  virtual qint32 CallTrackport(const char* sOperation, std::initializer_list<qint32> arguments) = 0;
};

/// Bits of Machine::FileAttributes.
enum FileAttribute { attrReadOnly = 1, attrFolder = 16 };

enum class BoxIcon { Exclamation, Information, Warning, Question };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

/// Where a box stands on the main window. Over the top band it leaves the editor to be seen.
enum class BoxPlace { Middle, TopBand };

/// Screen pixels; right and bottom are one behind the last.
struct PixelRect {
  qint32 lLeft = 0, lTop = 0, lRight = 0, lBottom = 0;
};

class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Processes all queued user and timer events, then returns. Handlers run to their end inside.
  virtual void PumpEvents() = 0;

  /// A modal box; returns when the user has closed it. Other events go on meanwhile.
  virtual BoxAnswer ShowBox(const QString& sText, const QString& sTitle, BoxIcon icon,
                            BoxButtons buttons, BoxPlace place = BoxPlace::Middle) = 0;

  /// The system's default beep.
  virtual void Beep() = 0;

  // The main window and the monitors; nothing where the system does not tell.

  /// The whole monitor nearest to the main window.
  virtual std::optional<PixelRect> NearestMonitor() = 0;
  /// The primary monitor less the desktop's own bars.
  virtual std::optional<PixelRect> WorkArea() = 0;
  /// The place that the window has, or would have when neither minimised nor maximised.
  virtual std::optional<PixelRect> NormalRect() = 0;
  /// The place that the window has now.
  virtual std::optional<PixelRect> WindowRect() = 0;
  /// Moves the window's top-left corner and repaints it; its size stays.
  virtual void MoveWindow(qint32 lLeft, qint32 lTop) = 0;

  /// The main window is the active one.
  virtual bool IsMainWindowActive() = 0;
};

inline Machine* pMachine = nullptr;
inline Desktop* pDesktop = nullptr;

}  // namespace glidetrak
