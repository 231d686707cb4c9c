// The USB exchanges at the wire.

#include "hardware/USBIntegration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "station/NamedRow.h"
#include "station/RigStation.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;

/// A report as the adapter gets it: the report id, the data, zeros up to the declared length.
QByteArray OnWire(const QByteArray& data, int iLength) {
  QByteArray report(iLength, '\0');
  return report.replace(1, data.size(), data);
}

QByteArray SetOutput(quint8 iByte) {
  QByteArray data(19, '\0');
  data[0] = 4;
  data[1] = 1;
  data[16] = static_cast<char>(iByte);
  return data;
}

const QByteArray readState("\x03\x00\x00", 3);

class UsbExchange : public testing::Test {
 protected:
  WatchedPlatform platform;
  VirtualRig& rig = platform.rig;

  void Open(HidReportLengths lengths = {65, 65}) {
    rig.AttachUsb();
    rig.aDevices[0].lengths = lengths;
    ASSERT_TRUE(UsbOpenAdapter());
  }

  void ReplyWith(const QByteArray& report) {
    rig.OnReply = [report](QByteArray& bytes) { bytes = report; };
  }
};

TEST_F(UsbExchange, WritesTheOutputByteAtPlaceSixteen) {
  Open();
  for (const int iByte : {0x00, 0x01, 0x10, 0x1F, 0x80, 0xFF}) {
    rig.aReports.clear();
    EXPECT_TRUE(UsbWriteOutput(static_cast<quint8>(iByte)));
    EXPECT_THAT(rig.aReports, ElementsAre(OnWire(SetOutput(static_cast<quint8>(iByte)), 65)));
  }
}

TEST_F(UsbExchange, SpellsSetOutputByteForByte) {
  Open({65, 20});
  UsbWriteOutput(0x1F);
  EXPECT_THAT(rig.aReports,
              ElementsAre(QByteArray::fromHex("00 0401 0000000000000000000000000000 1F 0000")));
}

TEST_F(UsbExchange, SpellsReadStateByteForByte) {
  Open({65, 20});
  UsbReadInput();
  UsbReadAnalog();
  const QByteArray report = QByteArray::fromHex("00 030000 00000000000000000000000000000000");
  EXPECT_THAT(rig.aReports, ElementsAre(report, report));
}

TEST_F(UsbExchange, NeedsTwentyBytesForSetOutput) {
  Open({65, 19});
  EXPECT_FALSE(UsbWriteOutput(1));
  EXPECT_TRUE(rig.aReports.empty());
}

TEST_F(UsbExchange, NeedsFourBytesForReadState) {
  Open({65, 4});
  rig.lInput = 9;
  EXPECT_EQ(UsbReadInput(), 9);
  EXPECT_THAT(rig.aReports, ElementsAre(OnWire(readState, 4)));
}

TEST_F(UsbExchange, CannotReadStateThroughThreeBytes) {
  Open({65, 3});
  rig.lInput = 9;
  EXPECT_EQ(UsbReadInput(), 0);
  EXPECT_TRUE(rig.aReports.empty());
}

TEST_F(UsbExchange, TakesTheInputFromByteTwoAndTheAnalogByteFromByteThree) {
  Open();
  ReplyWith(QByteArray::fromHex("00 11 22 C5 F7 33"));
  EXPECT_EQ(UsbReadInput(), 0xC5);
  EXPECT_EQ(UsbReadAnalog(), 0xF7);
}

TEST_F(UsbExchange, ReadsZeroFromAReplyThatIsTooShort) {
  Open({3, 65});
  ReplyWith(QByteArray::fromHex("00 FF FF"));
  EXPECT_EQ(UsbReadInput(), 0);
  EXPECT_EQ(UsbReadAnalog(), 0);
}

TEST_F(UsbExchange, ReadsTheInputFromAReplyThatEndsBehindIt) {
  Open({4, 65});
  ReplyWith(QByteArray::fromHex("00 FF FF C5"));
  EXPECT_EQ(UsbReadInput(), 0xC5);
  EXPECT_EQ(UsbReadAnalog(), 0);
}

TEST_F(UsbExchange, DropsTheReplyToSetOutput) {
  Open();
  rig.lInput = 0x2A;
  UsbWriteOutput(0x1F);
  EXPECT_EQ(UsbReadInput(), 0x2A);
  EXPECT_EQ(rig.aReadHandles.size(), 2u);
}

TEST_F(UsbExchange, MakesAnExchangeOfItsOwnForTheAnalogByte) {
  Open();
  rig.lAnalog = 7;
  UsbReadInput();
  EXPECT_EQ(UsbReadAnalog(), 0x70);
  EXPECT_EQ(rig.aReports.size(), 2u);
}

TEST_F(UsbExchange, TellsOfTheWriteWhateverBecomesOfTheReply) {
  Open();
  rig.aDevices[0].mood = HidMood::Silent;
  EXPECT_TRUE(UsbWriteOutput(1));
  rig.aDevices[0].mood = HidMood::Vanished;
  EXPECT_FALSE(UsbWriteOutput(1));
}

TEST_F(UsbExchange, DoesNothingBeforeTheFirstOpen) {
  rig.AttachUsb();
  EXPECT_FALSE(UsbWriteOutput(1));
  EXPECT_EQ(UsbReadInput(), 0);
  EXPECT_EQ(UsbReadAnalog(), 0);
  UsbCloseAdapter();
  EXPECT_EQ(rig.iEnumerations, 0);
}

TEST_F(UsbExchange, DoesNothingBehindAClose) {
  Open();
  UsbCloseAdapter();
  EXPECT_TRUE(rig.aOpenHandles.empty());
  EXPECT_FALSE(UsbWriteOutput(1));
  EXPECT_EQ(UsbReadInput(), 0);
  EXPECT_TRUE(rig.aReports.empty());
  EXPECT_EQ(rig.iEnumerations, 1);
}

TEST_F(UsbExchange, ReleasesTheOldObjectBeforeItOpensANewOne) {
  Open();
  size_t iOpen = 99;
  rig.OnEnumerate = [&] { iOpen = rig.aOpenHandles.size(); };
  EXPECT_TRUE(UsbOpenAdapter());
  EXPECT_EQ(iOpen, 0u);
  EXPECT_EQ(rig.aOpenHandles.size(), 2u);
}

TEST_F(UsbExchange, TakesAnyVersionAtEachOpen) {
  Open();
  rig.aDevices[0].attributes.iVersionNumber = 0x0777;
  EXPECT_TRUE(UsbOpenAdapter());
}

struct IdentityRow {
  qint16 iVendor;
  qint16 iProduct;
  bool bFound;
};

TEST_F(UsbExchange, LooksForVendor0CFEProduct0046) {
  for (const IdentityRow& row : {IdentityRow{0x0CFE, 0x0046, true},
                                 {0x0CFE, 0x0043, false},
                                 {0x0CFF, 0x0046, false},
                                 {0x0046, 0x0CFE, false}}) {
    rig.aDevices = {VirtualHid{}};
    rig.aDevices[0].attributes = {row.iVendor, row.iProduct, 1};
    EXPECT_EQ(UsbOpenAdapter(), row.bFound) << row.iVendor << ' ' << row.iProduct;
  }
}

struct MoodRow : NamedRow {
  HidMood mood;
  qint64 lTime;  ///< of one exchange
};

class UsbExchangeTime : public UsbExchange, public testing::WithParamInterface<MoodRow> {};

TEST_P(UsbExchangeTime, IsNeverMoreThanOneSecond) {
  Open();
  rig.aDevices[0].mood = GetParam().mood;
  const std::function<void()> aExchanges[] = {[] { UsbReadInput(); }, [] { UsbReadAnalog(); },
                                              [] { UsbWriteOutput(1); }};
  for (int i = 0; i < 9; ++i) {
    const qint64 lStart = platform.lNow;
    aExchanges[i % 3]();
    EXPECT_EQ(platform.lNow - lStart, GetParam().lTime) << "exchange " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, UsbExchangeTime,
                         testing::Values(MoodRow{"Answers", HidMood::Answers, 0},
                                         MoodRow{"Silent", HidMood::Silent, 1000},
                                         MoodRow{"Vanished", HidMood::Vanished, 0}),
                         RowName());

TEST_F(UsbExchange, LooksForALostDeviceOnceInEachReportAttempt) {
  Open();
  rig.aDevices[0].mood = HidMood::Vanished;
  UsbReadInput();  // the open device's failure
  rig.iEnumerations = 0;
  for (int i = 1; i <= 5; ++i) {
    EXPECT_EQ(UsbReadInput(), 0);
    EXPECT_EQ(rig.iEnumerations, 2 * i);  // the write and the read
  }
}

}  // namespace
}  // namespace glidetrak
