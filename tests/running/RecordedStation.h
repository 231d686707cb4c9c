#pragma once

#include <QList>
#include <csignal>

#include "RunningStation.h"

namespace glidetrak {

/// The station beside a library that writes each call of the rig down (recording/trackport32.cpp),
/// driven by hand while the start-up box is still there.
class RecordedStation : public RunningStation {
 public:
  RecordedStation() : RunningStation(GLIDETRAK_ENDS_FOLDER "/glidetrak") {
    SetVariable("GLIDETRAK_RECORD", Folder() + "/record");
    SetVariable("GLIDETRAK_MOOD", Folder() + "/mood");
  }

  /// Up to where the lever has power on the rig.
  bool Drive(const QStringList& aArguments = {}) {
    if (!Launch(aArguments)) return false;
    Drag(placeLeverFoot, placeLeverHigh);
    return WaitUntil([this] { return LastByte() > 0x10; });
  }

  void Send(int iSignal) { kill(static_cast<pid_t>(Pid()), iSignal); }

  /// Makes the library go wrong at the next tick.
  void SetMood(const QByteArray& mood) { WriteProgram("mood", mood); }

  /// The bytes that a process has written to the rig, in their order; of the station without one.
  QList<int> Bytes(qint64 lPid = 0) const {
    const QByteArray head = QByteArray::number(lPid == 0 ? m_lPid : lPid) + " WriteAdapter ";
    QList<int> aBytes;
    for (const QByteArray& line : Read("record").split('\n')) {
      if (line.startsWith(head)) aBytes.append(line.mid(head.size()).toInt());
    }
    return aBytes;
  }
  int LastByte() const { return Bytes().isEmpty() ? -1 : Bytes().last(); }

  bool Launch(const QStringList& aArguments = {}) {
    const bool bStarted = RunningStation::Launch(aArguments);
    m_lPid = Pid();
    return bStarted;
  }

 private:
  qint64 m_lPid = 0;  ///< also when the process is gone
};

}  // namespace glidetrak
