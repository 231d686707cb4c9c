#include "files/FileMenuTest.h"

namespace glidetrak {

void ScriptedDialog::Remember() {
  aShowings.push_back({m_dialog.InitDir, m_dialog.FileName, m_dialog.Filter, m_dialog.FilterIndex,
                       m_dialog.DialogTitle, m_dialog.Flags, m_dialog.DefaultExt,
                       m_dialog.CancelError});
}

void ScriptedDialog::Show() {
  Remember();
  if (OnShow) OnShow();
  DialogReply reply;
  if (aReplies.empty()) {
    ADD_FAILURE() << "a dialog that the test does not expect";
  } else {
    reply = aReplies.front();
    aReplies.pop_front();
  }
  m_dialog.FileName = reply.sPath;
  m_dialog.FileTitle = reply.sPath.mid(reply.sPath.lastIndexOf(u'\\') + 1);
  if (reply.bExtensionDifferent) m_dialog.Flags |= dlgExtensionDifferent;
  if (reply.sPath.isEmpty() && m_dialog.CancelError) throw RuntimeError(Fault::Cancelled);
}

FileMenuTest::FileMenuTest() {
  station.Start();
  cmLoad.ShowOpen = [this] { open.Show(); };
  cmSave.ShowSave = [this] { save.Show(); };
}

void FileMenuTest::OpenFile(const QString& sPath, const QByteArray& bytes) {
  platform.AddFile(sPath, bytes);
  open.aReplies.push_back({sPath});
  OpenProgram();
  ASSERT_FALSE(bProgramDirty);
}

void FileMenuTest::ExpectBox(const QString& sText, const QString& sTitle, BoxIcon icon) {
  ASSERT_EQ(platform.aBoxes.size(), 1U);
  EXPECT_EQ(platform.aBoxes[0].sText, sText);
  EXPECT_EQ(platform.aBoxes[0].sTitle, sTitle);
  EXPECT_EQ(platform.aBoxes[0].icon, icon);
}

}  // namespace glidetrak
