#pragma once

// The machine and the desktop of the tests: time moves only when the station pumps or waits, boxes
// are answered from a list, and what reaches the rig's wire is recorded.

#include <QHash>
#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <set>
#include <vector>

#include "platform/Platform.h"
#include "virtual/VirtualRig.h"
#include "virtual/VirtualTimers.h"

namespace glidetrak {

/// Unwinds where a real process would end. No RuntimeError: no failure rule catches it.
struct ProcessEnded {};

struct VirtualBox {
  QString sText;
  QString sTitle;
  BoxIcon icon;
  BoxButtons buttons;
  BoxAnswer answer;
  qint64 lTime;  ///< virtual milliseconds at which it opened
  BoxPlace place;
};

class VirtualPlatform : public Machine, public Desktop {
 public:
  /// Becomes pMachine and pDesktop, its rig becomes pHid. The forms are reset first, so that the
  /// timers start anew.
  VirtualPlatform();
  ~VirtualPlatform() override;

  // The clock.
  qint64 lNow = 1'000'000;
  /// Lets that many milliseconds go by in an idle event loop.
  void RunFor(int iMilliseconds);
  /// Called once at a time of the clock, behind the timers that are due then.
  void At(qint64 lTime, std::function<void()> action);
  /// Runs the actions that are due by now; a pump does it too.
  void RunDueActions();
  /// Called at each pump, ahead of everything else.
  std::function<void()> OnPump;
  /// Counts the pumps and the passes of waits; null when nobody watches.
  std::atomic<qint64>* pPasses = nullptr;
  /// The next reading of the clock raises this fault.
  std::optional<Fault> clockFault;

  // Boxes and sound.
  std::vector<VirtualBox> aBoxes;
  std::deque<BoxAnswer> aAnswers;            ///< of the next question boxes, the first first
  BoxAnswer defaultAnswer = BoxAnswer::Yes;  ///< of a question box when aAnswers is empty
  int iBoxMilliseconds = 0;                  ///< how long each box stays open, pumping
  int iOpenBoxes = 0;
  int iBeeps = 0;
  std::function<void(const VirtualBox&)> OnBox;  ///< when it opens
  std::function<void()> OnBeep;

  // Files, by upper-case station path.
  void AddFile(const QString& sPath, const QByteArray& bytes, int iAttributes = 0);
  std::set<QString> aUnreadable;

  std::set<QString> aUnwritable;
  std::set<QString> aUndeletable;
  /// The bytes of a file; nothing when it is not there.
  std::optional<QByteArray> FileBytes(const QString& sPath) const;
  QString sExecutableFolder = "\\STATION";
  QString sCurrentFolder;
  std::optional<QString> sDocuments = "\\DOCUMENTS";

  // Settings and language.
  QHash<QString, qint32> aNumbers[2];    ///< by scope: "key\\name"
  QHash<QString, QString> aSettings[2];  ///< by scope: "KEY\\NAME" in upper case
  bool bScopeWritable[2] = {true, true};
  int iUserLanguage = 1033;

  // Monitors and the window; each is told or not.
  std::optional<PixelRect> monitor = PixelRect{0, 0, 1920, 1080};
  std::optional<PixelRect> workArea = PixelRect{0, 0, 1920, 1040};
  bool bNormalRectKnown = true;
  bool bWindowRectKnown = true;
  bool bMainWindowActive = true;
  bool bFirstCopy = true;
  int iOtherCopyActivated = 0;

  // The rig; nothing is attached at first.
  VirtualRig rig{&lNow};

  qint32 GetTickCount() override;
  void SpinOnce() override;
  [[noreturn]] void EndProcess() override;
  QByteArray ReadFile(const QString& sPath) override;
  void WriteFile(const QString& sPath, const QByteArray& bytes) override;
  void DeleteFile(const QString& sPath) override;
  QString CommandLine() override { return {}; }
  QString ExecutableFolder() override { return sExecutableFolder; }
  void SetCurrentFolder(const QString& sPath) override { sCurrentFolder = sPath; }
  QString NativePath(const QString& sStationPath) override { return sStationPath; }
  QString StationPath(const QString& sNativePath) override { return sNativePath; }
  QString DocumentsFolder() override;
  QString ReadSetting(Scope scope, const QString& sKey, const QString& sName) override;
  bool WriteSetting(Scope scope, const QString& sKey, const QString& sName,
                    const QString& sValue) override;
  std::optional<QByteArray> ConfigurationValue(const QString& sSection, const QString& sKey,
                                               const QString& sPath) override;
  bool TakeSingleInstance() override { return bFirstCopy; }
  void ActivateOtherCopy() override { ++iOtherCopyActivated; }
  int FileAttributes(const QString& sPath) override;
  std::optional<qint32> ReadRegistryNumber(Scope scope, const QString& sKey,
                                           const QString& sName) override;
  int UserDefaultLanguage() override;
  QString LongTime() override;
  qint32 CallTrackport(const char* sOperation, std::initializer_list<qint32> arguments) override;

  void PumpEvents() override;
  BoxAnswer ShowBox(const QString& sText, const QString& sTitle, BoxIcon icon, BoxButtons buttons,
                    BoxPlace place = BoxPlace::Middle) override;
  void Beep() override;
  std::optional<PixelRect> NearestMonitor() override { return monitor; }
  std::optional<PixelRect> WorkArea() override { return workArea; }
  std::optional<PixelRect> NormalRect() override;
  std::optional<PixelRect> WindowRect() override;
  void MoveWindow(qint32 lLeft, qint32 lTop) override;
  bool IsMainWindowActive() override { return bMainWindowActive; }

 private:
  struct File {
    QByteArray bytes;
    int iAttributes;
  };
  struct Action {
    qint64 lTime;
    std::function<void()> action;
  };

  const File& FindFile(const QString& sPath) const;
  BoxAnswer NextAnswer(BoxButtons buttons);
  void LetMillisecondGoBy();
  void WatchWindow();

  QHash<QString, File> m_aFiles;
  std::deque<Action> m_aActions;  ///< by time, equal times in the order in which they came
  std::unique_ptr<VirtualTimers> m_timers;
  QPropertyNotifier m_widthNotifier;
  QPropertyNotifier m_heightNotifier;
};

}  // namespace glidetrak
