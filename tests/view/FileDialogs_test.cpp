// The file dialogs: what they offer and what they give back.

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Dialogs : public ViewTest {
 protected:
  Dialogs() {
    for (FileDialog* pDialog : {&cmLoad, &cmSave}) {
      pDialog->InitDir = m_machine.StationPath(m_folder.path());
      pDialog->Filter = "Program (*.GTP)|*.GTP|Old program (*.TXT)|*.TXT";
      pDialog->DialogTitle = "title";
      pDialog->Flags = dlgFileMustExist | dlgHideReadOnly;
    }
    cmLoad.DefaultExt = "TXT";
    cmLoad.CancelError = true;
    cmSave.DefaultExt = "GTP";
  }

  QString AddFile(const QString& sName) {
    QFile file(m_folder.filePath(sName));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return StationName(sName);
  }
  QString StationName(const QString& sName) {
    return m_machine.StationPath(m_folder.filePath(sName));
  }

  /// Does something on the dialog that is opened next.
  static void OnDialog(const std::function<void(QFileDialog*)>& act) {
    QTimer::singleShot(0, MainWindow(), [act] {
      auto* pBox = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(pBox, nullptr);
      act(pBox);
    });
  }
  static void TypeName(QFileDialog* pBox, const QString& sName) {
    auto* pName = pBox->findChild<QLineEdit*>("fileNameEdit");
    ASSERT_TRUE(QTest::qWaitForWindowActive(pBox));
    pName->setFocus();  // else the dialog puts the file that it selects meanwhile into its place
    pName->setText(sName);
    QTest::keyClick(pName, Qt::Key_Return);
  }
  static QString OfferedName(const QFileDialog* pBox) {
    return pBox->findChild<QLineEdit*>("fileNameEdit")->text();
  }

  QTemporaryDir m_folder;
};

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

struct OddNameRow {
  const char* sTyped;
  const char* sSaved;
};

const OddNameRow OddNameRows[] = {
    {"a\"b.gtp", "a\"b.gtp"}, {"a\"b", "a\"b.GTP"}, {"\"b.gtp\"", "\"b.gtp\""},
    {"a\\b.gtp", "a\\b.gtp"}, {"\\", "\\.GTP"},
};

TEST_F(Dialogs, ANameWithAQuoteOrABackslashIsTheNameThatWasTypedAndNoFileOfTheStation) {
  for (const char* sName : {"b.gtp", "ab.gtp"}) AddFile(sName);
  ASSERT_TRUE(QDir(m_folder.path()).mkdir("a"));
  AddFile("a/b.gtp");
  for (const OddNameRow& row : OddNameRows) {
    cmSave.FileName = "";
    OnDialog([&](QFileDialog* pBox) { TypeName(pBox, row.sTyped); });
    cmSave.ShowSave();
    EXPECT_EQ(m_machine.NativePath(cmSave.FileName), m_folder.filePath(row.sSaved));
    EXPECT_THROW(m_machine.WriteFile(cmSave.FileName, "X"), RuntimeError) << row.sTyped;
    OnDialog([&](QFileDialog* pBox) { TypeName(pBox, row.sTyped); });
    cmLoad.ShowOpen();
    EXPECT_THROW(m_machine.ReadFile(cmLoad.FileName), RuntimeError) << row.sTyped;
  }
}

TEST_F(Dialogs, ARefusedNameIsOfferedAgainAsItWasTyped) {
  OnDialog([&](QFileDialog* pBox) { TypeName(pBox, "a\"b.gtp"); });
  cmSave.ShowSave();
  OnDialog([&](QFileDialog* pBox) {
    EXPECT_EQ(OfferedName(pBox), "a\"b.gtp");
    pBox->reject();
  });
  cmSave.ShowSave();
}

TEST_F(Dialogs, AFolderWithAQuoteAndABackslashIsOneLikeAnyOther) {
  ASSERT_TRUE(QDir(m_folder.path()).mkdir("my \"own\" a\\b"));
  const QString sNative = m_folder.filePath("my \"own\" a\\b/plan.gtp");
  OnDialog([&](QFileDialog* pBox) { TypeName(pBox, sNative); });
  cmSave.ShowSave();
  m_machine.WriteFile(cmSave.FileName, "HALT");
  EXPECT_TRUE(QFile::exists(sNative));
  OnDialog([&](QFileDialog* pBox) {
    EXPECT_EQ(OfferedName(pBox), "plan.gtp");
    EXPECT_EQ(pBox->directory().path(), QFileInfo(sNative).path());
    pBox->reject();
  });
  cmSave.ShowSave();
}

}  // namespace
}  // namespace glidetrak
