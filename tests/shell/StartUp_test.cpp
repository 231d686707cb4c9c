// The state in which start-up leaves the station.

#include "programs/ProgramFiles.h"
#include "shell/CommandLine.h"
#include "shell/StartUpTest.h"

namespace glidetrak {

namespace {

TEST_F(StartUpTest, LeavesAnIdleStationInManualMode) {
  Start();
  EXPECT_FALSE(bLoading);
  EXPECT_FALSE(bProgramDirty);
  EXPECT_FALSE(bProgramRunning);
  EXPECT_EQ(iControlMode, modeManual);
  EXPECT_EQ(lInputImage, 0);
  EXPECT_EQ(lOutputImage, 16);
  EXPECT_TRUE(tmrSystem.Enabled);
  EXPECT_EQ(tmrSystem.Interval, 25);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  EXPECT_EQ(frmGlidetrak.Caption.value(), "Glidetrak Control");
}

TEST_F(StartUpTest, FolderOfTheExecutableEndsInABackslash) {
  for (const char* sFolder : {"\\STATION", "\\STATION\\"}) {
    platform.sExecutableFolder = sFolder;
    Start();
    EXPECT_EQ(sAppPath, "\\STATION\\");
    EXPECT_EQ(platform.sCurrentFolder, "\\STATION\\");
  }
}

TEST_F(StartUpTest, ShowsTheLinkWithAndWithoutAnAdapter) {
  Start();
  EXPECT_EQ(lblHWState.Caption.value(), "Glidetrak interface not detected");
  EXPECT_TRUE(tmrReconnect.Enabled);
}

TEST_F(StartUpTest, ShowsAFoundAdapterAndDoesNotRetry) {
  platform.rig.AttachUsb();
  Start();
  EXPECT_EQ(lblHWState.Caption.value(), "Glidetrak interface detected");
  EXPECT_FALSE(tmrReconnect.Enabled);
}

TEST_F(StartUpTest, ReadsTheSimulationFileAndTheDocumentsFolder) {
  Start();
  EXPECT_EQ(sSimulationFile, "glidetrak.swf");
  EXPECT_EQ(sUserFolder, "\\DOCUMENTS\\");
  platform.AddFile("\\STATION\\TV_GLIDETRAK.INI", "[MiscSettings]\r\nSWFILE=other\r\n");
  Start();
  EXPECT_EQ(sSimulationFile, "other");
}

class CommandLineFile : public StartUpTest {
 protected:
  void SetUp() override {
    platform.AddFile("\\STATION\\TV_GLIDETRAK.INI", "[MiscSettings]\r\nHW_EXAMPLES=1\r\n");
    platform.AddFile("\\STATION\\Examples\\EXAMPLE1.GTP", "PRESET");
    platform.AddFile("\\H\\Trip.gtp", "HALT");
  }
};

TEST_F(CommandLineFile, StandsInTheEditorUnchanged) {
  Start("\"\\H\\Trip.gtp\"");
  EXPECT_EQ(txtProgram.Text(), "HALT");
  EXPECT_EQ(sProgramFile, "\\H\\TRIP.GTP");
  EXPECT_EQ(frmGlidetrak.Caption.value(), "TRIP.GTP : Glidetrak Control");
  EXPECT_FALSE(bProgramDirty);
  EXPECT_EQ(iControlMode, modeManual);
}

TEST_F(CommandLineFile, GivesWayToTheFirstPresetWhenItIsMissingOrNoProgram) {
  platform.AddFile("\\H\\PLAN.TXT", "TEXT");
  platform.AddFile("\\H\\F.GTP", "", attrFolder);
  for (const char* sText : {"", "\\H\\NOTHING.GTP", "\\H\\PLAN.TXT", "\\H\\TRIP", "\\H\\F.GTP"}) {
    Start(sText);
    EXPECT_EQ(txtProgram.Text(), "PRESET") << sText;
    EXPECT_EQ(sProgramFile, "") << sText;
    EXPECT_EQ(frmGlidetrak.Caption.value(), "Glidetrak Control") << sText;
    txtProgram.SetText("");  // so that the next text is the next start's
  }
  EXPECT_TRUE(platform.aBoxes.empty());
}

TEST_F(CommandLineFile, ThatCannotBeReadLeavesTheEditorEmptyInSilence) {
  platform.aUnreadable = {"\\H\\TRIP.GTP"};
  Start("\\H\\Trip.gtp");
  EXPECT_EQ(txtProgram.Text(), "");
  EXPECT_TRUE(platform.aBoxes.empty());
  EXPECT_EQ(screen.MousePointer, ptrDefault);
  EXPECT_TRUE(frmGlidetrak.Visible);
}

}  // namespace

}  // namespace glidetrak
