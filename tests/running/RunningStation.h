#pragma once

// The built station on a display of its own, with a bench rig of its own: started, clicked and
// typed at like a user would, and watched through its windows, its files, and the rig's state and
// record. The rig is a process that the station's end does not touch.

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>
#include <ostream>

/// A failed comparison of files shows their text.
inline void PrintTo(const QByteArray& text, std::ostream* pStream) {
  *pStream << '"' << text.toStdString() << '"';
}

namespace glidetrak {

/// A point of the main window at its smallest size, in pixels.
struct Place {
  int iX;
  int iY;
};

constexpr Place placeRigPicture{700, 150};  ///< a click there does nothing
constexpr Place placeManual{348, 291};
constexpr Place placeProgram{507, 291};
constexpr Place placeBackward{531, 460};
constexpr Place placeEmergency{522, 600};
constexpr Place placeReset{568, 573};
constexpr Place placeLeverFoot{324, 595};
constexpr Place placeLeverTop{324, 427};
constexpr Place placeLeverHigh{324, 480};  ///< below the start-up box
constexpr Place placeTimingToggle{61, 340};
constexpr Place placeEditor{720, 450};
constexpr Place placeShowPresets{898, 313};
constexpr Place placeCommands{898, 419};
constexpr Place placeTrace{898, 448};
constexpr Place placeRun{898, 477};
constexpr Place placeStop{898, 505};
constexpr Place placeProgramMenu{93, 9};
constexpr Place placePickerSelect{658, 239};
constexpr Place placePickerClose{658, 271};
constexpr Place placeDebugClose{621, 22};

/// The entry of that number, from 1, in the open list of pre-sets.
constexpr Place PlaceOfPreset(int iNumber) {
  return {898, 343 + 24 * (iNumber - 1)};
}

/// A line in view of the picker's list, from 1.
constexpr Place PlaceOfCommand(int iLine) {
  return {300, 239 + 13 * (iLine - 1)};
}

/// The middle of a lamp of the debug panel.
constexpr Place PlaceOfInputLamp(int iBit) {
  return {307, 53 + iBit * 135 / 7};
}
constexpr Place PlaceOfOutputLamp(int iBit) {
  return {591, 53 + iBit * 135 / 7};
}

/// first.gtp as StartWithChanges writes it, and with the changes.
inline const QByteArray firstText = "HALT\r\n";
inline const QByteArray firstChanged = "BEEP\r\nHALT\r\n";

/// The entries of the File menu.
enum FileEntry { entryNew, entryOpen, entrySave, entrySaveAs };

class RunningStation {
 public:
  /// Starts the display; the station is started by Start, by default that of the run folder. Every
  /// test has folders of its own.
  explicit RunningStation(QString sStation = GLIDETRAK_STATION);
  ~RunningStation();

  /// Starts the station, up to its window; the start-up box comes next. Serves the rig first when
  /// none is served yet. False without a window.
  bool Launch(const QStringList& aArguments = {});
  /// The same, up to where the start-up box was closed.
  bool Start(const QStringList& aArguments = {});
  /// Closes the start-up box as soon as it is there, by its picture.
  bool CloseStartupBox();
  /// Starts with first.gtp and types changes that are not saved.
  bool StartWithChanges();
  /// Starts another copy for the same user.
  bool StartSecondCopy(QProcess& process);

  bool IsRunning() const { return m_station.state() == QProcess::Running; }
  bool WaitForEnd(int iMilliseconds = 5000) { return m_station.waitForFinished(iMilliseconds); }
  /// It ended by its own end of process and not by a signal.
  bool EndedByItself() const {
    return m_station.exitStatus() == QProcess::NormalExit && m_station.exitCode() == 0;
  }
  /// The signal by which it died; 0 when none did.
  int KilledBy() const {
    return m_station.exitStatus() == QProcess::CrashExit ? m_station.exitCode() : 0;
  }
  qint64 Pid() const { return m_station.processId(); }
  /// Ends the station without its knowledge.
  void Kill();

  void Click(Place place);
  /// The same where a window manager has put the window, and a frame around it.
  void ClickInWindow(Place place);
  void MoveTo(Place place);
  void Drag(Place from, Place to);
  /// Keys by their X names, as xdotool takes them.
  void Key(const QString& sKeys);
  void Type(const QString& sText);
  /// An entry of the File menu, which opens with its first entry lit. The window is clicked first:
  /// without a window manager nothing else gives it the keys again after a dialog.
  void ChooseFileEntry(FileEntry entry, const QString& sMenuKeys = "alt+f");
  /// Exit of the File menu.
  void AskToLeave();
  void AnswerYes();
  void AnswerNo();
  /// Gives the file dialog that is open a name in place of the one it offers.
  void GiveName(const QString& sName);
  /// Saves under a new name by an entry that asks for one; what stands in the file then, or a word
  /// about what went wrong.
  QByteArray SaveText(FileEntry entry, const QString& sName);
  /// Types in front of the program's text.
  void TypeAtTop(const QString& sText);
  /// Puts a window manager on the display; without one there are no frames and no states.
  bool StartWindowManager();
  /// Presses the window's own close box.
  void PressCloseBox();
  /// Cuts the window's own connection to the display, as a desktop's force quit does.
  void KillWindow();
  void KillDisplay() { m_display.kill(); }
  void Maximise();
  void Minimise();
  void MoveWindow(Place corner);
  void SizeWindow(int iWidth, int iHeight);

  /// Waits for a visible window whose title holds that; false when that takes too long.
  bool HasWindow(const QString& sTitle);
  /// Waits for the last such window to go; false when that takes too long.
  bool HasNoWindow(const QString& sTitle);
  /// "x y width height" of the window of that title.
  QString Geometry(const QString& sTitle);
  /// The same of each such window, without waiting.
  QStringList Geometries(const QString& sTitle);
  /// The colour of that point of the screen, "#RRGGBB".
  QString ColourAt(Place place);
  /// Waits until that point has that colour; false when that takes too long.
  bool ShowsColour(Place place, const QString& sColour);

  /// Waits until the rig's state holds that line; false when that takes too long.
  bool RigShows(const QString& sLine);
  QString Rig(const QStringList& aArguments);
  /// Serves the rig again, a new one at its city station; false when it does not come.
  bool ServeRig();
  /// Ends the rig without its knowledge; its socket stays behind.
  void KillRig();
  qint64 RigPid() const { return m_rig.processId(); }
  /// The bytes that the rig was handed since it was served, the last thousand of them.
  QList<int> BytesWritten();
  /// -1 when there is none.
  int LastByteWritten();

  /// Writes the root window's picture beside the test's results.
  void Picture(const QString& sName);

  QString Folder() const { return m_folder.path(); }
  /// Writes a file into the test's folder and tells its path.
  QString WriteProgram(const QString& sName, const QByteArray& text);
  /// What stands in a file of the test's folder, or a word that it is not there.
  QByteArray Read(const QString& sName) const;
  /// What stands in a file that comes with the station.
  static QByteArray ReadDelivered(const QString& sName);
  QProcessEnvironment Environment() const { return m_environment; }
  /// An environment variable of what is started from now on.
  void SetVariable(const QString& sName, const QString& sValue) {
    m_environment.insert(sName, sValue);
  }

 private:
  QString Output(const QString& sProgram, const QStringList& aArguments);
  QString MainWindow();
  QString WindowGeometry(const QString& sWindow);
  bool WaitForDisplay();

  const QString m_sStation;
  QTemporaryDir m_folder;
  QProcessEnvironment m_environment;
  QProcess m_display;
  QProcess m_windowManager;
  QProcess m_rig;
  QProcess m_station;
};

/// Lets real time go by.
void Wait(int iMilliseconds);

constexpr int iPatience = 10000;  ///< milliseconds that anything may take to show

/// False when the condition does not come to hold within iPatience.
template <class Condition>
bool WaitUntil(Condition condition) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < iPatience) {
    if (condition()) return true;
    Wait(50);
  }
  return false;
}

}  // namespace glidetrak
