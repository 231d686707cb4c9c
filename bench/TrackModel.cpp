#include "bench/TrackModel.h"

#include <algorithm>
#include <cmath>

namespace glidetrak::bench {

namespace {

constexpr double fSecondsPerStep = 0.001;

double Sign(double fValue) {
  return fValue < 0 ? -1 : 1;
}

int Bit(int iBit, bool bOn) {
  return bOn ? 1 << iBit : 0;
}

}  // namespace

void TrackModel::Advance(std::int64_t lMilliseconds) {
  for (std::int64_t l = 0; l < lMilliseconds; ++l) Step();
}

void TrackModel::SetOutput(int iByte) {
  if (!m_bPlugged) return;
  m_iPower = PowerOf(iByte);
  m_bForward = IsForward(iByte);
}

void TrackModel::Press(Button button, int iMilliseconds) {
  m_aPressedFor[static_cast<size_t>(button)] = std::max(1, iMilliseconds);
}

void TrackModel::SetSound(bool bNoise) {
  m_bNoise = bNoise;
  m_iNoiseLeft = 0;
}

void TrackModel::SoundFor(int iMilliseconds) {
  m_bNoise = false;
  m_iNoiseLeft = std::max(1, iMilliseconds);
}

void TrackModel::SetPlugged(bool bPlugged) {
  if (!bPlugged) SetOutput(0);
  m_bPlugged = bPlugged;
}

void TrackModel::Place(double fPosition) {
  m_fPosition = std::clamp(fPosition, fCityBuffer, fAirportBuffer);
  m_fSpeed = 0;
}

int TrackModel::Sensors() const {
  int iByte = Bit(bitLight, m_bDay) | Bit(bitGateA, BreaksBeam(fGateA)) |
              Bit(bitGateB, BreaksBeam(fGateB)) | Bit(bitSound, m_bNoise || m_iNoiseLeft > 0);
  for (size_t i = 0; i < m_aPressedFor.size(); ++i) {
    iByte |= Bit(static_cast<int>(i), m_aPressedFor[i] > 0);
  }
  return iByte;
}

int TrackModel::Inputs() const {
  return m_bPlugged ? Sensors() | 1 << bitPresent : 0;
}

bool TrackModel::BreaksBeam(double fGate) const {
  return std::abs(m_fPosition - fGate) <= fVehicleLength / 2;
}

void TrackModel::Step() {
  CountDown();
  Move();
}

void TrackModel::CountDown() {
  for (int& iLeft : m_aPressedFor) iLeft = std::max(0, iLeft - 1);
  m_iNoiseLeft = std::max(0, m_iNoiseLeft - 1);
  if (m_iImpact > 0 && --m_iImpactLeft == 0) {
    --m_iImpact;
    m_iImpactLeft = iImpactDecay;
  }
}

double TrackModel::Acceleration() const {
  const double fDrive = (m_bForward ? 1 : -1) * m_iPower * fAccelerationPerLevel;
  if (m_fSpeed == 0 && std::abs(fDrive) <= fFriction) return 0;
  const double fHeading = Sign(m_fSpeed == 0 ? fDrive : m_fSpeed);
  return fDrive - fHeading * (fFriction + fDrag * m_fSpeed * m_fSpeed);
}

void TrackModel::Move() {
  const double fBefore = m_fSpeed;
  m_fSpeed += Acceleration() * fSecondsPerStep;
  // Friction ends a movement and never turns it round: a reversal passes through a step at rest.
  if (fBefore * m_fSpeed < 0) m_fSpeed = 0;
  m_fPosition += m_fSpeed * fSecondsPerStep;
  if (m_fPosition < fCityBuffer) MeetBuffer(fCityBuffer);
  if (m_fPosition > fAirportBuffer) MeetBuffer(fAirportBuffer);
}

void TrackModel::MeetBuffer(double fBuffer) {
  FeelImpact(std::abs(m_fSpeed));
  m_fPosition = fBuffer;
  m_fSpeed *= -fBounce;
  if (std::abs(m_fSpeed) < fRestSpeed) m_fSpeed = 0;
}

void TrackModel::FeelImpact(double fSpeed) {
  const int iValue = static_cast<int>(fSpeed / fImpactStep);
  // The smaller knocks of the rebounds do not cut the great one short.
  if (iValue == 0 || iValue < m_iImpact) return;
  m_iImpact = iValue;
  m_iImpactLeft = iImpactHold;
}

}  // namespace glidetrak::bench
