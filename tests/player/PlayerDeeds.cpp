// The single acts of the player.

#include "common/SharedState.h"
#include "form/ControlTable.h"
#include "form/frmGlidetrak.h"
#include "player/Player.h"
#include "player/ProgramWriter.h"
#include "transcript/Clicks.h"

namespace glidetrak {

namespace {

constexpr const char* panelButtons[] = {"cmdManual",   "cmdProgram",   "cmdForward", "cmdBackward",
                                        "picTogTimer", "picTogImpact", "btnTmrReset"};

constexpr float fGrip = 360;  ///< where inside its picture the lever is held

/// Every control of the main form and its menu that a mouse can reach now.
QStringList ReachableControls() {
  QStringList aNames;
  for (const ControlRow& row : MainFormTable()) aNames.append(row.sName);
  for (const MenuRow& row : MenuTable()) aNames.append(row.sName);
  aNames.removeIf([](const QString& sName) { return !IsReachable(sName); });
  return aNames;
}

}  // namespace

void Player::ClickAny() {
  Click(m_dice.OneOf(ReachableControls()));
}

void Player::ClickPanel() {
  Click(m_dice.OneOf(panelButtons));
}

void Player::MoveMouse() {
  const QString sName = m_dice.OneOf(ReachableControls());
  Tell("mouse over " + sName);
  if (Control* pControl = FindControl(sName)) pControl->MouseMove(0, 10, 10);
}

void Player::DragLever() {
  if (m_dice.OnceIn(3)) Click("cmdManual");
  Tell("drag the lever");
  imgLever.MouseDown(mouseLeft, 900, fGrip);
  for (int i = m_dice.Between(1, 3); i > 0; --i) {
    m_invariants->BeginDrag();
    imgLever.MouseMove(mouseLeft, 900, fGrip + static_cast<float>(m_dice.Between(-2000, 2000)));
    m_invariants->EndDrag();
    if (m_iInside == 0 && m_dice.OnceIn(2)) m_station.platform.RunFor(m_dice.Between(1, 40));
  }
  imgLever.MouseUp(mouseLeft, 900, fGrip);
}

void Player::PressEmergency() {
  if (m_dice.OnceIn(2)) return Click("btnRstStop");
  Tell("emergency stop");
  btnEmergency.MouseDown(m_dice.OnceIn(2) ? mouseLeft : mouseRight, 10, 10);
}

void Player::PressKey() {
  int iCode = m_dice.OnceIn(6) ? 32 : m_dice.Between(8, 255);
  Tell(QString("key %1").arg(iCode));
  int iChar = iCode;
  int iUp = iCode;
  frmGlidetrak.KeyDown(iCode);
  frmGlidetrak.KeyPress(iChar);
  frmGlidetrak.KeyUp(iUp);
}

void Player::RunRandomProgram() {
  const bool bPowerBits = m_dice.OnceIn(8);
  if (bPowerBits) m_invariants->PowerBitsTouched();
  Click("cmdProgram");
  const QString sText = WriteProgram(m_dice, bPowerBits);
  Tell("program: " + QString(sText).replace("\r\n", " / "));
  txtProgram.SetText(sText);
  Scatter();
  Click(m_dice.OnceIn(4) ? "MNURUN" : "cmdRunProgram");
}

void Player::TraceRandomProgram() {
  Click("cmdProgram");
  if (m_dice.OnceIn(2)) {
    const QString sText = WriteProgram(m_dice, false);
    Tell("program: " + QString(sText).replace("\r\n", " / "));
    txtProgram.SetText(sText);
  }
  for (int i = m_dice.Between(1, 4); i > 0; --i) {
    Scatter();
    Click("cmdSingleStep");
    m_station.platform.RunFor(m_dice.Between(0, 60));
  }
}

void Player::ChangeInputs() {
  m_station.rig.lInput = m_dice.Between(0, 127);
  Tell(QString("inputs %1").arg(m_station.rig.lInput));
}

void Player::ChangeAnalog() {
  m_station.rig.lAnalog = m_dice.Between(-1, 15);
  Tell(QString("analog %1").arg(m_station.rig.lAnalog));
}

void Player::LoseLink() {
  Tell("the link is lost");
  m_station.rig.Detach();
  m_invariants->LinkDisturbed();
  if (m_station.rig.aDevices.empty()) return;
  constexpr HidMood moods[] = {HidMood::Vanished, HidMood::Vanished, HidMood::Silent,
                               HidMood::Locked};
  m_station.rig.aDevices[0].mood = m_dice.OneOf(moods);
}

void Player::BringLinkBack() {
  m_invariants->LinkDisturbed();
  const bool bUsb = m_dice.OnceIn(3);
  Tell(bUsb ? "the USB link is back" : "the parallel link is back");
  if (!bUsb) return m_station.rig.AttachParallel();
  if (m_station.rig.aDevices.empty()) m_station.rig.AttachUsb();
  m_station.rig.aDevices[0].mood = HidMood::Answers;
}

void Player::LoseLibrary() {
  m_invariants->LinkDisturbed();
  m_station.rig.bLibraryThere = !m_station.rig.bLibraryThere;
  Tell(m_station.rig.bLibraryThere ? "the library is there" : "the library is gone");
}

void Player::Wait() {
  const int iTime = m_dice.Between(1, 700);
  Tell(QString("wait %1").arg(iTime));
  if (m_dice.OnceIn(3)) Scatter();
  const int iActs = m_iActs;
  m_station.platform.RunFor(iTime);
  if (iTime >= 30 && m_iActs == iActs) m_invariants->CheckSettled();
}

void Player::WaitForRetry() {
  Tell("wait for the retry");
  m_station.platform.RunFor(5100);
}

void Player::ResizeWindow() {
  Tell("resize");
  frmGlidetrak.Width = static_cast<float>(m_dice.Between(5000, 40000));
  frmGlidetrak.Height = static_cast<float>(m_dice.Between(5000, 30000));
}

void Player::ShowDebugPanel() {
  Tell("debug panel");
  pnlDebug.Visible = !pnlDebug.Visible;
}

void Player::TryToClose() {
  Tell("try to close");
  bool bCancel = false;
  frmGlidetrak.QueryUnload(bCancel);
  if (!bCancel) Close();
}

}  // namespace glidetrak
