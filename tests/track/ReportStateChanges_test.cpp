// What makes the tick redraw the panel: each field of the record, once a change.

#include "track/ReportStateChanges.h"

#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"
#include "track/InputDecoding.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

class Report : public testing::Test {
 protected:
  RigStation station;

  void Begin(qint16 iMode) {
    station.Start();
    tmrSystem.Enabled = false;  // only the reports of the test itself
    if (iMode == modeProgram) station.Click("cmdProgram");
    ReportStateChanges();
    ASSERT_FALSE(ReportRedraws());
  }

  /// Whether a report brings the panel in line: it takes a hover picture back then.
  bool ReportRedraws() {
    cmdProgram.Picture = PictureId::DiagBtnWF;
    ReportStateChanges();
    return cmdProgram.Picture.value() != PictureId::DiagBtnWF;
  }
};

struct FieldRow : NamedRow {
  void (*change)();
  bool bInManual, bInProgram;  ///< whether it redraws the panel
};

const FieldRow aFields[] = {
    {{"Running"}, [] { bProgramRunning = true; }, true, true},
    {{"Direction"}, [] { iDirection = 0; }, false, true},
    {{"Power"}, [] { iPower = 7; }, false, true},
    {{"JourneyText"}, [] { iTimingEnabled = 1; }, true, true},
    {{"AnalogTextOnThePort"},
     [] {
       iAnalogEnabled = 1;
       lInputImage = 5;
     },
     true,
     true},
    {{"AnalogTextOnUsb"},
     [] {
       iAnalogEnabled = 1;
       bUsbLink = true;
       iUsbAnalog = 5;
     },
     true,
     true},
    {{"AnalogValueWhileOff"}, [] { lInputImage = 5; }, false, false},
    {{"AnalogZeroOn"}, [] { iAnalogEnabled = 1; }, false, false},
    {{"SensorBitsOnUsb"},
     [] {
       iAnalogEnabled = 1;
       bUsbLink = true;
       lInputImage = 5;
     },
     false,
     false},
    {{"GateBits"},
     [] {
       iAnalogEnabled = 1;
       lInputImage = 0x70;
     },
     false,
     false},
    {{"ElapsedTimeWhileOff"}, [] { lElapsedMs = 5000; }, false, false},
    {{"LinkState"}, [] { bLinkUp = false; }, false, false},
};

class ReportField : public Report, public testing::WithParamInterface<FieldRow> {};

TEST_P(ReportField, RedrawsOnceInManualMode) {
  Begin(modeManual);
  GetParam().change();
  EXPECT_EQ(ReportRedraws(), GetParam().bInManual);
  EXPECT_FALSE(ReportRedraws());
}

TEST_P(ReportField, RedrawsOnceInProgramMode) {
  Begin(modeProgram);
  GetParam().change();
  EXPECT_EQ(ReportRedraws(), GetParam().bInProgram);
  EXPECT_FALSE(ReportRedraws());
}

INSTANTIATE_TEST_SUITE_P(Rows, ReportField, testing::ValuesIn(aFields), RowName());

TEST_F(Report, RedrawsAtTheFirstTick) {
  station.Start();
  EXPECT_TRUE(ReportRedraws());
  EXPECT_FALSE(ReportRedraws());
}

TEST_F(Report, RedrawsWithEachHundredthOfARunningJourney) {
  Begin(modeManual);
  iTimingEnabled = 1;
  lElapsedMs = 1000;
  EXPECT_TRUE(ReportRedraws());
  lElapsedMs = 1004;
  EXPECT_FALSE(ReportRedraws());
  lElapsedMs = 1010;
  EXPECT_TRUE(ReportRedraws());
}

TEST_F(Report, PutsTheLeverOnTheNewPowerInProgramMode) {
  Begin(modeProgram);
  iPower = 15;
  ReportStateChanges();
  EXPECT_EQ(imgLever.Top.value(), 2230);
  EXPECT_EQ(iLeverLevel, 15);
}

TEST_F(Report, LeavesTheLeverAloneInManualMode) {
  Begin(modeManual);
  iPower = 15;
  ReportStateChanges();
  EXPECT_EQ(imgLever.Top.value(), 4760);
  EXPECT_EQ(iLeverLevel, 0);
}

TEST_F(Report, TakesUpInProgramModeWhatChangedInManualMode) {
  Begin(modeProgram);
  iControlMode = modeManual;
  iDirection = 0;
  EXPECT_FALSE(ReportRedraws());
  iControlMode = modeProgram;
  EXPECT_TRUE(ReportRedraws());
}

TEST_F(Report, GoesBackAndForth) {
  Begin(modeManual);
  for (const bool bRunning : {true, false, true, false}) {
    bProgramRunning = bRunning;
    EXPECT_TRUE(ReportRedraws());
    EXPECT_FALSE(ReportRedraws());
  }
}

}  // namespace
}  // namespace glidetrak
