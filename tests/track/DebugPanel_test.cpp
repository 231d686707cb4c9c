// The debug panel: lamps and text.

#include "track/DebugPanel.h"

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/Station.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

constexpr int lDark = 0;

class DebugPanel : public ::testing::Test {
 protected:
  void SetUp() override {
    station.Start();
    pnlDebug.Visible = true;
  }

  Station station;
};

constexpr int aOutputColours[8] = {223, 1233395, 57088, 223, 223, 223, 223, 223};

TEST_F(DebugPanel, LightsTheLampOfEachBitThatIsSet) {
  for (int iBit = 0; iBit < 8; ++iBit) {
    lInputImage = 1 << iBit;
    lOutputImage = 1 << iBit;
    RefreshDebugPanel();
    for (int i = 0; i < 8; ++i) {
      EXPECT_EQ(ledInput[i].FillColor, i == iBit ? 223 : lDark) << iBit << i;
      EXPECT_EQ(ledOutput[i].FillColor, i == iBit ? aOutputColours[i] : lDark) << iBit << i;
    }
  }
}

TEST_F(DebugPanel, LightsYellowAndGreenForSix) {
  lOutputImage = 6;
  RefreshDebugPanel();
  const int aExpected[8] = {lDark, 1233395, 57088, lDark, lDark, lDark, lDark, lDark};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(ledOutput[i].FillColor, aExpected[i]) << i;
}

TEST_F(DebugPanel, WritesBothBytesAndTheTime) {
  lInputImage = 129;
  lOutputImage = 31;
  RefreshDebugPanel();
  EXPECT_EQ(txtDebug.Text(),
            "Data In:  129\r\nData Out: 31\r\nTime:     " + station.platform.LongTime());
}

TEST_F(DebugPanel, WritesItsTextOnlyWhenItDiffers) {
  RefreshDebugPanel();
  int iWrites = 0;
  txtDebug.TextSet = [&] { ++iWrites; };
  RefreshDebugPanel();
  EXPECT_EQ(iWrites, 0);
  lInputImage = 1;
  RefreshDebugPanel();
  EXPECT_EQ(iWrites, 1);
  txtDebug.TextSet = [] {};
}

TEST_F(DebugPanel, ShowsNothingWhileItIsHidden) {
  RefreshDebugPanel();
  const QString sBefore = txtDebug.Text();
  pnlDebug.Visible = false;
  lInputImage = 255;
  RefreshDebugPanel();
  EXPECT_EQ(txtDebug.Text(), sBefore);
  EXPECT_EQ(ledInput[0].FillColor, lDark);
}

TEST_F(DebugPanel, FollowsEachOperationOnTheOutputByte) {
  SetPower(1);
  EXPECT_EQ(ledOutput[0].FillColor, 223);
  SetDirection(0);
  EXPECT_EQ(ledOutput[4].FillColor, lDark);
  SetOutputBit(5, true);
  EXPECT_EQ(ledOutput[5].FillColor, 223);
}

}  // namespace
}  // namespace glidetrak
