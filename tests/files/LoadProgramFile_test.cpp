// Loading a Control Program.

#include <gtest/gtest.h>

#include "authoring/Document.h"
#include "common/SharedState.h"
#include "common/UnicodeFunctions.h"
#include "form/frmGlidetrak.h"
#include "language/CompilePass.h"
#include "language/RunState.h"
#include "platform/Platform.h"
#include "programs/ProgramFiles.h"
#include "station/Station.h"

namespace glidetrak {
namespace {

class LoadFile : public ::testing::Test {
 protected:
  void SetUp() override {
    station.Start();
    txtProgram.SetText("OLD");
    sProgramFile = "\\OLD.GTP";
    frmGlidetrak.Caption = "OLD.GTP : Glidetrak Control";
  }

  /// Loads the path; whether that succeeded.
  static bool Load(const QString& sPath) {
    bool bSuccess = false;
    LoadProgramFile(sPath, bSuccess);
    return bSuccess;
  }

  void ExpectTheOldProgram() {
    EXPECT_EQ(txtProgram.Text(), "OLD");
    EXPECT_EQ(sProgramFile, "\\OLD.GTP");
    EXPECT_EQ(frmGlidetrak.Caption, "OLD.GTP : Glidetrak Control");
    EXPECT_TRUE(station.BoxTexts().empty());
  }

  Station station;
};

struct NameRow {
  const char* sPath;
  const char* sProgramFile;
  const char* sTitle;
};

const NameRow NameRows[] = {
    {"C:\\Work\\plan.gtp", "C:\\Work\\plan.gtp", "PLAN.GTP : Glidetrak Control"},
    {"C:\\PLAN.GTP", "C:\\PLAN.GTP", "PLAN.GTP : Glidetrak Control"},
    {"plan.gtp", "plan.gtp", "PLAN.GTP : Glidetrak Control"},
    {"\\a b\\señal.Gtp", "\\a b\\señal.Gtp", "SEÑAL.GTP : Glidetrak Control"},
    {"\\PLANGTP", "\\PLANGTP", "PLANGTP : Glidetrak Control"},
};

TEST_F(LoadFile, NamesTheProgramAfterItsFile) {
  for (const NameRow& row : NameRows) {
    station.platform.AddFile(row.sPath, "BEEP");
    EXPECT_TRUE(Load(row.sPath)) << row.sPath;
    EXPECT_EQ(sProgramFile, row.sProgramFile);
    EXPECT_EQ(frmGlidetrak.Caption, row.sTitle);
  }
}

const NameRow OtherNameRows[] = {
    {"C:\\OLD.TXT", "C:\\OLD.GTP", "OLD.GTP : Glidetrak Control"},
    {"C:\\Plan.txt", "C:\\Plan2.GTP", "PLAN2.GTP : Glidetrak Control"},
    {"C:\\PLAN.BAS", "C:\\PLAN2.GTP", "PLAN2.GTP : Glidetrak Control"},
    {"C:\\FREE.", "C:\\F.GTP", "F.GTP : Glidetrak Control"},
};

TEST_F(LoadFile, NamesAProgramOfAnyOtherKindAfterAFreeName) {
  station.platform.AddFile("C:\\PLAN.GTP", "");
  station.platform.AddFile("C:\\PLAN1.GTP", "");
  for (const NameRow& row : OtherNameRows) {
    station.platform.AddFile(row.sPath, "BEEP");
    EXPECT_TRUE(Load(row.sPath)) << row.sPath;
    EXPECT_EQ(sProgramFile, row.sProgramFile);
    EXPECT_EQ(frmGlidetrak.Caption, row.sTitle);
    EXPECT_FALSE(FileExists(sProgramFile));
  }
}

TEST_F(LoadFile, PutsEachByteIntoTheEditor) {
  QByteArray bytes;
  for (int i = 0; i < 256; ++i) bytes.append(static_cast<char>(i));
  station.platform.AddFile("\\A.GTP", bytes);
  EXPECT_TRUE(Load("\\A.GTP"));
  EXPECT_EQ(txtProgram.Text().size(), 256);
  EXPECT_EQ(ToCodePage(txtProgram.Text()), bytes);
}

const QByteArray Contents[] = {"",     "BEEP",     "BEEP\r\n", "A\nB",
                               "A\rB", "\r\n\r\n", " \t ",     "\xE9\x80"};

TEST_F(LoadFile, ChangesNothingInTheBytes) {
  for (const QByteArray& bytes : Contents) {
    station.platform.AddFile("\\A.GTP", bytes);
    EXPECT_TRUE(Load("\\A.GTP"));
    EXPECT_EQ(ToCodePage(txtProgram.Text()), bytes);
  }
}

TEST_F(LoadFile, StartsTheNewProgramAtItsBeginning) {
  station.platform.AddFile("\\A.GTP", "BEEP");
  lCurrentLine = 4;
  bTraceArmed = true;
  bNeedCompile = false;
  EXPECT_TRUE(Load("\\A.GTP"));
  EXPECT_EQ(lCurrentLine, 0);
  EXPECT_FALSE(bTraceArmed);
  EXPECT_TRUE(bNeedCompile);
  EXPECT_EQ(txtProgram.SelStart(), 0);
}

TEST_F(LoadFile, RepaintsTheEditorAndGivesThePointerBack) {
  station.platform.AddFile("\\A.GTP", "BEEP");
  QString sPainted;
  int iPointer = ptrDefault;
  txtProgram.Refresh = [&] {
    sPainted = txtProgram.Text();
    iPointer = screen.MousePointer;
  };
  EXPECT_TRUE(Load("\\A.GTP"));
  EXPECT_EQ(sPainted, "BEEP");
  EXPECT_EQ(iPointer, ptrHourglass);
  EXPECT_EQ(screen.MousePointer, ptrDefault);
}

TEST_F(LoadFile, RefusesWhatIsNotThere) {
  EXPECT_FALSE(Load("\\NOWHERE.GTP"));
  ExpectTheOldProgram();
  EXPECT_FALSE(Load(""));
  ExpectTheOldProgram();
}

TEST_F(LoadFile, RefusesAFolder) {
  station.platform.AddFile("\\FOLDER.GTP", "", attrFolder);
  EXPECT_FALSE(Load("\\FOLDER.GTP"));
  ExpectTheOldProgram();
}

TEST_F(LoadFile, KeepsTheOldProgramWhenTheFileCannotBeRead) {
  station.platform.AddFile("\\A.GTP", "BEEP");
  station.platform.aUnreadable.insert("\\A.GTP");
  EXPECT_FALSE(Load("\\A.GTP"));
  ExpectTheOldProgram();
}

TEST_F(LoadFile, KeepsTheOldProgramWhileTheFileSlotStandsOpen) {
  station.platform.AddFile("\\A.GTP", "BEEP");
  bFileSlotOpen = true;
  EXPECT_FALSE(Load("\\A.GTP"));
  ExpectTheOldProgram();
}

TEST_F(LoadFile, TakesAReadOnlyFile) {
  station.platform.AddFile("\\A.GTP", "BEEP", attrReadOnly);
  EXPECT_TRUE(Load("\\A.GTP"));
  EXPECT_EQ(txtProgram.Text(), "BEEP");
}

}  // namespace
}  // namespace glidetrak
