// Lessons 12 to 16: the journey timer, braking, round trips, light and sound.

#include <algorithm>

#include "language/Variables.h"
#include "lessons/Languages.h"

namespace glidetrak {

namespace {

class LaterLessons : public LessonTest {};

INSTANTIATE_TEST_SUITE_P(Lessons, LaterLessons, BothLanguages(), LanguageName);

TEST_P(LaterLessons, TwelveTimesTheJourney) {
  Begin(12);
  station.Click("picTogTimer");
  QString sAhead, sUnderWay;
  At(2000, [&] { sAhead = lblTimer.Caption; });
  At(4000, [&] { sUnderWay = lblTimer.Caption; });
  Run(12000);
  EXPECT_EQ(sAhead, "0.00");
  EXPECT_GT(sUnderWay.toDouble(), 1.0);
  ASSERT_EQ(aGateA.size(), 1U);
  EXPECT_NEAR(aGateA[0], 2300, 200);
  ASSERT_EQ(aGateB.size(), 1U);
  EXPECT_NEAR(lblTimer.Caption.value().toDouble(), 3.45, 0.05);
  EXPECT_NEAR(lblTimer.Caption.value().toDouble() * 1000, aGateB[0] - aGateA[0], 50);
}

TEST_P(LaterLessons, TwelveMakesTheSameJourneyWithTimingOff) {
  Begin(12);
  Run(12000);
  EXPECT_EQ(lblTimer.Caption.value(), "--.--");
  ExpectDrive(DriveFrom(0), 6, true);
  ASSERT_EQ(aGateB.size(), 1U);
  ExpectHaltSoonAfter(aGateB[0]);
  const QString sRead = Say("READ THE JOURNEY TIME", "LEE EL TIEMPO DEL VIAJE");
  EXPECT_GE(TimeOf(sRead), aGateB[0]);
  EXPECT_NEAR(LengthOf(sRead), 5000, 150);
}

TEST_P(LaterLessons, ThirteenBrakesGently) {
  Begin(13);
  Run(10000);
  ASSERT_EQ(aGateB.size(), 1U);
  ExpectDrive(DriveFrom(0), 10, true);
  const SeenDrive slow = DriveFrom(aGateB[0]);
  ExpectDrive(slow, 3, true);
  EXPECT_LE(slow.lTime - aGateB[0], 150);
  const SeenDrive halt = DriveFrom(slow.lTime + 1);
  ExpectDrive(halt, 0, true);
  EXPECT_NEAR(halt.lTime - slow.lTime, 1000, 150);
  EXPECT_NEAR(TimeOf(Say("SLOWING DOWN", "FRENANDO")), slow.lTime, 100);
  EXPECT_NEAR(TimeOf(Say("SAFE AT THE AIRPORT", "A SALVO EN EL AEROPUERTO")), halt.lTime, 100);
  ExpectRestBetween(1870, 1930);
}

TEST_P(LaterLessons, FourteenMakesThreeRoundTrips) {
  Begin(14);
  Run(50000);
  std::vector<SeenDrive> aStarts;
  for (const SeenDrive& drive : aDrives) {
    if (drive.iPower > 0) aStarts.push_back(drive);
  }
  ASSERT_EQ(aStarts.size(), 6U);
  for (size_t i = 0; i < 6; ++i) {
    ExpectDrive(aStarts[i], 8, i % 2 == 0);
    const auto& aGates = i % 2 == 0 ? aGateB : aGateA;
    const auto gate =
        std::find_if(aGates.begin(), aGates.end(), [&](qint64 l) { return l > aStarts[i].lTime; });
    ASSERT_NE(gate, aGates.end());
    ExpectHaltSoonAfter(*gate);
  }
  for (const char* sCount : {"1", "2", "3"}) TimeOf(Say("TRIPS=\n", "VIAJES=\n") + sCount);
  EXPECT_EQ(aMessages.back().sText, Say("END OF SERVICE", "FIN DEL SERVICIO"));
  EXPECT_EQ(iVariables['T' - 64], 3);
}

TEST_P(LaterLessons, FifteenRunsTheLastTrainAtNightfall) {
  Begin(15);
  At(5000, [this] { model.SetLight(false); });
  Run(5000 + 13000);
  EXPECT_EQ(aMessages.at(0).sText, Say("WAITING FOR THE NIGHT", "ESPERO A LA NOCHE"));
  const qint64 lDark = TimeOf(Say("IT IS DARK: LAST TRAIN", "YA ES DE NOCHE: ÚLTIMO TREN"));
  EXPECT_GE(lDark, 5000);
  EXPECT_LE(lDark, 5150);
  const SeenDrive out = DriveFrom(lDark);
  ExpectDrive(out, 5, true);
  EXPECT_NEAR(out.lTime - lDark, 2000, 150);
  ASSERT_EQ(aGateB.size(), 1U);
  ExpectHaltSoonAfter(aGateB[0]);
  EXPECT_GE(TimeOf(Say("GOOD NIGHT", "BUENAS NOCHES")), aGateB[0]);
}

TEST_P(LaterLessons, FifteenWaitsAsLongAsItIsDay) {
  Begin(15);
  RunUntilStopped(20000);
  ExpectNoDrive();
}

TEST_P(LaterLessons, SixteenHaltsAtANoise) {
  Begin(16);
  At(3000, [this] { model.SoundFor(300); });
  Run(3000 + 6000);
  ExpectDrive(DriveFrom(0), 5, true);
  ExpectHaltSoonAfter(3000, 200);
  EXPECT_EQ(aBeeps.size(), 1U);
  const QString sAlarm = Say("EMERGENCY HALT!", "¡PARADA DE EMERGENCIA!");
  EXPECT_NEAR(LengthOf(sAlarm), 5000, 150);
  EXPECT_TRUE(aGateB.empty());
  ExpectRestBetween(bench::fGateA, bench::fGateB);
}

TEST_P(LaterLessons, SixteenMakesAQuietTrip) {
  Begin(16);
  Run(11000);
  ASSERT_EQ(aGateB.size(), 1U);
  ExpectHaltSoonAfter(aGateB[0], 200);
  EXPECT_TRUE(aBeeps.empty());
  EXPECT_GE(TimeOf(Say("A QUIET TRIP", "UN VIAJE TRANQUILO")), aGateB[0]);
}

}  // namespace

}  // namespace glidetrak
