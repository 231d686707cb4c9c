// Start-up: what Form_Load leaves behind.

#include "shell/StartUp.h"

#include <gtest/gtest.h>

#include "authoring/Document.h"
#include "common/SharedState.h"
#include "common/UserPaths.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "hardware/AdapterLayer.h"
#include "language/CommandNames.h"
#include "language/CompilePass.h"
#include "shell/CommandLine.h"
#include "station/Station.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

class StartUp : public ::testing::Test {
 protected:
  Station station;
};

TEST_F(StartUp, StandsWithTheEditorReadyBehindItsPanel) {
  station.Start();
  EXPECT_FALSE(pnlProgramBox.Visible);
  EXPECT_TRUE(txtProgram.Visible);
  EXPECT_TRUE(txtFocusGrab.Visible);
  EXPECT_FALSE(cmbExamples.Visible);
}

TEST_F(StartUp, CountsTheLoadedTextAsNoChange) {
  station.platform.AddFile("C:\\PLAN.GTP", "HALT");
  bProgramDirty = true;
  station.Start(RigLink::None, "C:\\PLAN.GTP");
  EXPECT_FALSE(bProgramDirty);
  EXPECT_FALSE(bLoading);
  EXPECT_TRUE(bNeedCompile);
  EXPECT_FALSE(MNUSAVEPROG.Enabled);
  EXPECT_FALSE(MNUSAVEPROGAS.Enabled);
}

TEST_F(StartUp, TakesTheFirstEditForAChange) {
  station.Start();
  txtProgram.UserEdit(0, 0, "X");
  EXPECT_TRUE(bProgramDirty);
  EXPECT_TRUE(MNUSAVEPROG.Enabled);
  EXPECT_TRUE(MNUSAVEPROGAS.Enabled);
}

TEST_F(StartUp, SetsForwardAndPowerZero) {
  station.Start(RigLink::Parallel);
  EXPECT_EQ(lOutputImage, 16);
  EXPECT_EQ(iDirection, 1);
  EXPECT_EQ(iPower, 0);
  EXPECT_EQ(imgLever.Top, 4760);
}

TEST_F(StartUp, BuildsTheNames) {
  station.Start();
  EXPECT_EQ(CommandNameTable[0].sName, "AIRPORT_CALL");
}

TEST_F(StartUp, ShowsBothForms) {
  station.Start();
  EXPECT_TRUE(frmGlidetrak.Visible);
  EXPECT_TRUE(frmAbout.Visible);
}

TEST_F(StartUp, HidesTheFormBehindTheHourglassWhileItLoads) {
  frmGlidetrak.Visible = true;
  bool bHidden = false;
  int iPointer = ptrDefault;
  const auto watch = imgLever.Top.addNotifier([&] {
    bHidden = !frmGlidetrak.Visible;
    iPointer = screen.MousePointer;
  });
  station.Start();
  EXPECT_TRUE(bHidden);
  EXPECT_EQ(iPointer, ptrHourglass);
}

/// The language of the system, the command line, and what comes of them; the Spanish folder holds a
/// configuration.
struct LanguageRow {
  int iSystem;
  const char* sCommandLine;
  const char* sIndex;
  const char* sFolder;
  const char* sTrace;  ///< caption of Trace
};

const LanguageRow LanguageRows[] = {
    {1033, "", "0", "", "Trace"},
    {2057, "", "1", "", "Trace"},
    {3082, "", "2", "Language\\0C0A\\", "Ej. secuencial"},
    {1036, "", "0", "", "Trace"},
    {1087, "", "0", "", "Trace"},
    {1033, "/LC=0C0A", "2", "Language\\0C0A\\", "Ej. secuencial"},
    {1033, "/lc 0c0a", "2", "Language\\0C0A\\", "Ej. secuencial"},
    {1033, "/LANG='2'", "2", "Language\\0C0A\\", "Trace"},
    {1033, "/LANG='2' /LC=0C0A", "2", "Language\\0C0A\\", "Trace"},
    {1033, "/LC=040C", "0", "", "Trace"},
    {3082, "/LANG='6'", "6", "", "Ej. secuencial"},
    {3082, "/LC=0409", "0", "", "Trace"},
};

TEST(StartLanguage, PicksTextsAndFolderEachInItsWay) {
  for (const LanguageRow& row : LanguageRows) {
    SCOPED_TRACE(row.sCommandLine);
    iUILanguage = 0;
    Station station;
    station.platform.iUserLanguage = row.iSystem;
    station.platform.AddFile("\\STATION\\Language\\0C0A\\TV_GLIDETRAK.INI", "");
    station.Start(RigLink::None, row.sCommandLine);
    EXPECT_EQ(sLanguageIndex, row.sIndex);
    EXPECT_EQ(sLanguageFolder, row.sFolder);
    EXPECT_EQ(cmdSingleStep.Caption, row.sTrace);
  }
}

}  // namespace
}  // namespace glidetrak
