// The system tick: the order of its steps, its slower work, its interval.

#include "track/SystemTick.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/RigStation.h"
#include "track/InputDecoding.h"
#include "track/OutputImage.h"
#include "track/PropertyWatch.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A started station whose tick the test itself fires.
class SystemTick : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;
  VirtualRig& rig = station.rig;
  QStringList aLog;  ///< calls of the library, clock reads, boxes and changed properties
  std::unique_ptr<PropertyWatch> watch;

  void Begin(RigLink link = RigLink::Parallel) {
    station.Start(link);
    tmrSystem.Enabled = false;
  }

  void TickAfter(int iMilliseconds) {
    platform.lNow += iMilliseconds;
    tmrSystem_Timer();
  }

  void StartLog() {
    aLog.clear();
    platform.OnCall = [this](const QByteArray& operation) { aLog.append(operation); };
    platform.OnClockRead = [this] { aLog.append("clock"); };
    platform.OnBox = [this](const VirtualBox&) { aLog.append("box"); };
    watch = std::make_unique<PropertyWatch>([this](const QString& sName) { aLog.append(sName); });
  }

  /// Everything on: timing, analog reading, debug panel, a hover picture to take back.
  void SwitchEverythingOn() {
    station.Click("picTogTimer");
    station.Click("picTogImpact");
    pnlDebug.Visible = true;
    cmdProgram.Picture = PictureId::DiagBtnWF;
  }
};

TEST_F(SystemTick, GoesThroughItsStepsInOrder) {
  Begin();
  SwitchEverythingOn();
  rig.lInput = 0x10;
  rig.lAnalog = 6;
  StartLog();
  TickAfter(25);
  const QStringList aExpected{"clock",
                              "ReadAdapter",  // the input
                              "ledInput_4.FillColor",
                              "ledOutput_4.FillColor",  // the debug panel
                              "ledInput_7.FillColor",
                              "txtDebug.Text",  //
                              "clock",          // the journey's start
                              "lblTimer.Caption",
                              "clock",  // each 50 ms
                              "ReadAtoD",
                              "imgBarGraph.Picture",
                              "lblImpact.Caption",
                              "clock",               // each 500 ms
                              "cmdProgram.Picture",  // the report
                              "tmrSystem.Interval"};
  EXPECT_EQ(aLog, aExpected);
}

TEST_F(SystemTick, CarriesTheLeverBehindTheReadAndAheadOfTheDisplays) {
  Begin();
  SwitchEverythingOn();
  iLeverLevel = 15;
  StartLog();
  TickAfter(25);
  EXPECT_EQ(aLog.mid(0, 3), (QStringList{"clock", "ReadAdapter", "WriteAdapter"}));
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x1F));
}

TEST_F(SystemTick, HandlesALostLinkBeforeTheLeverAndSkipsTheSlowerWork) {
  Begin();
  SwitchEverythingOn();
  iLeverLevel = 15;
  rig.Detach();
  StartLog();
  TickAfter(25);
  QStringList aExpected{"clock"};
  for (int i = 0; i < 9; ++i) aExpected.append("ReadAdapter");
  aExpected += {"lblHWState.Caption", "tmrReconnect.Enabled", "box"};
  EXPECT_EQ(aLog.mid(0, aExpected.size()), aExpected);
  EXPECT_EQ(iPower, 15);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
  EXPECT_FALSE(aLog.contains("ReadAtoD"));
  EXPECT_FALSE(aLog.contains("lblTimer.Caption"));
  EXPECT_TRUE(aLog.contains("ledOutput_0.FillColor"));
  EXPECT_EQ(aLog.mid(aLog.size() - 2), (QStringList{"cmdProgram.Picture", "tmrSystem.Interval"}));
}

TEST_F(SystemTick, StoresTheInputWhateverItIs) {
  Begin();
  for (const qint32 lInput : {0x00, 0x01, 0x7F}) {
    rig.lInput = lInput;
    TickAfter(25);
    EXPECT_EQ(lInputImage, lInput | 0x80);
  }
  rig.Detach();
  rig.lInput = 0x2A;
  TickAfter(25);
  EXPECT_EQ(lInputImage, 0x2A);  // the last of the nine reads
  rig.bLibraryThere = false;
  TickAfter(25);
  EXPECT_EQ(lInputImage, 0);
}

TEST_F(SystemTick, DoesTheSlowerWorkWithTheFirstTickOfTheLink) {
  Begin(RigLink::None);
  station.Click("picTogImpact");
  TickAfter(25);
  TickAfter(2000);
  EXPECT_EQ(lblTimer.Caption.value(), "00");
  station.Attach(RigLink::Parallel);
  bLinkUp = true;
  TickAfter(5);
  EXPECT_EQ(lblTimer.Caption.value(), "--.--");
  EXPECT_EQ(station.Calls("ReadAtoD"), 1);
}

/// Milliseconds behind the first tick at which the work is done again, found by ticks 1 ms apart.
template <class Done>
int NextWork(WatchedPlatform& platform, Done done) {
  for (int i = 1; i < 2000; ++i) {
    ++platform.lNow;
    tmrSystem_Timer();
    if (done()) return i;
  }
  return -1;
}

TEST_F(SystemTick, ShowsTheJourneyEachFiftyMilliseconds) {
  Begin();
  TickAfter(25);
  for (int i = 0; i < 3; ++i) {
    lblTimer.Caption = "before";
    EXPECT_EQ(NextWork(platform, [] { return lblTimer.Caption.value() != "before"; }), 50);
  }
}

TEST_F(SystemTick, ReadsTheImpactEachFiveHundredMilliseconds) {
  Begin();
  station.Click("picTogImpact");
  TickAfter(25);
  for (int i = 0; i < 3; ++i) {
    station.Forget();
    EXPECT_EQ(NextWork(platform, [&] { return station.Calls("ReadAtoD") > 0; }), 500);
  }
}

TEST_F(SystemTick, StampsTheSlowerWorkWithTheTimeAtItsEnd) {
  Begin();
  station.Click("picTogImpact");
  platform.OnCall = [&](const QByteArray& operation) {
    if (operation == "ReadAtoD") platform.lNow += 40;
  };
  TickAfter(25);
  station.Forget();
  platform.OnCall = nullptr;
  EXPECT_EQ(NextWork(platform, [&] { return station.Calls("ReadAtoD") > 0; }), 500);
}

TEST_F(SystemTick, KeepsItsStampsOverALostLink) {
  Begin();
  station.Click("picTogImpact");
  TickAfter(25);
  lblTimer.Caption = "before";
  rig.Detach();
  TickAfter(10);
  station.Attach(RigLink::Parallel);
  bLinkUp = true;
  station.Forget();
  TickAfter(10);
  EXPECT_EQ(lblTimer.Caption.value(), "before");
  EXPECT_EQ(station.Calls("ReadAtoD"), 0);
  TickAfter(30);
  EXPECT_EQ(lblTimer.Caption.value(), "--.--");
  TickAfter(450);
  EXPECT_EQ(station.Calls("ReadAtoD"), 1);
}

TEST_F(SystemTick, StampsTheImpactThatCouldNotBeRead) {
  Begin();
  station.Click("picTogImpact");
  rig.aMissingOperations = {"ReadAtoD"};
  int iTried = 0;
  platform.OnCall = [&](const QByteArray& operation) { iTried += operation == "ReadAtoD"; };
  TickAfter(25);
  EXPECT_EQ(iTried, 1);
  EXPECT_EQ(NextWork(platform, [&] { return iTried > 1; }), 500);
}

struct IntervalRow {
  bool bTiming, bRunning;
  int iInterval;
};

TEST_F(SystemTick, ChoosesItsInterval) {
  Begin();
  for (const IntervalRow& row : {IntervalRow{false, false, 25},
                                 {true, false, 5},
                                 {false, true, 5},
                                 {true, true, 5},
                                 {false, false, 25}}) {
    iTimingEnabled = row.bTiming ? 1 : 0;
    bProgramRunning = row.bRunning;
    SelectTickInterval();
    EXPECT_EQ(tmrSystem.Interval.value(), row.iInterval);
  }
}

TEST_F(SystemTick, ChangesItsIntervalWithTheNextTick) {
  station.Start();
  station.Click("picTogTimer");
  EXPECT_EQ(tmrSystem.Interval.value(), 25);
  platform.RunFor(25);
  EXPECT_EQ(tmrSystem.Interval.value(), 5);
  station.Click("picTogTimer");
  platform.RunFor(4);
  EXPECT_EQ(tmrSystem.Interval.value(), 5);
  platform.RunFor(1);
  EXPECT_EQ(tmrSystem.Interval.value(), 25);
}

TEST_F(SystemTick, RunsEachTwentyFiveMillisecondsAndFiveTimesAsOftenWhenBusy) {
  station.Start();
  platform.RunFor(1000);
  EXPECT_EQ(station.Calls("ReadAdapter"), 40);
  station.Click("picTogTimer");
  platform.RunFor(25);
  station.Forget();
  platform.RunFor(1000);
  EXPECT_EQ(station.Calls("ReadAdapter"), 200);
}

TEST_F(SystemTick, IsNotPutOffByBeingEnabledAgain) {
  station.Start();
  for (int i = 0; i < 100; ++i) {
    platform.RunFor(10);
    tmrSystem.Enabled = true;
  }
  EXPECT_EQ(station.Calls("ReadAdapter"), 40);
}

TEST_F(SystemTick, ReadsNotEvenTheClockBehindTheShutDown) {
  Begin();
  bShuttingDown = true;
  platform.iClockReads = 0;
  lInputImage = 77;
  TickAfter(25);
  EXPECT_EQ(platform.iClockReads, 0);
  EXPECT_EQ(lInputImage, 77);
  EXPECT_EQ(station.Calls("ReadAdapter"), 0);
}

TEST_F(SystemTick, WritesNoPropertyWhenNothingHasChanged) {
  station.Start();
  station.Click("picTogImpact");
  platform.RunFor(1000);
  StartLog();
  platform.OnCall = nullptr;
  platform.OnClockRead = nullptr;
  platform.RunFor(5000);
  EXPECT_THAT(aLog, IsEmpty());
}

TEST_F(SystemTick, WritesNoPropertyWhileTheLinkStaysLost) {
  station.Start(RigLink::None);
  platform.RunFor(6000);
  StartLog();
  platform.OnCall = nullptr;
  platform.OnClockRead = nullptr;
  platform.RunFor(12'000);
  EXPECT_THAT(aLog, IsEmpty());
}

}  // namespace
}  // namespace glidetrak
