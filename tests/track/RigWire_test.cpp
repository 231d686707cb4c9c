// What a running program puts on the rig's wire, and when, while the ticks go on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"
#include "track/InputDecoding.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

using Wire = std::vector<std::pair<qint64, qint32>>;  ///< milliseconds since the click on Run, byte

class RigWire : public testing::Test {
 protected:
  RigStation station;
  qint64 lClicked = 0;

  Wire Written() const {
    Wire wire;
    for (const WrittenByte& written : station.rig.aWritten) {
      wire.emplace_back(written.lTime - lClicked, written.lByte);
    }
    return wire;
  }
};

struct LinkRow : NamedRow {
  RigLink link;
  bool bCarries;
};

class RigWireOfALink : public RigWire, public testing::WithParamInterface<LinkRow> {};

/// A line takes 25 ms, the end of the run 100; a level and a direction that stand so write nothing.
TEST_P(RigWireOfALink, CarriesEachStatementAtItsLine) {
  station.Start(GetParam().link);
  station.EnterProgram({"POWER 10", "POWER 10", "BACKWARD", "BACKWARD", "WAIT 1000", "LET PB6=ON",
                        "LET PB6=ON", "HALT"});
  lClicked = station.platform.lNow;
  station.Click("cmdRunProgram");
  const Wire wire{{0, 0x1A}, {50, 0x0A}, {1125, 0x4A}, {1150, 0x4A}, {1175, 0x40}, {1300, 0x40}};
  EXPECT_EQ(Written(), GetParam().bCarries ? wire : Wire{});
}

INSTANTIATE_TEST_SUITE_P(Rows, RigWireOfALink,
                         testing::Values(LinkRow{"Parallel", RigLink::Parallel, true},
                                         LinkRow{"Usb", RigLink::Usb, true},
                                         LinkRow{"None", RigLink::None, false}),
                         RowName());

TEST_F(RigWire, LeavesTheTickNothingToWrite) {
  station.Start();
  station.EnterProgram({"POWER 10", "WAIT 500"});
  int iTicks = 0;
  station.After(400, [&] {
    iTicks = station.Calls("ReadAdapter");
    EXPECT_EQ(station.WrittenBytes(), std::vector<qint32>{0x1A});
    EXPECT_EQ(iLeverLevel, 10);
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
