// The output byte, the lever and the state that follows them.

#include "track/OutputImage.h"

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/Station.h"

namespace glidetrak {
namespace {

class OutputImage : public ::testing::Test {
 protected:
  void SetUp() override { station.Start(RigLink::Parallel); }

  Station station;
};

using Bytes = std::vector<qint32>;

TEST_F(OutputImage, StandsOnForwardAndPowerZeroAfterTheStart) {
  EXPECT_EQ(lOutputImage, 16);
  EXPECT_EQ(iPower, 0);
  EXPECT_EQ(iLastPowerRequest, 0);
  EXPECT_EQ(iLeverLevel, 0);
  EXPECT_EQ(iDirection, 1);
  EXPECT_FALSE(bMotorOn);
  EXPECT_EQ(imgLever.Top, 4760);
}

struct PowerRow {
  int iLevel;
  qint32 lImage;
  qint16 iPower;
  bool bMotorOn;
};

const PowerRow PowerRows[] = {
    {0, 16, 0, false},  {1, 17, 1, true},   {7, 23, 7, true},    {15, 31, 15, true},
    {16, 16, 0, false}, {20, 16, 0, false}, {255, 16, 0, false}, {32767, 16, 0, false},
};

TEST_F(OutputImage, TakesThePowerAndStopsTheMotorForALevelBeyondFifteen) {
  for (const PowerRow& row : PowerRows) {
    SetPower(static_cast<quint16>(row.iLevel));
    EXPECT_EQ(lOutputImage, row.lImage) << row.iLevel;
    EXPECT_EQ(iPower, row.iPower) << row.iLevel;
    EXPECT_EQ(bMotorOn, row.bMotorOn) << row.iLevel;
    EXPECT_EQ(iLastPowerRequest, row.iLevel) << row.iLevel;
    EXPECT_EQ(iLeverLevel, row.iPower) << row.iLevel;
  }
}

TEST_F(OutputImage, KeepsTheUpperBitsUnderANewPower) {
  lOutputImage = 0xE5;
  SetPower(9);
  EXPECT_EQ(lOutputImage, 0xE9);
}

TEST_F(OutputImage, ChecksThePowersOfStatementsAndTick) {
  SetPower(5);
  station.Forget();
  for (const int iLevel : {-32768, -1, 16, 32767}) SetPowerChecked(static_cast<qint16>(iLevel));
  EXPECT_EQ(station.WrittenBytes(), Bytes{});
  EXPECT_EQ(lOutputImage, 21);
  EXPECT_EQ(iLastPowerRequest, 5);
  EXPECT_EQ(iPower, 5);
}

struct LeverRow {
  qint16 iLevel;
  float fTop;
};

const LeverRow LeverRows[] = {
    {0, 4760},  {1, 4591.3333F},  {2, 4422.6667F},  {3, 4254},  {4, 4085.3333F},  {5, 3916.6667F},
    {6, 3748},  {7, 3579.3333F},  {8, 3410.6667F},  {9, 3242},  {10, 3073.3333F}, {11, 2904.6667F},
    {12, 2736}, {13, 2567.3333F}, {14, 2398.6667F}, {15, 2230},
};

TEST_F(OutputImage, PutsTheLeverOnEachOfItsSixteenLevels) {
  SetPower(8);
  for (const LeverRow& row : LeverRows) {
    qint16 iLevel = row.iLevel;
    SetPowerLever(iLevel);
    EXPECT_NEAR(imgLever.Top, row.fTop, 0.001F) << row.iLevel;
    EXPECT_EQ(GetLeverLevel(), row.iLevel);
    EXPECT_EQ(iLevel, row.iLevel);
  }
}

struct ClampRow {
  int iLevel;
  qint16 iClamped;
};

const ClampRow ClampRows[] = {{-1, 0}, {-32768, 0}, {16, 15}, {32767, 15}, {0, 0}, {15, 15}};

TEST_F(OutputImage, HandsBackAClampedLeverLevel) {
  for (const ClampRow& row : ClampRows) {
    qint16 iLevel = static_cast<qint16>(row.iLevel);
    SetPowerLever(iLevel);
    EXPECT_EQ(iLevel, row.iClamped) << row.iLevel;
    EXPECT_EQ(iLeverLevel, row.iClamped) << row.iLevel;
  }
}

TEST_F(OutputImage, LeavesADraggedLeverAloneWhereItStandsOnItsLevel) {
  SetPower(3);
  imgLever.Top = 4200;
  SetPower(3);
  EXPECT_EQ(imgLever.Top, 4200);
}

TEST_F(OutputImage, PlacesTheLeverOnItsFirstPower) {
  iLeverLevel = -1;
  imgLever.Top = 1;
  SetPower(0);
  EXPECT_EQ(imgLever.Top, 4760);
}

TEST_F(OutputImage, MovesTheLeverWithoutTouchingTheImage) {
  qint16 iLevel = 12;
  SetPowerLever(iLevel);
  EXPECT_EQ(lOutputImage, 16);
  EXPECT_EQ(iPower, 0);
  EXPECT_EQ(station.WrittenBytes(), Bytes{});
}

struct DirectionRow {
  int iForward;
  qint16 iDirection;
  qint32 lImage;
};

const DirectionRow DirectionRows[] = {
    {0, 0, 7}, {1, 1, 23}, {0, 0, 7}, {-1, 1, 23}, {0, 0, 7}, {300, 1, 23}, {1, 1, 23},
};

TEST_F(OutputImage, TakesAnyNonZeroDirectionForForwardAndKeepsThePower) {
  SetPower(7);
  for (const DirectionRow& row : DirectionRows) {
    SetDirection(static_cast<qint16>(row.iForward));
    EXPECT_EQ(iDirection, row.iDirection) << row.iForward;
    EXPECT_EQ(lOutputImage, row.lImage) << row.iForward;
  }
}

struct BitRow {
  qint32 lBit;
  bool bOn;
  qint32 lImage;
};

const BitRow BitRows[] = {
    {5, true, 48},   {5, true, 48},  {6, true, 112},  {7, true, 240}, {5, false, 208},
    {4, false, 192}, {0, true, 193}, {0, false, 192}, {7, false, 64}, {6, false, 0},
};

TEST_F(OutputImage, SetsAndClearsSingleBits) {
  for (const BitRow& row : BitRows) {
    SetOutputBit(row.lBit, row.bOn);
    EXPECT_EQ(lOutputImage, row.lImage) << row.lBit << row.bOn;
  }
}

TEST_F(OutputImage, TellsPowerAndDirectionNothingOfASingleBit) {
  SetOutputBit(0, true);
  SetOutputBit(4, false);
  EXPECT_EQ(iPower, 0);
  EXPECT_EQ(iDirection, 1);
  EXPECT_FALSE(bMotorOn);
}

}  // namespace
}  // namespace glidetrak
