#pragma once

// A started station whose two file dialogs are answered from lists.

#include <gtest/gtest.h>

#include <deque>

#include "authoring/Document.h"
#include "common/SharedState.h"
#include "common/UserPaths.h"
#include "form/frmGlidetrak.h"
#include "programs/FileMenu.h"
#include "programs/ProgramFiles.h"
#include "station/NamedRow.h"
#include "station/Station.h"

namespace glidetrak {

/// What the user does in a dialog: a path, or "" for a cancel.
struct DialogReply {
  QString sPath;
  bool bExtensionDifferent = false;
};

/// The fields that a dialog had when it was shown.
struct Showing {
  QString sFolder, sName, sFilter;
  int iFilterIndex;
  QString sTitle;
  int iFlags;
  QString sDefaultExtension;
  bool bCancelIsError;
};

class ScriptedDialog {
 public:
  explicit ScriptedDialog(FileDialog& dialog) : m_dialog(dialog) {}

  std::deque<DialogReply> aReplies;
  std::vector<Showing> aShowings;
  std::function<void()> OnShow;

  void Show();

 private:
  void Remember();

  FileDialog& m_dialog;
};

class FileMenuTest : public ::testing::Test {
 protected:
  FileMenuTest();

  /// A text that the user has typed into the editor.
  void Type(const QString& sText) { txtProgram.UserEdit(0, 0, sText); }

  /// A file that is there and is opened from the menu, without a question.
  void OpenFile(const QString& sPath, const QByteArray& bytes);

  /// The one box that was shown.
  void ExpectBox(const QString& sText, const QString& sTitle, BoxIcon icon);
  void ExpectNoBox() { EXPECT_EQ(station.BoxTexts(), QStringList()); }

  Station station;
  VirtualPlatform& platform = station.platform;
  ScriptedDialog open{cmLoad};
  ScriptedDialog save{cmSave};
};

}  // namespace glidetrak
