// The debug panel's lamps and text.

#include "track/DebugPanel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/RigStation.h"
#include "track/OutputImage.h"
#include "track/PropertyWatch.h"

namespace glidetrak {
namespace {

using testing::IsEmpty;

class Debug : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;

  void Begin(RigLink link = RigLink::Parallel) {
    station.Start(link);
    tmrSystem.Enabled = false;
    pnlDebug.Visible = true;
  }
};

constexpr int lRed = 223;
constexpr int aOutputColours[8] = {lRed, 1233395, 57088, lRed, lRed, lRed, lRed, lRed};

TEST_F(Debug, LightsEachLampForItsOwnBit) {
  Begin();
  for (int iBit = 0; iBit < 8; ++iBit) {
    lInputImage = 1 << iBit;
    lOutputImage = 1 << iBit;
    RefreshDebugPanel();
    for (int i = 0; i < 8; ++i) {
      EXPECT_EQ(ledInput[i].FillColor.value(), i == iBit ? lRed : 0) << iBit << ' ' << i;
      EXPECT_EQ(ledOutput[i].FillColor.value(), i == iBit ? aOutputColours[i] : 0) << iBit;
    }
  }
}

TEST_F(Debug, LightsAllLampsAndNone) {
  Begin();
  lInputImage = lOutputImage = 0xFF;
  RefreshDebugPanel();
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(ledInput[i].FillColor.value(), lRed);
    EXPECT_EQ(ledOutput[i].FillColor.value(), aOutputColours[i]);
  }
  lInputImage = lOutputImage = 0;
  RefreshDebugPanel();
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(ledInput[i].FillColor.value(), 0);
    EXPECT_EQ(ledOutput[i].FillColor.value(), 0);
  }
}

TEST_F(Debug, LightsYellowAndGreenForSix) {
  Begin();
  lOutputImage = 6;
  RefreshDebugPanel();
  const int aExpected[8] = {0, 1233395, 57088, 0, 0, 0, 0, 0};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(ledOutput[i].FillColor.value(), aExpected[i]) << i;
}

TEST_F(Debug, TellsBothBytesAndTheTime) {
  Begin();
  lInputImage = 165;
  lOutputImage = 31;
  RefreshDebugPanel();
  EXPECT_EQ(txtDebug.Text(), "Data In:  165\r\nData Out: 31\r\nTime:     " + platform.LongTime());
}

TEST_F(Debug, DoesNothingWhileItIsHidden) {
  station.Start();
  tmrSystem.Enabled = false;
  QStringList aChanges;
  PropertyWatch watch([&](const QString& sName) { aChanges.append(sName); });
  lInputImage = lOutputImage = 0xFF;
  RefreshDebugPanel();
  EXPECT_THAT(aChanges, IsEmpty());
}

TEST_F(Debug, WritesItsTextOnlyWhenItDiffers) {
  Begin();
  RefreshDebugPanel();
  int iWritten = 0;
  txtDebug.TextSet = [&] { ++iWritten; };
  for (int i = 0; i < 10; ++i) RefreshDebugPanel();
  EXPECT_EQ(iWritten, 0);
  lInputImage ^= 1;
  RefreshDebugPanel();
  EXPECT_EQ(iWritten, 1);
  platform.lNow += 1000;
  RefreshDebugPanel();
  EXPECT_EQ(iWritten, 2);
}

TEST_F(Debug, KeepsTheSelectionOfAnEqualText) {
  Begin();
  RefreshDebugPanel();
  txtDebug.UserSelect(3, 4);
  RefreshDebugPanel();
  EXPECT_EQ(txtDebug.SelStart(), 3);
  EXPECT_EQ(txtDebug.SelLength(), 4);
}

TEST_F(Debug, IsRefreshedByEachOutputOperation) {
  Begin(RigLink::None);
  SetPower(15);
  EXPECT_TRUE(txtDebug.Text().contains("Data Out: 31\r\n"));
  SetDirection(0);
  EXPECT_TRUE(txtDebug.Text().contains("Data Out: 15\r\n"));
  SetOutputBit(6, true);
  EXPECT_TRUE(txtDebug.Text().contains("Data Out: 79\r\n"));
}

TEST_F(Debug, IsRefreshedByEachTick) {
  Begin();
  tmrSystem.Enabled = true;
  station.rig.lInput = 0x25;
  platform.RunFor(25);
  EXPECT_TRUE(txtDebug.Text().startsWith("Data In:  165\r\n"));
  EXPECT_EQ(ledInput[0].FillColor.value(), lRed);
  EXPECT_EQ(ledInput[1].FillColor.value(), 0);
}

TEST_F(Debug, ShowsPowerAndDirectionInDebugModeOnly) {
  Begin();
  lblPowerLevel.Caption = "before";
  SetPower(9);
  SetDirection(0);
  EXPECT_EQ(lblPowerLevel.Caption.value(), "before");
  EXPECT_TRUE(optDirection[1].Value);
  bDebugMode = true;
  SetPower(12);
  SetDirection(0);
  EXPECT_EQ(lblPowerLevel.Caption.value(), "12");
  EXPECT_TRUE(optDirection[0].Value);
  EXPECT_FALSE(optDirection[1].Value);
  SetPower(16);
  SetDirection(1);
  EXPECT_EQ(lblPowerLevel.Caption.value(), "0");
  EXPECT_TRUE(optDirection[1].Value);
}

}  // namespace
}  // namespace glidetrak
