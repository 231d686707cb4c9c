#pragma once

// The virtual platform with hooks at the clock and at the parallel library, which a rig's test
// watches or disturbs. Those of the HID devices are VirtualRig's own.

#include <map>

#include "virtual/VirtualPlatform.h"

namespace glidetrak {

class WatchedPlatform : public VirtualPlatform {
 public:
  /// Ahead of each call of the library.
  std::function<void(const QByteArray&)> OnCall;

  /// What these operations of the library return, whatever the rig would.
  std::map<QByteArray, qint32> aResults;

  int iClockReads = 0;
  int iFailingClockRead = -1;  ///< the reading, counted from 1, that raises an error
  std::function<void()> OnClockRead;

  qint32 GetTickCount() override {
    if (++iClockReads == iFailingClockRead) throw RuntimeError(Fault::PlatformCall);
    if (OnClockRead) OnClockRead();
    return VirtualPlatform::GetTickCount();
  }

  qint32 CallTrackport(const char* sOperation, std::initializer_list<qint32> arguments) override {
    if (OnCall) OnCall(sOperation);
    const qint32 lResult = VirtualPlatform::CallTrackport(sOperation, arguments);
    const auto found = aResults.find(sOperation);
    return found == aResults.end() ? lResult : found->second;
  }
};

}  // namespace glidetrak
