#pragma once

// Plays one short random sequence: a user at all controls, programs, the rig's inputs, links that
// come and go, and in the end the closing of the window.

#include <QStringList>
#include <memory>

#include "player/Dice.h"
#include "player/Invariants.h"
#include "station/RigStation.h"

namespace glidetrak {

class Player {
 public:
  explicit Player(quint64 lSeed);

  /// Returns the first violation, "" if there was none. The process has played its part then: the
  /// station's state is not put back.
  QString Play();

  /// What was done, an act a line with its virtual time.
  const QStringList& Story() const { return m_aStory; }

 private:
  struct Deed {
    const char* sName;
    int iWeight;
    void (Player::*act)();
    bool bInside;  ///< may also come inside a pump of another act
  };
  static const std::vector<Deed>& Deeds();
  const Deed& ChooseDeed(bool bInside);

  void Start();
  void Act(bool bInside);
  void Scatter();
  void StopWhatRunsTooLong();
  void Tell(const QString& sWhat);
  void Click(const QString& sName);
  void Close();

  void ClickAny();
  void ClickPanel();
  void MoveMouse();
  void DragLever();
  void PressEmergency();
  void PressKey();
  void RunRandomProgram();
  void TraceRandomProgram();
  void ChangeInputs();
  void ChangeAnalog();
  void LoseLink();
  void BringLinkBack();
  void LoseLibrary();
  void Wait();
  void WaitForRetry();
  void ResizeWindow();
  void ShowDebugPanel();
  void TryToClose();

  Dice m_dice;
  RigStation m_station;
  std::unique_ptr<Invariants> m_invariants;
  QStringList m_aStory;
  RigLink m_link = RigLink::None;
  qint64 m_lPatience = 0;  ///< until then a program may run
  int m_iActs = 0;         ///< so far
  int m_iInside = 0;       ///< acts under way inside another
  bool m_bClosing = false;
};

}  // namespace glidetrak
