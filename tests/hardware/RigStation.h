#pragma once

// A station with its rig at the wire: what the tests of the link, of the track and of the player
// start, do and ask.

#include <QStringList>
#include <vector>

#include "hardware/WatchedPlatform.h"
#include "station/Print.h"

namespace glidetrak {

enum class RigLink { None, Parallel, Usb };

/// The state label's two texts.
inline const QString sDetected = "Glidetrak interface detected";
inline const QString sNotDetected = "Glidetrak interface not detected";

class RigStation {
 public:
  WatchedPlatform platform;
  VirtualRig& rig = platform.rig;

  void Attach(RigLink link);

  /// The whole start-up with that rig attached, up to the closing of the start-up box. What it
  /// wrote and showed is forgotten, and the intervals of the tick and of the retry start at its
  /// end.
  void Start(RigLink link = RigLink::Parallel);
  /// The same with the rig as it stands.
  void StartUp();

  /// Program mode with that text in the editor; the zero byte of the mode change is forgotten.
  void EnterProgram(const QStringList& aLines);

  /// The same and a click on Run; returns when the program has ended.
  void Run(const QStringList& aLines);

  void Click(const QString& sName);

  /// Once, that many milliseconds from now.
  void After(qint64 lMilliseconds, std::function<void()> action);

  std::vector<qint32> WrittenBytes() const;
  QStringList BoxTexts() const;

  /// How often the library's operation of that name was called.
  int Calls(const QByteArray& operation) const;

  void Forget();
};

}  // namespace glidetrak
