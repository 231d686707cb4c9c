#include "view/EditorTest.h"

#include <QApplication>
#include <QClipboard>

#include "view/EditorText.h"

namespace glidetrak {

void EditorTest::Start(const QString& sText, int iSelStart, int iSelLength) {
  ShowEditor();
  txtProgram.SetText(sText);
  txtProgram.Select(iSelStart, iSelLength);
  txtProgram.SetFocus();
  txtProgram.Change = [this] { ++m_iChanges; };
  Settle();
}

void EditorTest::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(Editor(), key, modifiers);
}

void EditorTest::Type(const QString& sText) {
  QTest::keyClicks(Editor(), sText);
}

void EditorTest::Paste(const QString& sText) {
  QApplication::clipboard()->setText(sText);
  Editor()->paste();
}

void EditorTest::ExpectInStep() {
  Settle();
  const QTextDocument& document = *Editor()->document();
  EXPECT_EQ(StationText(document, 0, document.characterCount() - 1), txtProgram.Text());
  EXPECT_EQ(document.blockCount(), txtProgram.LineCount());
}

}  // namespace glidetrak
