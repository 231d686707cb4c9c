#pragma once

// The virtual platform with hooks at those calls of the machine that a rig's test watches or
// disturbs.

#include <map>
#include <vector>

#include "virtual/VirtualPlatform.h"

namespace glidetrak {

class WatchedPlatform : public VirtualPlatform {
 public:
  /// Ahead of each search for HID devices, of each opening and of each call of the library.
  std::function<void()> OnEnumerate;
  std::function<void(const QByteArray&)> OnOpen;
  std::function<void(const QByteArray&)> OnCall;

  /// False where a device cannot be opened this time; empty where all can.
  std::function<bool()> MayOpen;

  /// Changes an input report that a read has just brought; its first byte is the report id.
  std::function<void(QByteArray&)> OnReply;

  /// What these operations of the library return, whatever the rig would.
  std::map<QByteArray, qint32> aResults;

  std::vector<QByteArray> aOpenedPaths;  ///< of each attempt to open
  std::vector<qint32> aWriteHandles;     ///< of each report written
  std::vector<qint32> aReadHandles;      ///< of each read
  std::vector<qint32> aReadTimeOuts;     ///< of each read, in milliseconds
  std::vector<qsizetype> aReadLengths;   ///< of each read's buffer

  int iClockReads = 0;
  int iFailingClockRead = -1;  ///< the reading, counted from 1, that raises an error
  std::function<void()> OnClockRead;

  qint32 GetTickCount() override {
    if (++iClockReads == iFailingClockRead) throw RuntimeError(Fault::PlatformCall);
    if (OnClockRead) OnClockRead();
    return VirtualPlatform::GetTickCount();
  }

  std::vector<HidListing> HidDevices() override {
    if (OnEnumerate) OnEnumerate();
    return VirtualPlatform::HidDevices();
  }

  qint32 HidOpen(const QByteArray& path) override {
    aOpenedPaths.push_back(path);
    if (OnOpen) OnOpen(path);
    return MayOpen && !MayOpen() ? 0 : VirtualPlatform::HidOpen(path);
  }

  qint32 HidWrite(qint32 lHandle, const QByteArray& report) override {
    aWriteHandles.push_back(lHandle);
    return VirtualPlatform::HidWrite(lHandle, report);
  }

  HidReadResult HidRead(qint32 lHandle, qint32 lTimeOut, QByteArray& report) override {
    aReadHandles.push_back(lHandle);
    aReadTimeOuts.push_back(lTimeOut);
    aReadLengths.push_back(report.size());
    const HidReadResult result = VirtualPlatform::HidRead(lHandle, lTimeOut, report);
    if (result == HidReadResult::Success && OnReply) OnReply(report);
    return result;
  }

  qint32 CallTrackport(const char* sOperation, std::initializer_list<qint32> arguments) override {
    if (OnCall) OnCall(sOperation);
    const qint32 lResult = VirtualPlatform::CallTrackport(sOperation, arguments);
    const auto found = aResults.find(sOperation);
    return found == aResults.end() ? lResult : found->second;
  }
};

}  // namespace glidetrak
