// The rules on paths, names and attributes.

#include "programfiles/FileMenuTest.h"

namespace glidetrak {

namespace {

TEST_F(FileMenuTest, FolderOfAPathEndsInABackslash) {
  const struct {
    QString sPath, sFolder;
  } rows[] = {
      {"C:\\HOME\\A.GTP", "C:\\HOME\\"},
      {"C:\\A.GTP", "C:\\"},
      {"\\A.GTP", "\\"},
      {"C:\\HOME\\", "C:\\HOME\\"},
      {"C:A.GTP", "C:\\"},
      {"AB", "AB\\"},
      {"A", "A\\"},
      {"", "\\"},
      {QString("C:\\HOME") + QChar(u'\0') + "A.GTP" + QChar(u'\0') + "B.GTP", "C:\\HOME\\"},
      {QString("C:\\") + QChar(u'\0') + "A.GTP", "C:\\"},
  };
  for (const auto& row : rows) EXPECT_EQ(GetFolderOfPath(row.sPath), row.sFolder);
}

TEST_F(FileMenuTest, WhatIsThereAndIsNoFolderIsAFile) {
  platform.AddFile("\\H\\FILE", "");
  platform.AddFile("\\H\\FOLDER", "", attrFolder);
  platform.AddFile("\\H\\LOCKED", "", attrReadOnly);
  platform.AddFile("\\H\\LOCKED FOLDER", "", attrFolder | attrReadOnly);
  EXPECT_TRUE(FileExists("\\H\\FILE"));
  EXPECT_TRUE(FileExists("\\h\\file"));
  EXPECT_TRUE(FileExists("\\H\\LOCKED"));
  EXPECT_FALSE(FileExists("\\H\\FOLDER"));
  EXPECT_FALSE(FileExists("\\H\\LOCKED FOLDER"));
  EXPECT_FALSE(FileExists("\\H\\NOTHING"));
  EXPECT_FALSE(FileExists(""));
}

TEST_F(FileMenuTest, ReadOnlyAnswersWithThreeNumbers) {
  platform.AddFile("\\H\\FILE", "");
  platform.AddFile("\\H\\LOCKED", "", attrReadOnly);
  EXPECT_EQ(IsFileReadOnly("\\H\\FILE"), 0);
  EXPECT_EQ(IsFileReadOnly("\\H\\NOTHING"), 2);
  ExpectNoBox();
  EXPECT_EQ(IsFileReadOnly("\\H\\LOCKED"), 1);
  ExpectBox("The Program file can not be saved because it has been set as Read-Only.",
            "Save Program", BoxIcon::Exclamation);
}

TEST_F(FileMenuTest, FileArgumentNeedsItsExtensionAndItsFile) {
  platform.AddFile("\\H\\A.GTP", "");
  platform.AddFile("\\H\\A B.GTP", "");
  platform.AddFile("\\H\\A.TXT", "");
  platform.AddFile("\\H\\A.GTP.BAK", "");
  platform.AddFile("\\H\\F.GTP", "", attrFolder);
  const struct {
    QString sText, sPath;
  } rows[] = {
      {"\\H\\A.GTP", "\\H\\A.GTP"},
      {"\\h\\a.gtp", "\\h\\a.gtp"},
      {"\"\\H\\A.GTP\"", "\\H\\A.GTP"},
      {"\\H\\A B.GTP", "\\H\\A B.GTP"},
      {"\"\\H\\A B.GTP\"", "\\H\\A B.GTP"},
      {"\\H\\\"A B\".GTP", "\\H\\A B.GTP"},
      {"\\H\\A.GTP.BAK", "\\H\\A.GTP.BAK"},
      {"\\H\\A.TXT", ""},
      {"\\H\\NOTHING.GTP", ""},
      {"\\H\\F.GTP", ""},
      {"\\H\\A.GTP \\H\\A B.GTP", ""},
      {"", ""},
  };
  for (const auto& row : rows)
    EXPECT_EQ(ResolveFileArgument(row.sText), row.sPath) << row.sText.toStdString();
}

TEST_F(FileMenuTest, FreeNameCountsUpFromOne) {
  EXPECT_EQ(sGetNextFreeRTPFile("\\H\\PLAN.TXT"), "\\H\\PLAN.GTP");
  platform.AddFile("\\H\\PLAN.GTP", "");
  EXPECT_EQ(sGetNextFreeRTPFile("\\H\\PLAN.TXT"), "\\H\\PLAN1.GTP");
  platform.AddFile("\\H\\PLAN1.GTP", "");
  platform.AddFile("\\H\\PLAN3.GTP", "");
  EXPECT_EQ(sGetNextFreeRTPFile("\\H\\PLAN.TXT"), "\\H\\PLAN2.GTP");
}

TEST_F(FileMenuTest, FreeNameTakesTheLastFourCharactersForTheExtension) {
  EXPECT_EQ(sGetNextFreeRTPFile("\\H\\PLAN"), "\\H\\.GTP");
  EXPECT_EQ(sGetNextFreeRTPFile(".TXT"), ".GTP");
}

TEST_F(FileMenuTest, FreeNameOfAFolderOfThatNameIsFree) {
  platform.AddFile("\\H\\PLAN.GTP", "", attrFolder);
  EXPECT_EQ(sGetNextFreeRTPFile("\\H\\PLAN.TXT"), "\\H\\PLAN.GTP");
}

TEST_F(FileMenuTest, PathTooShortForAnExtensionGetsARandomName) {
  for (const char* sPath : {"", "A", "TXT"}) {
    const QString sName = sGetNextFreeRTPFile(sPath);
    ASSERT_TRUE(sName.endsWith(".GTP")) << sPath;
    const int iNumber = sName.chopped(4).toInt();
    EXPECT_GE(iNumber, 1000) << sPath;
    EXPECT_LE(iNumber, 9999) << sPath;
  }
}

TEST_F(FileMenuTest, MenuStatesFollowTheFlagAndTheText) {
  const struct {
    bool bEnable;
    const char* sText;
    bool bSave;
  } rows[] = {{true, "", false}, {true, "A", true}, {false, "", false}, {false, "A", false}};
  for (const auto& row : rows) {
    txtProgram.SetText(row.sText);
    SetFileMenuStates(row.bEnable);
    EXPECT_EQ(MNUNEWPROG.Enabled, row.bEnable);
    EXPECT_EQ(MNULOADPROG.Enabled, row.bEnable);
    EXPECT_EQ(MNUSAVEPROG.Enabled, row.bSave);
    EXPECT_EQ(MNUSAVEPROGAS.Enabled, row.bSave);
  }
}

}  // namespace

}  // namespace glidetrak
