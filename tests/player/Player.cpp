#include "player/Player.h"

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "transcript/Clicks.h"

namespace glidetrak {

namespace {

constexpr int iPatience = 1500;  ///< milliseconds that a program may take
constexpr int iNudge = 250;      ///< between two attempts to stop it

bool StartsARun(const QString& sName) {
  return sName == "cmdRunProgram" || sName == "MNURUN";
}

}  // namespace

Player::Player(quint64 lSeed) : m_dice(lSeed) {}

const std::vector<Player::Deed>& Player::Deeds() {
  static const std::vector<Deed> aDeeds{
      {"click anything", 10, &Player::ClickAny, true},
      {"click the panel", 12, &Player::ClickPanel, true},
      {"move the mouse", 3, &Player::MoveMouse, true},
      {"drag the lever", 14, &Player::DragLever, true},
      {"emergency", 5, &Player::PressEmergency, true},
      {"key", 4, &Player::PressKey, true},
      {"run", 10, &Player::RunRandomProgram, false},
      {"trace", 4, &Player::TraceRandomProgram, false},
      {"inputs", 8, &Player::ChangeInputs, true},
      {"analog", 3, &Player::ChangeAnalog, true},
      {"lose the link", 3, &Player::LoseLink, true},
      {"bring the link back", 5, &Player::BringLinkBack, true},
      {"lose or find the library", 1, &Player::LoseLibrary, true},
      {"wait", 14, &Player::Wait, false},
      {"wait for the retry", 1, &Player::WaitForRetry, false},
      {"resize", 1, &Player::ResizeWindow, true},
      {"debug panel", 1, &Player::ShowDebugPanel, true},
      {"close", 1, &Player::TryToClose, true},
  };
  return aDeeds;
}

const Player::Deed& Player::ChooseDeed(bool bInside) {
  int iAll = 0;
  for (const Deed& deed : Deeds()) iAll += deed.bInside || !bInside ? deed.iWeight : 0;
  int iThrow = m_dice.Between(1, iAll);
  for (const Deed& deed : Deeds()) {
    if (bInside && !deed.bInside) continue;
    iThrow -= deed.iWeight;
    if (iThrow <= 0) return deed;
  }
  return Deeds().front();
}

QString Player::Play() {
  try {
    Start();
    for (int i = m_dice.Between(4, 14); i > 0 && m_invariants->Violation().isEmpty(); --i) {
      Act(false);
      m_invariants->CheckIdle();
    }
    Close();
  } catch (const ProcessEnded&) {
    m_invariants->EndClose();
  } catch (...) {
    m_invariants->Expect(false, "no event handler lets an exception out");
  }
  return m_invariants->Violation();
}

void Player::Start() {
  constexpr RigLink links[] = {RigLink::Parallel, RigLink::Parallel, RigLink::Usb, RigLink::None};
  m_link = m_dice.OneOf(links);
  bDebugMode = m_dice.OnceIn(4);
  m_station.Start(m_link);
  m_station.platform.iBoxMilliseconds = m_dice.OnceIn(3) ? m_dice.Between(1, 1500) : 0;
  m_invariants = std::make_unique<Invariants>(m_station);
  m_invariants->LinkDisturbed();
  m_station.platform.OnPump = [this] {
    m_invariants->CheckAtRest();
    StopWhatRunsTooLong();
  };
  m_station.platform.OnBox = [this](const VirtualBox& box) { Tell("box: " + box.sText.left(40)); };
  Tell(QString("start, link %1, boxes %2 ms")
           .arg(static_cast<int>(m_link))
           .arg(m_station.platform.iBoxMilliseconds));
}

void Player::Act(bool bInside) {
  if (m_bClosing) return;
  ++m_iActs;
  if (!bInside) m_lPatience = m_station.platform.lNow + iPatience;
  m_station.platform.defaultAnswer = m_dice.OnceIn(2) ? BoxAnswer::Yes : BoxAnswer::No;
  const Deed& deed = ChooseDeed(bInside);
  m_iInside += bInside ? 1 : 0;
  (this->*deed.act)();
  m_iInside -= bInside ? 1 : 0;
  m_invariants->CheckAtRest();
}

void Player::Tell(const QString& sWhat) {
  m_aStory.append(QString("%1 %2%3")
                      .arg(m_station.platform.lNow - 1'000'000, 8)
                      .arg(QString(2 * m_iInside, u' '), sWhat));
}

/// A program that waits for a key or loops is stopped in the end.
void Player::StopWhatRunsTooLong() {
  if (!bProgramRunning || m_bClosing || m_station.platform.lNow < m_lPatience) return;
  m_lPatience = m_station.platform.lNow + iNudge;
  Tell("click btnStopProg, out of patience");
  frmGlidetrak.Visible = true;
  btnStopProg.Click();
}

/// Acts that will come inside what runs next.
void Player::Scatter() {
  for (int i = m_dice.Between(0, 4); i > 0; --i) {
    m_station.After(m_dice.Between(1, 800), [this] { Act(true); });
  }
}

void Player::Click(const QString& sName) {
  if (!IsReachable(sName)) return;
  Tell("click " + sName);
  const bool bRun = StartsARun(sName);
  m_invariants->BeginProgram(bRun);
  m_station.Click(sName);
  m_invariants->EndProgram();
}

void Player::Close() {
  Tell("close");
  m_bClosing = true;
  m_invariants->BeginClose();
  frmGlidetrak.FormUnload();
  m_invariants->Expect(false, "closing ends the process");
}

}  // namespace glidetrak
