#include "bench/TrackModel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace glidetrak::bench {
namespace {

constexpr int iForward = 16;
constexpr int iLongest = 60'000;  ///< ms; no journey and no coasting takes longer

bool Has(const TrackModel& model, int iBit) {
  return (model.Inputs() & 1 << iBit) != 0;
}

/// Advances until the condition holds; the ms that it took, or -1.
template <typename Condition>
int Until(TrackModel& model, Condition condition) {
  for (int i = 0; i <= iLongest; ++i) {
    if (condition()) return i;
    model.Advance(1);
  }
  return -1;
}

int JourneyTime(int iPower) {
  TrackModel model;
  model.SetOutput(iForward | iPower);
  return Until(model, [&] { return model.Position() >= fAirportStation; });
}

/// The largest value that the accelerometer gives in a drive against the airport buffer.
int ImpactAt(int iPower, double fFrom) {
  TrackModel model;
  model.Place(fFrom);
  model.SetOutput(iForward | iPower);
  Until(model, [&] { return model.Position() >= fAirportBuffer; });
  return model.Analog();
}

TEST(TrackModel, StartsAtRestInTheCityByDay) {
  const TrackModel model;
  EXPECT_EQ(model.Position(), fCityStation);
  EXPECT_EQ(model.Speed(), 0);
  EXPECT_EQ(model.Inputs(), 0x88);
  EXPECT_EQ(model.Analog(), 0);
}

TEST(TrackModel, NothingMovesWithoutPower) {
  TrackModel model;
  model.SetOutput(iForward);
  model.Advance(10'000);
  EXPECT_EQ(model.Position(), fCityStation);
}

TEST(TrackModel, OutputByteIsPowerAndDirection) {
  TrackModel model;
  model.SetOutput(0xFA);
  EXPECT_EQ(model.Power(), 10);
  EXPECT_TRUE(model.Forward());
  model.SetOutput(0xE5);
  EXPECT_EQ(model.Power(), 5);
  EXPECT_FALSE(model.Forward());
}

TEST(TrackModel, JourneyBreaksGateAThenGateB) {
  TrackModel model;
  model.SetOutput(iForward | 10);
  std::string sOrder;
  int iBefore = 0;
  Until(model, [&] {
    const int iGates = model.Inputs() & 0x30;
    if (iGates != iBefore) sOrder += iGates == 0 ? "." : iGates == 0x10 ? "A" : "B";
    iBefore = iGates;
    return model.Position() >= fAirportStation;
  });
  EXPECT_EQ(sOrder, "A.B.");
}

TEST(TrackModel, JourneyBackBreaksGateBThenGateA) {
  TrackModel model;
  model.Place(fAirportStation);
  model.SetOutput(10);
  const int iAtB = Until(model, [&] { return Has(model, bitGateB); });
  const int iFromBToA = Until(model, [&] { return Has(model, bitGateA); });
  EXPECT_GT(iAtB, 0);
  EXPECT_GT(iFromBToA, 0);
}

TEST(TrackModel, BeamIsBrokenForTheLengthOfTheVehicle) {
  const double fHalf = fVehicleLength / 2;
  for (const double fGate : {fGateA, fGateB}) {
    const int iBit = fGate == fGateA ? bitGateA : bitGateB;
    const std::vector<std::pair<double, bool>> aPlaces{{fGate - fHalf - 1, false},
                                                       {fGate - fHalf, true},
                                                       {fGate, true},
                                                       {fGate + fHalf, true},
                                                       {fGate + fHalf + 1, false}};
    for (const auto& [fPlace, bBroken] : aPlaces) {
      TrackModel model;
      model.Place(fPlace);
      EXPECT_EQ(Has(model, iBit), bBroken) << fPlace;
    }
  }
}

TEST(TrackModel, JourneyTimesAreThoseOfTheRig) {
  EXPECT_GE(JourneyTime(15), 3000);
  EXPECT_LE(JourneyTime(15), 4000);
  EXPECT_GE(JourneyTime(5), 7500);
  EXPECT_LE(JourneyTime(5), 8500);
}

TEST(TrackModel, MorePowerIsFaster) {
  for (int iPower = 4; iPower <= 15; ++iPower) {
    EXPECT_LT(JourneyTime(iPower), JourneyTime(iPower - 1)) << iPower;
  }
}

TEST(TrackModel, WeakPowerDoesNotStartTheVehicle) {
  EXPECT_EQ(JourneyTime(1), -1);
  EXPECT_EQ(JourneyTime(2), -1);
  EXPECT_GT(JourneyTime(3), 0);
}

TEST(TrackModel, CoastsToRestInTwoSeconds) {
  TrackModel model;
  model.SetOutput(iForward | 15);
  Until(model, [&] { return Has(model, bitGateB); });
  model.SetOutput(iForward);
  const int iTime = Until(model, [&] { return model.Speed() == 0; });
  EXPECT_GE(iTime, 1500);
  EXPECT_LE(iTime, 2500);
  const double fRest = model.Position();
  model.Advance(5000);
  EXPECT_EQ(model.Position(), fRest);
}

TEST(TrackModel, GlidesFromTheSecondGateIntoTheStation) {
  TrackModel model;
  model.SetOutput(iForward | 15);
  Until(model, [&] { return model.Position() >= fGateB; });
  model.SetOutput(0);
  Until(model, [&] { return model.Speed() == 0; });
  EXPECT_NEAR(model.Position(), fAirportStation, fVehicleLength / 2);
  EXPECT_EQ(model.Analog(), 0);
}

TEST(TrackModel, ReversingStopsAndTurns) {
  TrackModel model;
  model.SetOutput(iForward | 10);
  Until(model, [&] { return model.Position() >= 800; });
  model.SetOutput(10);
  EXPECT_GT(Until(model, [&] { return model.Speed() == 0; }), 0);
  EXPECT_GT(model.Position(), 800);
  EXPECT_GT(Until(model, [&] { return model.Position() < 800; }), 0);
  EXPECT_LT(model.Speed(), 0);
}

TEST(TrackModel, BuffersHoldTheVehicleOnTheTrack) {
  for (const int iOutput : {iForward | 15, 15}) {
    TrackModel model;
    model.SetOutput(iOutput);
    for (int i = 0; i < 20'000; ++i) {
      model.Advance(1);
      ASSERT_GE(model.Position(), fCityBuffer);
      ASSERT_LE(model.Position(), fAirportBuffer);
    }
    EXPECT_EQ(model.Speed(), 0);
  }
}

TEST(TrackModel, BounceComesBackSlower) {
  TrackModel model;
  model.SetOutput(iForward | 15);
  double fIn = 0;
  Until(model, [&] {
    if (model.Speed() > 0) fIn = model.Speed();
    return model.Speed() < 0;
  });
  EXPECT_LT(model.Speed(), 0);
  EXPECT_NEAR(-model.Speed(), fIn * fBounce, 1);
}

TEST(TrackModel, ImpactGrowsWithTheSpeed) {
  EXPECT_EQ(ImpactAt(15, fCityStation), iMostImpact);
  EXPECT_EQ(ImpactAt(5, fCityStation), 6);
  EXPECT_EQ(ImpactAt(3, fCityStation), 3);
  EXPECT_EQ(ImpactAt(3, fAirportBuffer - 1), 0);
}

TEST(TrackModel, CityBufferGivesAnImpactToo) {
  TrackModel model;
  model.Place(fAirportStation);
  model.SetOutput(15);
  Until(model, [&] { return model.Position() <= fCityBuffer; });
  EXPECT_EQ(model.Analog(), 15);
}

TEST(TrackModel, ImpactStandsLongerThanAPollAndSinksToZero) {
  TrackModel model;
  model.SetOutput(iForward | 15);
  Until(model, [&] { return model.Analog() != 0; });
  model.Advance(iImpactHold - 1);
  EXPECT_EQ(model.Analog(), 15);
  model.Advance(1);
  EXPECT_EQ(model.Analog(), 14);
  model.Advance(iImpactDecay);
  EXPECT_EQ(model.Analog(), 13);
  for (int i = 0; i < 12; ++i) model.Advance(iImpactDecay);
  EXPECT_EQ(model.Analog(), 1);
  model.Advance(iImpactDecay);
  EXPECT_EQ(model.Analog(), 0);
}

TEST(TrackModel, ButtonsTimeOut) {
  for (const Button button : {Button::Start, Button::CityCall, Button::AirportCall}) {
    TrackModel model;
    model.Press(button, 500);
    EXPECT_EQ(model.Inputs(), 0x88 | 1 << static_cast<int>(button));
    model.Advance(499);
    EXPECT_EQ(model.Inputs(), 0x88 | 1 << static_cast<int>(button));
    model.Advance(1);
    EXPECT_EQ(model.Inputs(), 0x88);
  }
}

TEST(TrackModel, PressedAgainIsHeldFromThenOn) {
  TrackModel model;
  model.Press(Button::Start, 500);
  model.Advance(400);
  model.Press(Button::Start, 500);
  model.Advance(499);
  EXPECT_TRUE(Has(model, 0));
  model.Advance(1);
  EXPECT_FALSE(Has(model, 0));
}

TEST(TrackModel, LightIsDay) {
  TrackModel model;
  model.SetLight(false);
  EXPECT_FALSE(Has(model, bitLight));
  model.SetLight(true);
  EXPECT_TRUE(Has(model, bitLight));
}

TEST(TrackModel, SoundLastsOrEnds) {
  TrackModel model;
  model.SetSound(true);
  model.Advance(100'000);
  EXPECT_TRUE(Has(model, bitSound));
  model.SetSound(false);
  EXPECT_FALSE(Has(model, bitSound));
  model.SoundFor(500);
  model.Advance(499);
  EXPECT_TRUE(Has(model, bitSound));
  model.Advance(1);
  EXPECT_FALSE(Has(model, bitSound));
}

TEST(TrackModel, SilenceEndsATimedNoise) {
  TrackModel model;
  model.SoundFor(500);
  model.SetSound(false);
  EXPECT_FALSE(Has(model, bitSound));
}

TEST(TrackModel, PulledLeadCutsPowerAndInputs) {
  TrackModel model;
  model.SetOutput(iForward | 15);
  model.Advance(500);
  model.SetPlugged(false);
  EXPECT_EQ(model.Inputs(), 0);
  EXPECT_EQ(model.Sensors(), 0x08);
  EXPECT_EQ(model.Power(), 0);
  model.SetOutput(iForward | 15);
  EXPECT_EQ(model.Power(), 0);
  model.SetPlugged(true);
  EXPECT_EQ(model.Power(), 0);
  EXPECT_TRUE(Has(model, bitPresent));
}

TEST(TrackModel, PlaceKeepsBetweenTheBuffersAndStops) {
  TrackModel model;
  model.SetOutput(iForward | 15);
  model.Advance(500);
  model.Place(0);
  EXPECT_EQ(model.Position(), fCityBuffer);
  EXPECT_EQ(model.Speed(), 0);
  model.Place(fTrackLength);
  EXPECT_EQ(model.Position(), fAirportBuffer);
}

TEST(TrackModel, TimeDoesNotRunBackwards) {
  TrackModel model;
  model.SetOutput(iForward | 15);
  model.Advance(0);
  model.Advance(-5);
  EXPECT_EQ(model.Position(), fCityStation);
}

TEST(TrackModel, SameCallsGiveTheSameJourneyHoweverTimeIsCut) {
  TrackModel one;
  TrackModel many;
  one.SetOutput(iForward | 12);
  many.SetOutput(iForward | 12);
  one.Advance(2500);
  for (const int iPart : {1, 999, 25, 475, 1000}) many.Advance(iPart);
  EXPECT_EQ(one.Position(), many.Position());
  EXPECT_EQ(one.Speed(), many.Speed());
}

}  // namespace
}  // namespace glidetrak::bench
