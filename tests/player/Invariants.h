#pragma once

// What holds whatever the user, a program, the rig and the link do. The first thing that does not
// is kept; nothing is thrown, since most of it is found deep inside the station's own calls.
//
// "Sound" is a link over which each exchange succeeds. What the rig was sent last is known from the
// first byte behind a disturbance on: a byte that was lost is not sent again, deliberately.

#include <QString>
#include <memory>
#include <vector>

#include "station/RigStation.h"

namespace glidetrak {

class Invariants {
 public:
  /// Watches a station that has started.
  explicit Invariants(RigStation& station);

  /// The first violation, "" while there is none.
  const QString& Violation() const { return m_sViolation; }
  void Expect(bool bHolds, const QString& sWhat);

  // Told by the player.
  void LinkDisturbed() { m_bWireKnown = false; }
  void PowerBitsTouched() { m_bPowerBits = true; }

  /// A click that may start a run or a Trace step. A run that really started ends with power 0 on
  /// the wire; a Trace does not.
  void BeginProgram(bool bRun);
  void EndProgram();

  /// A move of the lever with the left button held.
  void BeginDrag();
  void EndDrag();

  void BeginClose();
  void EndClose();

  /// At each pump and behind each act.
  void CheckAtRest();
  /// With no program, box or shut-down under way.
  void CheckIdle();
  /// Behind a tick, with no act since.
  void CheckSettled();

 private:
  struct Program {
    bool bRun;
    bool bStarted;
  };

  using Handler = std::function<void()>;

  void WatchWire();
  void WatchPanel();
  void WatchTimer(Timer& timer, std::function<void(const Handler&)> fire);
  void FireTick(const Handler& handler);
  void CountTick(const Handler& handler);
  void FireRetry(const Handler& handler);
  void Written(qint32 lByte);
  bool IsSound() const;
  /// The rig was sent power 0 in this very millisecond; holds where nothing could be sent.
  bool StoppedNow() const;
  void CheckPower();
  void CheckLever();
  void CheckLink();
  void CheckUnlocked();

  RigStation& m_station;
  QString m_sViolation;
  std::vector<QPropertyNotifier> m_aNotifiers;
  std::vector<Program> m_aPrograms;  ///< the clicks under way, the innermost last
  int m_iTicks = 0;                  ///< tick handlers under way
  bool m_bRetrying = false;
  bool m_bWireKnown = false;
  bool m_bPowerBits = false;
  bool m_bDragging = false;
  bool m_bUnsnapped = false;  ///< the lever was last moved by a drag
  bool m_bClosing = false;
  bool m_bSoundAtClose = false;
  float m_fTopBeforeDrag = 0;
  bool m_bMayDrag = false;
};

}  // namespace glidetrak
