// The file dialogs: what they offer and what they give back.

#include "view/DialogTest.h"

namespace glidetrak {
namespace {

TEST_F(Dialogs, OpenGivesTheChosenFile) {
  const QString sPath = AddFile("PLAN.GTP");
  OnDialog([](QFileDialog* pBox) { TypeName(pBox, "PLAN.GTP"); });
  cmLoad.ShowOpen();
  EXPECT_EQ(cmLoad.FileName, sPath);
  EXPECT_EQ(cmLoad.FileTitle, "PLAN.GTP");
}

TEST_F(Dialogs, OpenShowsTitleFolderAndFilter) {
  cmLoad.FilterIndex = 2;
  cmLoad.FileName = "*.GTP";
  OnDialog([this](QFileDialog* pBox) {
    EXPECT_EQ(pBox->windowTitle(), "title");
    EXPECT_EQ(pBox->directory().path(), QDir(m_folder.path()).path());
    EXPECT_EQ(pBox->nameFilters(), QStringList({"Program (*.GTP)", "Old program (*.TXT)"}));
    EXPECT_EQ(pBox->selectedNameFilter(), "Old program (*.TXT)");
    EXPECT_EQ(pBox->fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(OfferedName(pBox), "");
    pBox->reject();
  });
  EXPECT_THROW(cmLoad.ShowOpen(), RuntimeError);
}

TEST_F(Dialogs, ACancelledOpenIsAnErrorIfAskedFor) {
  cmLoad.FileName = "old";
  OnDialog([](QFileDialog* pBox) { pBox->reject(); });
  try {
    cmLoad.ShowOpen();
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.fault(), Fault::Cancelled);
  }
  EXPECT_EQ(cmLoad.FileName, "");
}

TEST_F(Dialogs, ACancelledSaveIsAnEmptyName) {
  cmSave.FileName = StationName("PLAN.GTP");
  OnDialog([](QFileDialog* pBox) { pBox->reject(); });
  EXPECT_NO_THROW(cmSave.ShowSave());
  EXPECT_EQ(cmSave.FileName, "");
}

TEST_F(Dialogs, SaveTakesNewNamesInSpiteOfTheFlags) {
  OnDialog([](QFileDialog* pBox) { TypeName(pBox, "NEW.GTP"); });
  cmSave.ShowSave();
  EXPECT_EQ(cmSave.FileName, StationName("NEW.GTP"));
  EXPECT_EQ(cmSave.Flags & dlgExtensionDifferent, 0);
}

TEST_F(Dialogs, SaveDoesNotAskBeforeOverwriting) {
  const QString sPath = AddFile("PLAN.GTP");
  OnDialog([](QFileDialog* pBox) {
    TypeName(pBox, "PLAN.GTP");
    EXPECT_FALSE(pBox->isVisible());
  });
  cmSave.ShowSave();
  EXPECT_EQ(cmSave.FileName, sPath);
}

TEST_F(Dialogs, SaveOffersTheProgramsOwnName) {
  cmSave.InitDir = "\\";
  cmSave.FileName = StationName("PLAN.GTP");
  OnDialog([this](QFileDialog* pBox) {
    EXPECT_EQ(OfferedName(pBox), "PLAN.GTP");
    EXPECT_EQ(pBox->directory().path(), QDir(m_folder.path()).path());
    pBox->reject();
  });
  cmSave.ShowSave();
}

struct ExtensionRow {
  const char* sTyped;
  const char* sGiven;
  bool bDifferent;
};

const ExtensionRow ExtensionRows[] = {
    {"PLAN", "PLAN.GTP", false},     {"plan.gtp", "plan.gtp", false},
    {"plan.Gtp", "plan.Gtp", false}, {"PLAN.TXT", "PLAN.TXT", true},
    {"PLAN.2", "PLAN.2", true},      {"A.B.GTP", "A.B.GTP", false},
};

TEST_F(Dialogs, TheDefaultExtensionIsAddedAndCompared) {
  for (const ExtensionRow& row : ExtensionRows) {
    cmSave.Flags = dlgFileMustExist | dlgHideReadOnly;
    OnDialog([&](QFileDialog* pBox) { TypeName(pBox, row.sTyped); });
    cmSave.ShowSave();
    EXPECT_EQ(cmSave.FileTitle, row.sGiven);
    EXPECT_EQ((cmSave.Flags & dlgExtensionDifferent) != 0, row.bDifferent) << row.sTyped;
  }
}

}  // namespace
}  // namespace glidetrak
