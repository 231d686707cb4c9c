// Names as Windows users type and copy them.

#include "view/DialogTest.h"

namespace glidetrak {
namespace {

TEST_F(Dialogs, APathOpensAndSavesWithBackslashesSlashesAndInQuotes) {
  ASSERT_TRUE(QDir(m_folder.path()).mkdir("two words"));
  const QString sPath = AddFile("two words/b.gtp");
  const QString sSlashes = m_machine.NativePath(sPath);
  for (const QString& sTyped : {sPath, sSlashes, '"' + sPath + '"', '"' + sSlashes + '"',
                                QString("two words\\b.gtp"), QString("\"two words\\b.gtp\"")}) {
    for (FileDialog* pDialog : {&cmLoad, &cmSave}) {
      pDialog->FileName = "";
      OnDialog([&](QFileDialog* pBox) { TypeName(pBox, sTyped); });
      pDialog == &cmLoad ? cmLoad.ShowOpen() : cmSave.ShowSave();
      EXPECT_EQ(pDialog->FileName, sPath) << sTyped.toStdString();
    }
  }
}

TEST_F(Dialogs, ANameInQuotesGetsTheDefaultExtension) {
  OnDialog([](QFileDialog* pBox) { TypeName(pBox, "\"PLAN\""); });
  cmSave.ShowSave();
  EXPECT_EQ(cmSave.FileName, StationName("PLAN.GTP"));
}

TEST_F(Dialogs, ANameWithAQuoteInItIsRefusedByTheSystemAndIsNoOtherFile) {
  for (const char* sName : {"b.gtp", "b.GTP"}) AddFile(sName);
  for (const char* sTyped : {"a\"b.gtp", "a\"b", "a\"b.gtp\"", "\"", "\"\""}) {
    cmSave.FileName = "";
    OnDialog([&](QFileDialog* pBox) { TypeName(pBox, sTyped); });
    cmSave.ShowSave();
    EXPECT_THROW(m_machine.WriteFile(cmSave.FileName, "X"), RuntimeError) << sTyped;
  }
}

}  // namespace
}  // namespace glidetrak
