#pragma once

// The track as a model: one vehicle between a city station and an airport station, driven by the
// output byte and watched by the sensors of the input byte. It holds no clock: Advance moves it on
// in steps of 1 ms, so the same calls always give the same journey.
//
// Positions are in mm from the face of the city buffer to the vehicle's middle, speeds in mm/s;
// both grow towards the airport. Times are in ms.

#include <array>
#include <cstdint>

namespace glidetrak::bench {

// The track. The gates stand so far from the stations that a vehicle at full speed whose power is
// cut in the second gate glides into the station behind it.
constexpr double fTrackLength = 2000;  ///< between the faces of the two buffers
constexpr double fVehicleLength = 120;
constexpr double fCityBuffer = fVehicleLength / 2;  ///< the middle of a vehicle that touches it
constexpr double fAirportBuffer = fTrackLength - fVehicleLength / 2;
constexpr double fCityStation = 100;
constexpr double fAirportStation = fTrackLength - fCityStation;
constexpr double fGateA = 500;
constexpr double fGateB = fTrackLength - fGateA;

// The drive, in mm/s2. Two levels do not overcome the friction and the third does. A journey of
// 1800 mm takes 3.7 s at level 15 and 8.3 s at level 5; from full speed the vehicle glides for 2 s
// and 375 mm.
constexpr int iMostPower = 15;
constexpr double fAccelerationPerLevel = 60;
constexpr double fFriction = 2.5 * fAccelerationPerLevel;
constexpr double fTopSpeed = 560;  ///< mm/s at level 15, where drag eats the rest of the drive
constexpr double fDrag =
    (iMostPower * fAccelerationPerLevel - fFriction) / (fTopSpeed * fTopSpeed);  ///< 1/mm

// The buffers and the accelerometer. An impact stands longer than the 500 ms between two looks of
// the impact bar, so that none goes unseen, and then sinks to 0 within 600 ms.
constexpr double fBounce = 0.3;     ///< speed that comes back out of a buffer, of 1 that went in
constexpr double fRestSpeed = 20;   ///< mm/s; a slower rebound is swallowed by the buffer
constexpr double fImpactStep = 36;  ///< mm/s for each step of the value; full speed reaches 15
constexpr int iMostImpact = 15;
static_assert(fTopSpeed < fImpactStep * (iMostImpact + 1));
constexpr int iImpactHold = 600;
constexpr int iImpactDecay = 40;  ///< ms for each step down

/// The three buttons; the value is the bit of the input byte.
enum class Button { Start = 0, CityCall = 1, AirportCall = 2 };

/// The bits of the input byte behind the buttons.
enum SensorBit {
  bitLight = 3,
  bitGateA = 4,
  bitGateB = 5,
  bitSound = 6,
  bitPresent = 7,  ///< the rig is there; on the parallel link only
};

/// What an output byte means: power 0 to iMostPower, and the direction (true: towards the airport).
constexpr int PowerOf(int iByte) {
  return iByte & 15;
}
constexpr bool IsForward(int iByte) {
  return (iByte & 16) != 0;
}

class TrackModel {
 public:
  /// Moves the model on; 0 and less do nothing.
  void Advance(std::int64_t lMilliseconds);

  /// The output byte: power in bits 0 to 3, direction in bit 4 (1 towards the airport). Does
  /// nothing while the lead is pulled.
  void SetOutput(int iByte);

  /// Holds a button down from now on for that time, at least 1 ms.
  void Press(Button button, int iMilliseconds);

  void SetLight(bool bDay) { m_bDay = bDay; }

  /// A lasting noise, or silence.
  void SetSound(bool bNoise);

  /// A noise of that length, after which there is silence.
  void SoundFor(int iMilliseconds);

  /// Pulls or puts back the lead between rig and adapter. A rig without its lead has no power.
  void SetPlugged(bool bPlugged);

  /// Puts the vehicle down at rest, at the nearest place that the buffers leave.
  void Place(double fPosition);

  double Position() const { return m_fPosition; }
  double Speed() const { return m_fSpeed; }
  int Power() const { return m_iPower; }
  bool Forward() const { return m_bForward; }
  bool Plugged() const { return m_bPlugged; }

  /// Bits 0 to 6 of the input byte, whether or not anybody is there to read them.
  int Sensors() const;

  /// The byte on the parallel link: the sensors and bit 7, or 0 while the lead is pulled.
  int Inputs() const;

  /// The accelerometer's value, 0 to 15.
  int Analog() const { return m_iImpact; }

 private:
  void Step();
  void CountDown();
  double Acceleration() const;
  void Move();
  void MeetBuffer(double fBuffer);
  void FeelImpact(double fSpeed);
  bool BreaksBeam(double fGate) const;

  double m_fPosition = fCityStation;
  double m_fSpeed = 0;
  int m_iPower = 0;
  bool m_bForward = false;
  bool m_bPlugged = true;
  bool m_bDay = true;
  bool m_bNoise = false;               ///< a lasting one
  int m_iNoiseLeft = 0;                ///< ms of a noise that ends
  std::array<int, 3> m_aPressedFor{};  ///< ms for which each button is still down
  int m_iImpact = 0;                   ///< 0 to iMostImpact
  int m_iImpactLeft = 0;               ///< ms until the value sinks by one step
};

}  // namespace glidetrak::bench
