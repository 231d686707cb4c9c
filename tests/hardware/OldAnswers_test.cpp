// Answers that nobody waits for any more: they came too late, came unasked or were another
// process's. No later read takes one of them for its own.

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "hardware/USBIntegration.h"
#include "station/RigStation.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

constexpr qint32 lTooLate = 1100;  ///< milliseconds; a read waits 1000
const QByteArray unasked = QByteArray::fromHex("00 EE EE EE EE");

class OldAnswers : public testing::Test {
 protected:
  OldAnswers() {
    rig.AttachUsb();
    EXPECT_TRUE(UsbOpenAdapter());
  }

  /// An answer stays away from its read and is on its way.
  void LoseAnswer() {
    rig.aDevices[0].lDelay = lTooLate;
    rig.lInput = 0x7F;
    EXPECT_EQ(UsbReadInput(), 0);
    rig.aDevices[0].lDelay = 0;
  }

  void ExpectTrueReadings() {
    for (qint32 lInput = 1; lInput <= 5; ++lInput) {
      rig.lInput = lInput;
      EXPECT_EQ(UsbReadInput(), lInput);
    }
  }

  /// A process that has the same device open and asks it too.
  void AskFromElsewhere(qint32 lHandle, qint32 lInput) {
    rig.lInput = lInput;
    rig.Write(lHandle, QByteArray::fromHex("00 03 00 00"));
  }

  RigStation station;
  WatchedPlatform& platform = station.platform;
  VirtualRig& rig = station.rig;
};

TEST_F(OldAnswers, OneThatComesLateSpoilsNoLaterRead) {
  LoseAnswer();
  rig.lInput = 0x2A;
  EXPECT_EQ(UsbReadInput(), 0x2A);  // opens the device anew; the old answer comes behind this
  platform.lNow += lTooLate;
  ExpectTrueReadings();
}

TEST_F(OldAnswers, OneThatComesIntoTheNextReadSpoilsThatOneOnly) {
  LoseAnswer();
  rig.aDevices[0].lDelay = 300;
  rig.lInput = 0x2A;
  EXPECT_EQ(UsbReadInput(), 0x7F) << "an answer does not tell whose it is";
  platform.lNow += 300;
  rig.aDevices[0].lDelay = 0;
  ExpectTrueReadings();
}

TEST_F(OldAnswers, OneThatCameUnaskedSpoilsNoRead) {
  rig.SendInput(unasked);
  ExpectTrueReadings();
}

TEST_F(OldAnswers, OnesThatFillTheQueueLeaveRoomForTheNext) {
  for (int i = 0; i < 200; ++i) rig.SendInput(unasked);
  ExpectTrueReadings();
}

TEST_F(OldAnswers, OnesOfAnotherProcessSpoilNoRead) {
  const qint32 lOther = rig.Open(rig.aDevices[0].path);
  for (qint32 lInput = 1; lInput <= 5; ++lInput) {
    AskFromElsewhere(lOther, 0x55);
    rig.lInput = lInput;
    EXPECT_EQ(UsbReadInput(), lInput);
  }
}

TEST_F(OldAnswers, SpoilNoWriteAndNoAnalogReading) {
  rig.SendInput(unasked);
  EXPECT_TRUE(UsbWriteOutput(0x1F));
  rig.SendInput(unasked);
  rig.lAnalog = 7;
  EXPECT_EQ(UsbReadAnalog(), 0x70);
}

TEST(OldAnswersInTheTick, TheAnswerToAWriteIsNeverTakenForTheSensors) {
  RigStation station;
  station.Start(RigLink::Usb);
  VirtualHid& device = station.rig.aDevices[0];
  device.lDelay = lTooLate;
  station.platform.RunFor(25);  // the tick's read gives up
  device.lDelay = 0;
  station.platform.RunFor(lTooLate);
  station.rig.lInput = 0x2A;
  for (qint16 iLevel = 1; iLevel <= 5; ++iLevel) {
    SetPower(iLevel);
    station.platform.RunFor(25);
    EXPECT_EQ(lInputImage, 0x2A);
  }
}

}  // namespace
}  // namespace glidetrak
