#include "player/Invariants.h"

#include <cmath>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "track/EmergencyStop.h"
#include "track/InputDecoding.h"
#include "track/OutputImage.h"

namespace glidetrak {

namespace {

constexpr int iPowerBits = 15;

double PlaceOf(int iLevel) {
  return 2230 + (15 - iLevel) * 168.66666666666666;
}

}  // namespace

Invariants::Invariants(RigStation& station) : m_station(station) {
  WatchWire();
  WatchPanel();
  WatchTimer(tmrSystem, [this](const Handler& handler) { FireTick(handler); });
  WatchTimer(tmrReconnect, [this](const Handler& handler) { FireRetry(handler); });
  WatchTimer(tmrEmergencyFlash, [](const Handler& handler) { handler(); });
}

void Invariants::Expect(bool bHolds, const QString& sWhat) {
  if (!bHolds && m_sViolation.isEmpty()) m_sViolation = sWhat;
}

void Invariants::WatchWire() {
  m_station.rig.OnWrite = [this](qint32 lByte) { Written(lByte); };
  m_station.platform.OnPump = [this] { CheckAtRest(); };
}

void Invariants::WatchPanel() {
  m_aNotifiers.push_back(pnlProgramBox.Visible.addNotifier([this] {
    Expect(StoppedNow(), "a change of mode puts power 0 on the wire");
    Expect(iPower == 0, "a change of mode stops the motor");
  }));
  m_aNotifiers.push_back(imgLever.Top.addNotifier([this] { m_bUnsnapped = m_bDragging; }));
  m_aNotifiers.push_back(bProgramRunning.addNotifier([this] {
    if (bProgramRunning && !m_aPrograms.empty()) m_aPrograms.back().bStarted = true;
  }));
}

void Invariants::WatchTimer(Timer& timer, std::function<void(const Handler&)> fire) {
  const Handler handler = timer.Fired.Function();
  timer.Fired = [this, fire, handler] {
    try {
      fire(handler);
    } catch (const ProcessEnded&) {
      throw;
    } catch (...) {
      Expect(false, "no timer handler lets an exception out");
    }
  };
}

void Invariants::FireTick(const Handler& handler) {
  const bool bLatched = bEmergencyStop;
  const size_t iWritten = m_station.rig.aWritten.size();
  const size_t iBoxes = m_station.platform.aBoxes.size();
  CountTick(handler);
  // Under a box that the tick has raised anything may be written.
  if (!bLatched || m_station.platform.aBoxes.size() != iBoxes) return;
  Expect(m_station.rig.aWritten.size() == iWritten,
         "no lever movement reaches the wire between emergency stop and reset");
}

/// A tick that comes inside another touches nothing: neither the rig nor more than one clock read.
void Invariants::CountTick(const Handler& handler) {
  const bool bNested = m_iTicks > 0;
  const size_t iCalls = m_station.rig.aCalls.size();
  const size_t iReports = m_station.rig.aReports.size();
  const int iClockReads = m_station.platform.iClockReads;
  ++m_iTicks;
  handler();
  --m_iTicks;
  if (!bNested) return;
  Expect(m_station.rig.aCalls.size() == iCalls && m_station.rig.aReports.size() == iReports &&
             m_station.platform.iClockReads <= iClockReads + 1,
         "the tick never nests");
}

void Invariants::FireRetry(const Handler& handler) {
  m_bRetrying = true;
  handler();
  m_bRetrying = false;
}

/// Either the image as it stands, or the literal zero of a link check or of the shut-down.
void Invariants::Written(qint32 lByte) {
  const bool bImage = lByte == lOutputImage;
  const bool bLiteral = lByte == 0 && (m_bClosing || !bUsbLink);
  Expect(bImage || bLiteral, "what reaches the rig is the output image or a zero");
  Expect(bLinkUp, "nothing is sent while the link is down");
  Expect(!m_bRetrying || lByte == 0, "the output image is not sent again when the link comes back");
  m_bWireKnown = bImage;
  if (!bImage || m_bPowerBits) return;
  Expect((lByte & iPowerBits) == iPower, "the last byte's power is iPower");
}

bool Invariants::IsSound() const {
  const VirtualRig& rig = m_station.rig;
  if (!bLinkUp) return false;
  if (!bUsbLink) return rig.bLibraryThere;
  return !rig.aDevices.empty() && rig.aDevices[0].mood == HidMood::Answers;
}

bool Invariants::StoppedNow() const {
  if (!IsSound()) return true;
  const std::vector<WrittenByte>& aWritten = m_station.rig.aWritten;
  return !aWritten.empty() && aWritten.back().lTime == m_station.platform.lNow &&
         (aWritten.back().lByte & iPowerBits) == 0;
}

void Invariants::BeginProgram(bool bRun) {
  m_aPrograms.push_back({bRun, false});
}

void Invariants::EndProgram() {
  const Program program = m_aPrograms.back();
  m_aPrograms.pop_back();
  if (!program.bRun || !program.bStarted) return;
  Expect(StoppedNow(), "the end of a run puts power 0 on the wire");
  Expect(iPower == 0, "the end of a run stops the motor");
}

void Invariants::BeginDrag() {
  m_bDragging = true;
  m_fTopBeforeDrag = imgLever.Top;
  m_bMayDrag = iControlMode == modeManual && !bEmergencyStop;
}

void Invariants::EndDrag() {
  m_bDragging = false;
  Expect(m_bMayDrag || imgLever.Top == m_fTopBeforeDrag, "a locked lever does not move");
  Expect(imgLever.Top >= 2230 && imgLever.Top <= 4760, "the lever keeps to its slot");
}

void Invariants::BeginClose() {
  m_bClosing = true;
  m_bSoundAtClose = IsSound();
}

void Invariants::EndClose() {
  if (!m_bSoundAtClose) return;
  const std::vector<WrittenByte>& aWritten = m_station.rig.aWritten;
  Expect(!aWritten.empty() && aWritten.back().lByte == 0, "closing ends with the zero byte");
  Expect(m_station.rig.aOpenHandles.empty(), "closing leaves no device open");
}

void Invariants::CheckAtRest() {
  CheckPower();
  CheckLever();
  CheckLink();
  Expect(tmrSystem.Interval == 25 || tmrSystem.Interval == 5, "the tick has one of its intervals");
}

void Invariants::CheckPower() {
  Expect(iPower >= 0 && iPower <= 15, "the power is 0 to 15");
  Expect(lOutputImage >= 0 && lOutputImage <= 255, "the output image is a byte");
  Expect(bMotorOn == (iPower >= 1), "the motor is on from power 1 on");
  Expect(iLastPowerRequest == iPower, "the last request is the power");
  if (!m_bPowerBits) {
    Expect((lOutputImage & iPowerBits) == iPower, "the image's low bits are the power");
  }
  if (!m_bWireKnown || !IsSound() || m_bClosing) return;
  Expect(m_station.rig.aWritten.back().lByte == lOutputImage,
         "the rig holds the output image while each exchange succeeds");
}

void Invariants::CheckLever() {
  Expect(iLeverLevel >= 0 && iLeverLevel <= 15, "the lever's level is 0 to 15");
  const double fOff = std::abs(imgLever.Top - PlaceOf(iLeverLevel));
  Expect(fOff <= 168.66666666666666 / 2 + 0.001,
         "the lever stands within half a step of its level");
  Expect(m_bUnsnapped || fOff < 0.001, "a lever moved by the station stands on its level");
  if (iControlMode == modeProgram || bEmergencyStop) {
    Expect(iLeverLevel == iPower, "a lever that cannot be dragged follows the power");
  }
}

void Invariants::CheckLink() {
  Expect(lblHWState.Caption.value() == (bLinkUp ? sDetected : sNotDetected),
         "the label tells the link's state");
  Expect(tmrReconnect.Enabled == !bLinkUp, "the retry runs while the link is down");
  Expect(!bUsbLink || bLinkUp, "a USB link is up");
}

void Invariants::CheckIdle() {
  Expect(!bProgramRunning, "no program runs behind its click");
  if (!pnlCommandSel.Visible) CheckUnlocked();
  Expect(tmrSystem.Enabled, "the tick runs");
  Expect(!pnlMessage.Visible, "no message outlives its program");
}

void Invariants::CheckUnlocked() {
  Expect(txtProgram.Enabled && cmdRunProgram.Enabled && cmbExamples.Enabled &&
             cmdShowExamples.Enabled && MNUMAIN.Enabled && MNUPROGRAMOPT.Enabled && MNUHELP.Enabled,
         "the screen is unlocked when no program runs and the picker is closed");
}

void Invariants::CheckSettled() {
  Expect(tmrSystem.Interval == (iTimingEnabled != 0 ? 5 : 25), "a tick chooses its interval");
  Expect(iLeverLevel == iPower, "a tick carries the lever to the motor");
  Expect(iLastPowerRequest == iLeverLevel, "the last request is the lever's level behind a tick");
}

}  // namespace glidetrak
