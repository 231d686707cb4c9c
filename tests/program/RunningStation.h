#pragma once

// The built station on a display of its own, with the bench rig: started, clicked and typed at like
// a user would, and watched through its windows, its files and the rig's state.

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>

namespace glidetrak {

/// A point of the main window at its smallest size, in pixels.
struct Place {
  int iX;
  int iY;
};

constexpr Place placeManual{348, 291};
constexpr Place placeProgram{507, 291};
constexpr Place placeBackward{531, 460};
constexpr Place placeEmergency{522, 600};
constexpr Place placeReset{568, 573};
constexpr Place placeLeverFoot{324, 595};
constexpr Place placeLeverTop{324, 427};
constexpr Place placeTimingToggle{61, 340};
constexpr Place placeEditor{720, 450};
constexpr Place placeShowPresets{898, 313};
constexpr Place placeCommands{898, 419};
constexpr Place placeRun{898, 477};
constexpr Place placeStop{898, 505};

class RunningStation {
 public:
  /// Starts the display; the station is started by Start. Every test has folders of its own.
  RunningStation();
  ~RunningStation();

  /// Starts the station and waits until its start-up box has gone. False when it did not come up.
  bool Start(const QStringList& aArguments = {});
  /// Starts another copy in the same session.
  bool StartSecondCopy(QProcess& process);

  bool IsRunning() const { return m_station.state() == QProcess::Running; }
  bool WaitForEnd(int iMilliseconds = 5000) { return m_station.waitForFinished(iMilliseconds); }
  /// It ended by its own end of process and not by a signal.
  bool EndedByItself() const {
    return m_station.exitStatus() == QProcess::NormalExit && m_station.exitCode() == 0;
  }
  qint64 Pid() const { return m_station.processId(); }

  void Click(Place place);
  void MoveTo(Place place);
  void Drag(Place from, Place to);
  /// Keys by their X names, as xdotool takes them.
  void Key(const QString& sKeys);
  void Type(const QString& sText);
  /// Asks the main window to close, as its close box would.
  void CloseWindow();

  /// Waits for a visible window of that title; false after five seconds.
  bool HasWindow(const QString& sTitle);
  /// "x y width height" of the window of that title.
  QString Geometry(const QString& sTitle);

  /// Waits until the rig's state holds that line; false after five seconds.
  bool RigShows(const QString& sLine);
  QString Rig(const QStringList& aArguments);

  /// Writes the root window's picture beside the test's results.
  void Picture(const QString& sName);

  QString Folder() const { return m_folder.path(); }
  QString WriteProgram(const QString& sName, const QByteArray& text);
  QProcessEnvironment Environment() const { return m_environment; }

 private:
  QString Output(const QString& sProgram, const QStringList& aArguments);
  bool WaitForDisplay();

  QTemporaryDir m_folder;
  QProcessEnvironment m_environment;
  QProcess m_display;
  QProcess m_station;
};

/// Lets real time go by.
void Wait(int iMilliseconds);

}  // namespace glidetrak
