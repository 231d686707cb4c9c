// The one timed wait, in virtual time.

#include "common/DelayMilliseconds.h"

#include <gtest/gtest.h>

#include "form/frmGlidetrak.h"
#include "virtual/VirtualPlatform.h"

namespace glidetrak {
namespace {

/// The counter's last millisecond before it turns negative.
constexpr qint64 lLastPositive = 0x7FFFFFFF;

class Delay : public ::testing::Test {
 protected:
  /// How long the wait takes.
  qint64 Wait(Pump pump, qint32 lTime, Tick tick = Tick::LeftOn) {
    const qint64 lStart = platform.lNow;
    DelayMilliseconds(pump, lTime, tick);
    return platform.lNow - lStart;
  }

  VirtualPlatform platform;
};

TEST_F(Delay, TakesItsTimeToTheMillisecondWithAndWithoutPump) {
  for (const qint32 lTime : {0, 1, 2, 25, 100, 200, 250, 32000}) {
    EXPECT_EQ(Wait(Pump::Yes, lTime), lTime);
    EXPECT_EQ(Wait(Pump::No, lTime), lTime);
  }
}

TEST_F(Delay, EndsAtOnceForANegativeTime) {
  EXPECT_EQ(Wait(Pump::Yes, -1), 0);
  EXPECT_EQ(Wait(Pump::No, -32768), 0);
}

TEST_F(Delay, PumpsOnceAPass) {
  int iPumps = 0;
  platform.OnPump = [&] { ++iPumps; };
  Wait(Pump::Yes, 25);
  EXPECT_EQ(iPumps, 25);
}

TEST_F(Delay, DoesNotPumpUnasked) {
  int iPumps = 0;
  platform.OnPump = [&] { ++iPumps; };
  Wait(Pump::No, 25);
  EXPECT_EQ(iPumps, 0);
}

TEST_F(Delay, RunsThePumpsHandlersInside) {
  qint64 lRan = 0;
  const qint64 lDue = platform.lNow + 10;
  platform.At(lDue, [&] { lRan = platform.lNow; });
  EXPECT_EQ(Wait(Pump::Yes, 25), 25);
  EXPECT_EQ(lRan, lDue);
}

TEST_F(Delay, LeavesTheHandlersToTheNextPumpWhenItDoesNotPump) {
  bool bRan = false;
  platform.At(platform.lNow + 10, [&] { bRan = true; });
  Wait(Pump::No, 25);
  EXPECT_FALSE(bRan);
  platform.PumpEvents();
  EXPECT_TRUE(bRan);
}

TEST_F(Delay, LetsAWaitInsideAWaitRunToItsOwnEnd) {
  qint64 lInner = 0;
  platform.At(platform.lNow + 10, [&] { lInner = Wait(Pump::Yes, 50); });
  EXPECT_EQ(Wait(Pump::Yes, 25), 60);
  EXPECT_EQ(lInner, 50);
}

struct TickRow {
  bool bBefore;
  Pump pump;
};

const TickRow TickRows[] = {
    {true, Pump::Yes}, {false, Pump::Yes}, {true, Pump::No}, {false, Pump::No}};

TEST_F(Delay, EnablesASuspendedTickAfterItWhateverItWasBefore) {
  for (const TickRow& row : TickRows) {
    tmrSystem.Enabled = row.bBefore;
    Wait(row.pump, 10, Tick::Suspended);
    EXPECT_TRUE(tmrSystem.Enabled);
  }
}

TEST_F(Delay, LeavesTheTickAsItIsUnlessToldToSuspendIt) {
  for (const TickRow& row : TickRows) {
    tmrSystem.Enabled = row.bBefore;
    Wait(row.pump, 10, Tick::LeftOn);
    EXPECT_EQ(tmrSystem.Enabled, row.bBefore);
  }
}

/// Counts the ticks that fire in a wait of 100 ms, at an interval of 25 ms.
int TicksInWait(VirtualPlatform& platform, Tick tick) {
  int iTicks = 0;
  tmrSystem.Fired = [&] { ++iTicks; };
  tmrSystem.Interval = 25;
  tmrSystem.Enabled = true;
  platform.PumpEvents();
  DelayMilliseconds(Pump::Yes, 100, tick);
  tmrSystem.Fired = [] {};
  return iTicks;
}

TEST_F(Delay, LetsTheTickRunInAPumpingWait) {
  EXPECT_EQ(TicksInWait(platform, Tick::LeftOn), 4);
}

TEST_F(Delay, HoldsASuspendedTickStill) {
  EXPECT_EQ(TicksInWait(platform, Tick::Suspended), 0);
}

TEST_F(Delay, RunsOverTheCountersReturnToZero) {
  platform.lNow = 0xFFFFFFFF - 5;
  EXPECT_EQ(Wait(Pump::Yes, 100), 100);
}

TEST_F(Delay, RunsWhileTheCounterIsNegative) {
  platform.lNow = lLastPositive + 1000;
  EXPECT_EQ(Wait(Pump::No, 100), 100);
}

TEST_F(Delay, EndsAtOnceWhenTheCounterTurnsNegative) {
  platform.lNow = lLastPositive - 9;
  EXPECT_EQ(Wait(Pump::Yes, 100), 10);
  platform.lNow = lLastPositive - 9;
  EXPECT_EQ(Wait(Pump::No, 100), 10);
}

TEST_F(Delay, IsWholeWhenItEndsAheadOfThatMoment) {
  platform.lNow = lLastPositive - 9;
  tmrSystem.Enabled = false;
  EXPECT_EQ(Wait(Pump::Yes, 9, Tick::Suspended), 9);
  EXPECT_TRUE(tmrSystem.Enabled);
}

TEST_F(Delay, LeavesASuspendedTickDisabledWhenTheCounterTurnsNegative) {
  platform.lNow = lLastPositive - 9;
  tmrSystem.Enabled = true;
  Wait(Pump::Yes, 100, Tick::Suspended);
  EXPECT_FALSE(tmrSystem.Enabled);
  EXPECT_TRUE(platform.aBoxes.empty());
}

TEST_F(Delay, LeavesAnUnsuspendedTickOnWhenTheCounterTurnsNegative) {
  platform.lNow = lLastPositive - 9;
  tmrSystem.Enabled = true;
  Wait(Pump::Yes, 100, Tick::LeftOn);
  EXPECT_TRUE(tmrSystem.Enabled);
}

}  // namespace
}  // namespace glidetrak
