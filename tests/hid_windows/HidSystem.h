#pragma once

// What the stand-ins for the system's hid.dll and cfgmgr32.dll ask of the test program that loads
// them. Devices are named pipes of the test's own, so that a path can be opened, written, read and
// lost by the system's real calls; all that a pipe does not know of itself comes from here.

#include "platform/windows/Api.h"

namespace glidetrak {

/// What the system tells of a device whoever asks.
struct HidTold {
  USHORT iVendor = 0x0CFE;
  USHORT iProduct = 0x0046;
  USHORT iVersion = 0x0100;
  USHORT iInput = 65;   ///< bytes of an input report, its id counted
  USHORT iOutput = 65;  ///< of an output report
  UCHAR iReport = 0;    ///< the number that its input reports bear; 0 where they bear none
  USHORT iValues = 1;   ///< values in its input reports
  USHORT iButtons = 0;  ///< groups of buttons in its input reports
  bool bTells = true;   ///< its capabilities can be asked for
};

enum class HidQuestion { Attributes, Capabilities, Text, InputBuffers };

class HidSystem {
 public:
  /// The interface paths that are present, each ended by a NUL and all of them by one more, as much
  /// as iMost characters hold; the characters that all of it takes.
  virtual ULONG Paths(wchar_t* pPaths, ULONG iMost) = 0;

  /// What is told of the device at this handle; null when it does not answer.
  virtual const HidTold* Ask(HANDLE device, HidQuestion question) = 0;

 protected:
  ~HidSystem() = default;
};

/// The one operation that the stand-ins have and the system's own libraries do not.
constexpr char sSetHidSystem[] = "SetHidSystem";
using SetHidSystemCall = void(WINAPI*)(HidSystem*);

}  // namespace glidetrak
