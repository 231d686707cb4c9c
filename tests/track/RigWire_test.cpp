// What a running program puts on the rig's wire, and when, while the ticks go on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "hardware/RigStation.h"
#include "station/NamedRow.h"
#include "track/InputDecoding.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

using Wire = std::vector<std::pair<qint64, qint32>>;  ///< milliseconds since the click on Run, byte

class RigWire : public testing::Test {
 protected:
  RigStation station;
  qint64 lClicked = 0;

  /// The bytes of one run of the program.
  Wire RunOnWire(const QStringList& aLines) {
    station.EnterProgram(aLines);
    lClicked = station.platform.lNow;
    station.Click("cmdRunProgram");
    return Written();
  }

  Wire Written() const {
    Wire wire;
    for (const WrittenByte& written : station.rig.aWritten) {
      wire.emplace_back(written.lTime - lClicked, written.lByte);
    }
    return wire;
  }
};

struct WireRow : NamedRow {
  QStringList aLines;
  Wire wire;  ///< a line takes 25 ms, the end of the run 100
};

class RigWireRows : public RigWire, public testing::WithParamInterface<WireRow> {};

TEST_P(RigWireRows, OnTheParallelPort) {
  station.Start(RigLink::Parallel);
  EXPECT_EQ(RunOnWire(GetParam().aLines), GetParam().wire);
}

TEST_P(RigWireRows, OnUsb) {
  station.Start(RigLink::Usb);
  EXPECT_EQ(RunOnWire(GetParam().aLines), GetParam().wire);
}

TEST_P(RigWireRows, WithoutALink) {
  station.Start(RigLink::None);
  EXPECT_EQ(RunOnWire(GetParam().aLines), Wire{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RigWireRows,
    testing::Values(
        WireRow{{"Power"}, {"POWER 10"}, {{0, 0x1A}, {125, 0x10}}},
        WireRow{{"PowerStaysOverAWait"}, {"POWER 10", "WAIT 1000"}, {{0, 0x1A}, {1150, 0x10}}},
        WireRow{{"PowerRepeated"},
                {"POWER 10", "POWER 10", "POWER 11", "POWER 11"},
                {{0, 0x1A}, {50, 0x1B}, {200, 0x10}}},
        WireRow{{"PowerZeroIsARepeat"}, {"POWER 0", "POWER 1"}, {{25, 0x11}, {150, 0x10}}},
        WireRow{{"Halt"}, {"POWER 15", "WAIT 100", "HALT"}, {{0, 0x1F}, {150, 0x10}, {275, 0x10}}},
        WireRow{{"Backward"},
                {"POWER 5", "BACKWARD", "FORWARD"},
                {{0, 0x15}, {25, 0x05}, {50, 0x15}, {175, 0x10}}},
        WireRow{{"ForwardWhileForward"}, {"FORWARD", "FORWARD"}, {{150, 0x10}}},
        WireRow{{"BackwardTwice"}, {"BACKWARD", "BACKWARD"}, {{0, 0x00}, {150, 0x00}}},
        WireRow{{"PortBit"},
                {"LET PB6=ON", "LET PB6=ON", "LET PB6=OFF"},
                {{0, 0x50}, {25, 0x50}, {50, 0x10}, {175, 0x10}}},
        WireRow{{"PortBitOfThePower"}, {"LET PB0=ON", "WAIT 500"}, {{0, 0x11}, {650, 0x10}}},
        WireRow{{"PortBitOfTheDirection"},
                {"LET PB4=OFF", "WAIT 500", "POWER 3"},
                {{0, 0x00}, {550, 0x03}, {675, 0x00}}},
        WireRow{{"NewPowerOverAPortBit"},
                {"LET PB3=ON", "LET PB5=ON", "POWER 2"},
                {{0, 0x18}, {25, 0x38}, {50, 0x32}, {175, 0x30}}},
        WireRow{{"TimeReset"}, {"TIME_RESET"}, {{125, 0x10}}},
        WireRow{{"OutOfRange"}, {"POWER 16"}, {{100, 0x10}}},
        WireRow{{"Break"}, {"POWER 4", "BREAK", "POWER 5"}, {{0, 0x14}, {125, 0x10}}}),
    RowName());

TEST_F(RigWire, LeavesTheTickNothingToWrite) {
  station.Start();
  station.EnterProgram({"POWER 10", "WAIT 500"});
  int iTicks = 0;
  station.After(400, [&] {
    iTicks = station.Calls("ReadAdapter");
    EXPECT_EQ(station.WrittenBytes(), std::vector<qint32>{0x1A});
    EXPECT_EQ(iLeverLevel, 10);
    EXPECT_FLOAT_EQ(imgLever.Top, static_cast<float>(2230 + 5 * 168.66666666666666));
  });
  station.Click("cmdRunProgram");
  EXPECT_GE(iTicks, 70);
}

TEST_F(RigWire, HearsNothingOfALeverDragDuringARun) {
  station.Start();
  station.EnterProgram({"POWER 5", "WAIT 1000"});
  station.After(200, [&] {
    imgLever.MouseDown(mouseLeft, 0, 360);
    imgLever.MouseMove(mouseLeft, 0, -30000);
    imgLever.MouseUp(mouseLeft, 0, 360);
  });
  lClicked = station.platform.lNow;
  station.Click("cmdRunProgram");
  EXPECT_EQ(Written(), (Wire{{0, 0x15}, {1150, 0x10}}));
}

TEST_F(RigWire, HearsOfAStopAtOnce) {
  station.Start();
  station.EnterProgram({"POWER 5", "WAIT 1000"});
  station.After(200, [&] { station.Click("btnStopProg"); });
  lClicked = station.platform.lNow;
  station.Click("cmdRunProgram");
  EXPECT_EQ(Written(), (Wire{{0, 0x15}, {200, 0x10}, {1125, 0x10}}));
}

TEST_F(RigWire, HearsOfTheEmergencyStopAtOnce) {
  station.Start();
  station.EnterProgram({"POWER 5", "LABEL A", "GOTO A"});
  station.After(200, [&] { btnEmergency.MouseDown(mouseLeft, 0, 0); });
  lClicked = station.platform.lNow;
  station.Click("cmdRunProgram");
  EXPECT_EQ(Written(), (Wire{{0, 0x15}, {200, 0x10}, {300, 0x10}}));
}

TEST_F(RigWire, StaysAtTheTracesPower) {
  station.Start();
  station.EnterProgram({"POWER 5"});
  lClicked = station.platform.lNow;
  station.Click("cmdSingleStep");
  station.platform.RunFor(1000);
  EXPECT_EQ(Written(), (Wire{{0, 0x15}}));
}

TEST_F(RigWire, LosesWhatAProgramWritesWhileTheLinkIsDown) {
  station.Start();
  station.EnterProgram({"WAIT 200", "POWER 5", "WAIT 8000", "POWER 6"});
  station.After(100, [&] { station.rig.Detach(); });
  station.After(400, [&] { station.rig.AttachParallel(); });
  lClicked = station.platform.lNow;
  station.Click("cmdRunProgram");
  EXPECT_EQ(station.WrittenBytes(), (std::vector<qint32>{0x00, 0x16, 0x10}));
}

TEST_F(RigWire, CarriesASensorsChangeToTheMotorWithinATickAndALine) {
  station.Start();
  station.EnterProgram({"LABEL A", "IF CITY_CALL=ON", "POWER 9", "BREAK", "ENDIF", "GOTO A"});
  lClicked = station.platform.lNow;
  station.After(1000, [&] { station.rig.lInput = 2; });
  station.Click("cmdRunProgram");
  const Wire wire = Written();
  ASSERT_EQ(wire.size(), 2u);
  EXPECT_EQ(wire[0].second, 0x19);
  EXPECT_GE(wire[0].first, 1000);
  EXPECT_LE(wire[0].first, 1000 + 5 + 4 * 25);
}

TEST_F(RigWire, SeesTheImpactsBitsInASensorTestUntilTheNextTick) {
  station.Start();
  iAnalogEnabled = 1;
  station.rig.lAnalog = 1;  // over START_BUTTON
  station.EnterProgram({"LABEL A", "IF START_BUTTON=ON", "BREAK", "ENDIF", "GOTO A"});
  bool bEnded = false;
  station.After(20'000, [&] {
    bEnded = !bProgramRunning;
    station.Click("btnStopProg");
  });
  station.Click("cmdRunProgram");
  station.platform.RunFor(20'000);
  EXPECT_TRUE(bEnded);
}

TEST_F(RigWire, ResetsARunningJourney) {
  station.Start();
  station.Click("picTogTimer");
  bTimerStarted = true;
  bTimerArmed = false;
  lElapsedMs = 4711;
  station.Run({"TIME_RESET"});
  EXPECT_EQ(lElapsedMs, 0);
  EXPECT_TRUE(bTimerArmed);
}

}  // namespace
}  // namespace glidetrak
