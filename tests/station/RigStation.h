#pragma once

// A station at rest with its rig at the wire: what the tests of the link, of the track and of the
// player start.

#include <QStringList>

#include "station/Station.h"

namespace glidetrak {

/// The state label's two texts.
inline const QString sDetected = "Glidetrak interface detected";
inline const QString sNotDetected = "Glidetrak interface not detected";

class RigStation : public Station {
 public:
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
};

}  // namespace glidetrak
