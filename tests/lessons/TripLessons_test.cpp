// Lessons 6 to 11: the vehicle moves.

#include <algorithm>

#include "lessons/Languages.h"

namespace glidetrak {

namespace {

using bench::Button;

class TripLessons : public LessonTest {};

INSTANTIATE_TEST_SUITE_P(Lessons, TripLessons, BothLanguages(), LanguageName);

TEST_P(TripLessons, SixDrivesForAMomentAndStops) {
  Begin(6);
  Run(9000);
  const QString sMoving = Say("WE ARE MOVING", "EN MARCHA");
  ExpectMessages({{Say("MIND THE DOORS!", "¡CUIDADO CON LAS PUERTAS!"), 2000},
                  {sMoving, 0},
                  {Say("POWER OFF", "MOTOR PARADO"), 0}});
  ASSERT_EQ(aDrives.size(), 2U);
  ExpectDrive(aDrives[0], 6, true);
  ExpectDrive(aDrives[1], 0, true);
  EXPECT_NEAR(aDrives[1].lTime - aDrives[0].lTime, 2100, 100);
  EXPECT_EQ(aGateA.size(), 1U);
  EXPECT_TRUE(aGateB.empty());
  ExpectRestBetween(500, 700);
}

TEST_P(TripLessons, SevenComesBack) {
  Begin(7);
  Run(12000);
  ExpectMessages({{Say("FORWARD", "ADELANTE"), 0},
                  {Say("STANDING STILL", "PARADA"), 3000},
                  {Say("BACKWARD", "ATRÁS"), 0},
                  {Say("BACK AGAIN", "YA ESTOY DE VUELTA"), 0}});
  const SeenDrive out = DriveFrom(0);
  ExpectDrive(out, 6, true);
  const qint64 lBack = TimeOf(Say("BACKWARD", "ATRÁS"));
  ExpectHaltSoonAfter(out.lTime + 2000, 250);
  ExpectDrive(aDrives.back(), 0, false);
  ExpectDrive(aDrives.at(aDrives.size() - 2), 6, false);
  EXPECT_NEAR(aDrives.back().lTime - lBack, 2100, 200);
  EXPECT_NEAR(model.Position(), bench::fCityStation, 20);
}

TEST_P(TripLessons, EightStopsBehindGateB) {
  Begin(8);
  Run(10000);
  const SeenDrive out = DriveFrom(0);
  ExpectDrive(out, 8, true);
  EXPECT_LE(out.lTime, 1000);
  ASSERT_EQ(aGateB.size(), 1U);
  EXPECT_NEAR(aGateB[0], 4600, 300);
  ExpectHaltSoonAfter(aGateB[0]);
  const QString sArrived = Say("ARRIVED", "HEMOS LLEGADO");
  EXPECT_NEAR(TimeOf(sArrived), aGateB[0], 250);
  EXPECT_NEAR(LengthOf(sArrived), 3000, 150);
  ExpectRestBetween(1560, 1880);
}

TEST_P(TripLessons, NineStartsWithTheStartButton) {
  Begin(9);
  PressAt(3000, Button::Start);
  Run(3000 + 9000);
  EXPECT_EQ(aMessages.at(0).sText, Say("READY TO START", "LISTO PARA SALIR"));
  const SeenDrive out = DriveFrom(0);
  ExpectDrive(out, 8, true);
  EXPECT_GE(out.lTime, 3000);
  EXPECT_LE(out.lTime, 3250);
  ASSERT_EQ(aBeeps.size(), 1U);
  EXPECT_LE(aBeeps[0], 3250);
  ASSERT_EQ(aGateB.size(), 1U);
  ExpectHaltSoonAfter(aGateB[0]);
  EXPECT_GE(TimeOf(Say("ARRIVED", "HEMOS LLEGADO")), aGateB[0]);
}

TEST_P(TripLessons, NineWaitsWithoutThePress) {
  Begin(9);
  RunUntilStopped(20000);
  EXPECT_TRUE(aBeeps.empty());
  ExpectNoDrive();
}

TEST_P(TripLessons, TenAnswersTheCity) {
  Begin(10);
  model.Place(bench::fAirportStation);
  PressAt(4000, Button::CityCall);
  Run(4000 + 11000);
  EXPECT_EQ(aMessages.at(0).sText, Say("WAITING FOR A CALL", "ESPERO UNA LLAMADA"));
  const qint64 lComing = TimeOf(Say("I AM COMING", "¡YA VOY!"));
  EXPECT_GE(lComing, 4000);
  EXPECT_LE(lComing, 4150);
  const SeenDrive back = StartFrom(lComing + 1000);
  ExpectDrive(back, 8, false);
  EXPECT_NEAR(back.lTime - lComing, 1500, 150);
  ASSERT_EQ(aGateA.size(), 1U);
  ExpectHaltSoonAfter(aGateA[0]);
  EXPECT_GE(TimeOf(Say("HERE I AM, CITY", "YA ESTOY EN LA CIUDAD")), aGateA[0]);
  ExpectRestBetween(120, 440);
}

TEST_P(TripLessons, TenStandsWithoutTheCall) {
  Begin(10);
  model.Place(bench::fAirportStation);
  PressAt(3000, Button::AirportCall);
  RunUntilStopped(20000);
  EXPECT_EQ(model.Position(), bench::fAirportStation);
}

TEST_P(TripLessons, ElevenShuttlesOnCall) {
  Begin(11);
  PressAt(1000, Button::CityCall);
  const qint64 aCalls[] = {3000, 18000, 33000, 48000};
  for (int i = 0; i < 4; ++i) {
    const bool bFromCity = i % 2 == 0;
    PressAt(aCalls[i], bFromCity ? Button::AirportCall : Button::CityCall);
    PressAt(aCalls[i] + 12000, bFromCity ? Button::AirportCall : Button::CityCall);
  }
  RunUntilStopped(62000);
  std::vector<SeenDrive> aStarts;
  for (const SeenDrive& drive : aDrives) {
    if (drive.iPower > 0) aStarts.push_back(drive);
  }
  ASSERT_EQ(aStarts.size(), 4U);
  for (size_t i = 0; i < 4; ++i) {
    ExpectDrive(aStarts[i], 8, i % 2 == 0);
    EXPECT_GE(aStarts[i].lTime, aCalls[i]);
    EXPECT_LE(aStarts[i].lTime, aCalls[i] + 250);
    const auto& aGates = i % 2 == 0 ? aGateB : aGateA;
    const auto gate =
        std::find_if(aGates.begin(), aGates.end(), [&](qint64 l) { return l > aStarts[i].lTime; });
    ASSERT_NE(gate, aGates.end());
    ExpectHaltSoonAfter(*gate);
  }
}

TEST_P(TripLessons, ElevenNamesTheStationsForThreeSeconds) {
  Begin(11);
  PressAt(1000, Button::AirportCall);
  PressAt(16000, Button::CityCall);
  RunUntilStopped(30000);
  const QString sAirport = Say("AIRPORT", "AEROPUERTO");
  const QString sCity = Say("CITY", "CIUDAD");
  ASSERT_FALSE(aGateB.empty());
  EXPECT_NEAR(TimeOf(sAirport), aGateB[0], 250);
  EXPECT_NEAR(LengthOf(sAirport), 3000, 150);
  EXPECT_GT(TimeOf(sCity), 16000);
  EXPECT_NEAR(LengthOf(sCity), 3000, 150);
}

}  // namespace

}  // namespace glidetrak
