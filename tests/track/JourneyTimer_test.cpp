// The journey timer between the two gates, step by step and as the tick drives it.

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"
#include "track/InputDecoding.h"
#include "track/SystemTick.h"

namespace glidetrak {
namespace {

constexpr qint32 lGateA = 16;
constexpr qint32 lGateB = 32;
constexpr qint32 lLimit = 9999990;

class Journey : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;

  void Arm() {
    iTimingEnabled = 1;
    ResetJourneyTimer();
  }

  /// One step of the timer, that many milliseconds after the last.
  void Step(qint32 lGates, int iMilliseconds = 0) {
    platform.lNow += iMilliseconds;
    lInputImage = lGates;
    RunJourneyTimer();
  }

  void ExpectArmed() {
    EXPECT_TRUE(bTimerArmed);
    EXPECT_FALSE(bTimerStarted);
    EXPECT_EQ(lTimerLastTick, 0);
  }

  void ExpectRunning(qint32 lTime) {
    EXPECT_TRUE(bTimerArmed);
    EXPECT_TRUE(bTimerStarted);
    EXPECT_EQ(lElapsedMs, lTime);
    EXPECT_EQ(lTimerLastTick, platform.lNow);
  }

  void ExpectEnded(qint32 lTime) {
    EXPECT_FALSE(bTimerArmed);
    EXPECT_FALSE(bTimerStarted);
    EXPECT_EQ(lElapsedMs, lTime);
    EXPECT_EQ(lTimerLastTick, 0);
  }
};

TEST_F(Journey, StartsWithNoGateBroken) {
  Arm();
  Step(0, 500);
  ExpectArmed();
  EXPECT_EQ(lElapsedMs, 0);
}

TEST_F(Journey, LooksAtTheGateBitsAlone) {
  Arm();
  Step(0xFF & ~(lGateA | lGateB), 500);
  ExpectArmed();
  Step(0xFF & ~lGateB, 500);
  ExpectRunning(0);
  Step(0xFF & ~(lGateA | lGateB), 500);
  ExpectRunning(500);
}

struct DirectionRow : NamedRow {
  qint32 lFirst, lSecond;
};

class JourneyDirection : public Journey, public testing::WithParamInterface<DirectionRow> {
 protected:
  qint32 lFirst = GetParam().lFirst;
  qint32 lSecond = GetParam().lSecond;
};

TEST_P(JourneyDirection, RunsFromEitherGateToTheOther) {
  Arm();
  Step(lFirst, 10);
  ExpectRunning(0);
  EXPECT_EQ(iStopGateMask, lSecond);
  Step(0, 200);
  ExpectRunning(200);
  Step(lSecond, 300);
  ExpectEnded(500);
}

TEST_P(JourneyDirection, IsNotEndedByItsFirstGateAgain) {
  Arm();
  Step(lFirst);
  Step(0, 100);
  Step(lFirst, 100);
  ExpectRunning(200);
  Step(0, 100);
  ExpectRunning(300);
}

TEST_P(JourneyDirection, NeitherEndsNorRestartsWhileTheFirstGateIsHeld) {
  Arm();
  Step(lFirst);
  for (int i = 1; i <= 10; ++i) {
    Step(lFirst, 5);
    ExpectRunning(5 * i);
  }
}

TEST_P(JourneyDirection, EndsWhenTheSecondGateBreaksUnderTheHeldFirst) {
  Arm();
  Step(lFirst);
  Step(lFirst | lSecond, 40);
  ExpectEnded(40);
}

INSTANTIATE_TEST_SUITE_P(Rows, JourneyDirection,
                         testing::Values(DirectionRow{"ToTheAirport", lGateA, lGateB},
                                         DirectionRow{"ToTheCity", lGateB, lGateA}),
                         RowName());

TEST_F(Journey, BegunWithBothBeamsEndsAtTheLimitOnly) {
  Arm();
  Step(lGateA | lGateB);
  EXPECT_EQ(iStopGateMask, 0);
  for (const qint32 lGates : {lGateA, 0, lGateB, lGateA | lGateB, 0}) Step(lGates, 10);
  ExpectRunning(50);
  Step(0, lLimit);
  ExpectEnded(lLimit);
}

struct LimitRow : NamedRow {
  int iStep;  ///< behind 9999000 ms
  qint32 lGates;
  bool bEnded;
  qint32 lTime;
};

class JourneyLimit : public Journey, public testing::WithParamInterface<LimitRow> {};

TEST_P(JourneyLimit, EndsAJourneyWithExactlyTheLimit) {
  const LimitRow& row = GetParam();
  Arm();
  Step(lGateA);
  Step(0, 9999000);
  Step(row.lGates, row.iStep);
  row.bEnded ? ExpectEnded(row.lTime) : ExpectRunning(row.lTime);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, JourneyLimit,
    testing::Values(LimitRow{"OneLess", 989, 0, false, 9999989},
                    LimitRow{"Reached", 990, 0, true, lLimit},
                    LimitRow{"Passed", 5000, 0, true, lLimit},
                    LimitRow{"PassedAtTheOtherGate", 5000, lGateB, true, lLimit},
                    LimitRow{"NotLookedAtUnderTheFirstGate", 1000, lGateA, false, 10000000}),
    RowName());

TEST_F(Journey, ThatPassedTheLimitUnderAGateEndsWhenTheGateIsFree) {
  Arm();
  Step(lGateA);
  Step(lGateA, lLimit + 100);
  Step(0, 5);
  ExpectEnded(lLimit);
}

TEST_F(Journey, StandsUntilItIsReset) {
  Arm();
  Step(lGateA);
  Step(lGateB, 700);
  iTimingEnabled = 1;
  platform.RunFor(100);
  ExpectEnded(700);
  ResetJourneyTimer();
  ExpectArmed();
  EXPECT_EQ(lElapsedMs, 0);
}

TEST_F(Journey, IsResetWhileItRuns) {
  Arm();
  Step(lGateA);
  Step(0, 300);
  ResetJourneyTimer();
  ExpectArmed();
  EXPECT_EQ(lElapsedMs, 0);
}

TEST_F(Journey, IsNotResetWhileTimingIsOff) {
  lElapsedMs = 123;
  ResetJourneyTimer();
  EXPECT_FALSE(bTimerArmed);
  EXPECT_EQ(lElapsedMs, 123);
}

TEST_F(Journey, StepDoesNotRunInsideItself) {
  Arm();
  Step(lGateA);
  int iInside = 0;
  platform.OnClockRead = [&] {
    if (++iInside > 1) return;
    lInputImage = lGateB;  // would end the journey
    RunJourneyTimer();
    EXPECT_TRUE(bTimerStarted);
  };
  Step(0, 100);
  EXPECT_GE(iInside, 1);
  ExpectRunning(100);
}

TEST_F(Journey, GoesOnBehindAClockThatFailed) {
  Arm();
  Step(lGateA);
  platform.iFailingClockRead = platform.iClockReads + 1;
  platform.lNow += 100;
  lInputImage = 0;
  RunJourneyTimer();
  EXPECT_EQ(lElapsedMs, 0);
  Step(0, 50);
  ExpectRunning(150);
}

TEST_F(Journey, CountsNothingWhenTheUptimeTurnsNegative) {
  platform.lNow = 0x7FFFFFFF;
  Arm();
  Step(lGateA);
  Step(0, 1);
  EXPECT_TRUE(bTimerStarted);
  EXPECT_EQ(lElapsedMs, 0);
  ResetJourneyTimer();
  Step(lGateA);
  Step(0, 30);
  EXPECT_EQ(lElapsedMs, 30);
}

// As the tick drives it.

TEST_F(Journey, IsTimedByTheTicks) {
  station.Start();
  station.Click("picTogTimer");
  platform.RunFor(25);  // from here on a tick each 5 ms
  station.rig.lInput = lGateA;
  platform.RunFor(5);
  station.rig.lInput = 0;
  platform.RunFor(1230);
  station.rig.lInput = lGateB;
  platform.RunFor(50);
  ExpectEnded(1235);
  EXPECT_EQ(lblTimer.Caption.value(), "1.24");
}

TEST_F(Journey, FreezesWhileTheLinkIsLostAndThenCountsOn) {
  station.Start();
  station.Click("picTogTimer");
  platform.RunFor(25);
  station.rig.lInput = lGateA;
  platform.RunFor(5);
  station.rig.lInput = 0;
  platform.RunFor(1000);
  const QString sShown = lblTimer.Caption.value();
  EXPECT_EQ(lElapsedMs, 1000);
  station.rig.Detach();
  platform.RunFor(4000);
  EXPECT_EQ(lElapsedMs, 1000);
  EXPECT_EQ(lblTimer.Caption.value(), sShown);
  station.rig.AttachParallel();
  platform.RunFor(2000);
  EXPECT_EQ(lElapsedMs, 7000);
  EXPECT_GE(lblTimer.Caption.value().toDouble(), 6.95);  // at most 50 ms behind
}

}  // namespace
}  // namespace glidetrak
