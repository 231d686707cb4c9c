// Names that hold what separates names elsewhere.

#include "view/DialogTest.h"

namespace glidetrak {
namespace {

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
