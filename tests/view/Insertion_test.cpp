// The picker's insertion in the real editor, and what is typed onto it.

#include "authoring/CommandCatalogue.h"
#include "authoring/CommandPicker.h"
#include "authoring/ProgramEditor.h"
#include "language/Keywords.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

class Insertion : public ViewTest {
 protected:
  void SetUp() override {
    txtProgram.GotFocus = txtProgram_GotFocus;
    txtProgram.LostFocus = txtProgram_LostFocus;
    btnSelectComSel.Click = btnSelectComSel_Click;
    LoadKeywords();
    BuildCommandCatalogue();
    ShowEditor();
  }

  /// Chooses a name by the picker's own button.
  void Insert(const QString& sName) {
    ShowCommandPicker();
    Settle();
    lstProgCommands.ListIndex = static_cast<int>(lstProgCommands.List.value().indexOf(sName));
    ASSERT_GE(lstProgCommands.ListIndex, 0) << sName.toStdString();
    QWidget* pSelect = Widget("btnSelectComSel");
    Press(pSelect, {5, 5});
    Release(pSelect, {5, 5});
    Settle();
    ASSERT_FALSE(pnlCommandSel.Visible);
  }
};

struct FurtherKeyRow {
  const char* sText;  ///< ahead of the insertion
  int iCaret;
  const char* sName;
  const char* sTyped;  ///< behind the key
};

const FurtherKeyRow FurtherKeyRows[] = {
    {"", 0, "PRINT ", "x"},
    {"", 0, "HALT", "x"},
    {"BEEP\r\n", 6, "HALT", "BEEP\r\nx"},
    {"BEEP\r\nBREAK", 6, "LIGHT_SENSOR", "BEEP\r\nxBREAK"},
    {"BEEP\r\nBREAK", 2, "GOTO ", "BExEP\r\nBREAK"},
};

TEST_F(Insertion, AFurtherKeyTakesItsPlace) {
  for (const FurtherKeyRow& row : FurtherKeyRows) {
    txtProgram.SetText(row.sText);
    txtProgram.Select(row.iCaret, 0);
    ASSERT_NO_FATAL_FAILURE(Insert(row.sName));
    txtProgram.SetFocus();
    Settle();
    QTest::keyClick(Editor(), Qt::Key_X);
    EXPECT_EQ(txtProgram.Text(), row.sTyped) << row.sName;
  }
}

}  // namespace
}  // namespace glidetrak
