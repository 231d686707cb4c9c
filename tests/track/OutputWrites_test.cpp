// When the byte reaches the rig, and which byte.

#include <gtest/gtest.h>

#include <functional>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "language/RunControl.h"
#include "station/Station.h"
#include "track/AbortProgram.h"
#include "track/ModeAndDirection.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

using Bytes = std::vector<qint32>;

/// What is done, from power 0 and forward on, and the bytes that the rig receives.
struct WriteRow {
  const char* sWhat;
  std::function<void()> act;
  Bytes aBytes;
};

class OutputWrites : public ::testing::Test {
 protected:
  void SetUp() override { station.Start(RigLink::Parallel); }

  template <size_t N>
  void ExpectWrites(const WriteRow (&aRows)[N]) {
    for (const WriteRow& row : aRows) {
      SCOPED_TRACE(row.sWhat);
      SetDirection(1);
      SetPower(0);
      station.Forget();
      row.act();
      EXPECT_EQ(station.WrittenBytes(), row.aBytes);
    }
  }

  Station station;
};

TEST_F(OutputWrites, ComeWithEachPowerAndSkipARepeatedOneWhenChecked) {
  const WriteRow aRows[] = {
      {"power", [] { SetPower(9); }, {25}},
      {"the same power twice", [] { SetPower(9), SetPower(9); }, {25, 25}},
      {"power 0 again", [] { SetPower(0); }, {16}},
      {"checked power", [] { SetPowerChecked(9); }, {25}},
      {"the same checked power twice", [] { SetPowerChecked(9), SetPowerChecked(9); }, {25}},
      {"checked power 0 at 0", [] { SetPowerChecked(0); }, {}},
      {"checked powers out of range", [] { SetPowerChecked(-1), SetPowerChecked(16); }, {}},
      {"checked power behind a clamped one", [] { SetPower(20), SetPowerChecked(0); }, {16, 16}},
  };
  ExpectWrites(aRows);
}

TEST_F(OutputWrites, ComeWithAChangedDirectionOnly) {
  const WriteRow aRows[] = {
      {"forward while forward", [] { SetDirection(1); }, {}},
      {"backward", [] { SetDirection(0); }, {0}},
      {"backward twice", [] { SetDirection(0), SetDirection(0); }, {0}},
      {"there and back", [] { SetDirection(0), SetDirection(1); }, {0, 16}},
      {"backward under power", [] { SetPower(5), SetDirection(0); }, {21, 5}},
      {"power when backward", [] { SetDirection(0), SetPower(5); }, {0, 5}},
  };
  ExpectWrites(aRows);
}

TEST_F(OutputWrites, ComeWithEachSingleBitChangedOrNot) {
  const WriteRow aRows[] = {
      {"set", [] { SetOutputBit(6, true), SetOutputBit(6, false); }, {80, 16}},
      {"clear what is clear", [] { SetOutputBit(6, false); }, {16}},
      {"set what is set", [] { SetOutputBit(4, true); }, {16}},
  };
  ExpectWrites(aRows);
}

TEST_F(OutputWrites, AreAPlainZeroAtALinkCheckAndLeaveTheImageAlone) {
  SetPower(9);
  station.Forget();
  CheckHardware();
  EXPECT_EQ(station.WrittenBytes(), Bytes{0});
  EXPECT_EQ(lOutputImage, 25);
}

TEST_F(OutputWrites, AreAPlainZeroAtTheShutDown) {
  SetPower(9);
  station.Forget();
  EXPECT_THROW(frmGlidetrak.FormUnload(), ProcessEnded);
  EXPECT_EQ(station.WrittenBytes(), Bytes{0});
}

TEST_F(OutputWrites, ComeWithAnAbort) {
  SetPower(9);
  station.Forget();
  AbortProgram();
  EXPECT_EQ(station.WrittenBytes(), Bytes{16});
}

TEST_F(OutputWrites, AreSkippedWhileTheLinkIsDown) {
  bLinkUp = false;
  SetPower(9);
  SetDirection(0);
  SetOutputBit(6, true);
  EXPECT_EQ(station.WrittenBytes(), Bytes{});
  EXPECT_EQ(lOutputImage, 0x49);
  EXPECT_EQ(iPower, 9);
  EXPECT_TRUE(bMotorOn);
  EXPECT_NEAR(imgLever.Top, 3242, 0.001F);
}

TEST_F(OutputWrites, DoNotComeByThemselvesWhenTheLinkIsBack) {
  bLinkUp = false;
  SetPower(9);
  bLinkUp = true;
  SetPowerChecked(9);
  EXPECT_EQ(station.WrittenBytes(), Bytes{});
}

TEST_F(OutputWrites, ThatFailAreToldToNobody) {
  station.platform.rig.bLibraryThere = false;
  bDebugMode = true;
  EXPECT_NO_THROW(SetPower(9));
  EXPECT_EQ(lOutputImage, 25);
  EXPECT_TRUE(bMotorOn);
  EXPECT_EQ(lblPowerLevel.Caption, "9");
  EXPECT_NEAR(imgLever.Top, 3242, 0.001F);
  EXPECT_NO_THROW(SetDirection(0));
  EXPECT_EQ(lOutputImage, 9);
  EXPECT_EQ(iDirection, 0);
  EXPECT_TRUE(station.platform.aBoxes.empty());
}

TEST_F(OutputWrites, ThatFailStillReachTheDebugPanel) {
  pnlDebug.Visible = true;
  station.platform.rig.bLibraryThere = false;
  SetOutputBit(6, true);
  EXPECT_EQ(lOutputImage, 80);
  EXPECT_EQ(ledOutput[6].FillColor, 223);
  SetPower(1);
  EXPECT_EQ(ledOutput[0].FillColor, 223);
}

TEST_F(OutputWrites, SendTheByteThatStandsInTheImage) {
  lOutputImage = 0xF0;
  SetPower(15);
  EXPECT_EQ(station.WrittenBytes(), Bytes{255});
}

struct StartRow {
  RigLink link;
  Bytes aBytes;
};

/// The link check writes its 0 on the parallel link alone.
const StartRow StartRows[] = {
    {RigLink::None, {}}, {RigLink::Parallel, {0, 16, 16}}, {RigLink::Usb, {16, 16}}};

TEST(StartWrites, AreForwardAndThenPowerZeroIfTheLinkIsUp) {
  for (const StartRow& row : StartRows) {
    Station station;
    Bytes aBytes;
    station.platform.rig.OnWrite = [&](qint32 lByte) { aBytes.push_back(lByte); };
    station.Start(row.link);
    EXPECT_EQ(aBytes, row.aBytes) << static_cast<int>(row.link);
  }
}

}  // namespace
}  // namespace glidetrak
