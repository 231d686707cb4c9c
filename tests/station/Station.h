#pragma once

// A started station on the virtual platform, and what a test does to it and asks of it.

#include <QString>
#include <initializer_list>
#include <vector>

#include "station/Print.h"
#include "station/WatchedPlatform.h"
#include "strings/LanguageFunctions.h"
#include "strings/ResourceStrings.h"

namespace glidetrak {

enum class RigLink { None, Parallel, Usb };

/// Joins the lines with CR LF; the last one gets none.
QString Lines(std::initializer_list<QString> aLines);

/// The English text of an id, whatever language the station speaks.
QString English(int iId);

class Station {
 public:
  WatchedPlatform platform;
  VirtualRig& rig = platform.rig;

  void Attach(RigLink link);

  /// The start-up with that adapter attached. What it wrote and showed by itself is forgotten.
  void Start(RigLink link = RigLink::None, const QString& sCommandLine = {});

  /// Puts the station into Program mode, where the program's buttons can be reached.
  void EnterProgramMode();

  /// Gives the editor a new text, as a load does.
  void SetProgram(const QString& sText);

  /// The same and a click on Run; returns when the program has ended.
  void RunProgram(const QString& sText);

  /// A click as with the mouse: nothing happens to what is hidden or disabled.
  void Click(const QString& sName);

  /// A key code sent to the form; the code that is left of it.
  int KeyDown(int iKeyCode);
  /// A character code sent to the form; the code that is left of it.
  int KeyPress(int iCharCode);

  /// Once, that many milliseconds from now.
  void After(qint64 lMilliseconds, std::function<void()> action);

  QStringList BoxTexts() const;
  std::vector<qint32> WrittenBytes() const;

  /// How often the parallel library's operation of that name was called.
  int Calls(const QByteArray& operation) const;

  /// The boxes, the written bytes and the calls so far are forgotten.
  void Forget();
};

}  // namespace glidetrak
