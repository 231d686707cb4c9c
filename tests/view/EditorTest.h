#pragma once

// The editor under a user's hands.

#include "view/ViewTest.h"

namespace glidetrak {

class EditorTest : public ViewTest {
 protected:
  /// Shows the editor with that text and selection, and counts the changes from here on.
  void Start(const QString& sText, int iSelStart = 0, int iSelLength = 0);

  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void Type(const QString& sText);
  static void Paste(const QString& sText);

  /// The widget shows exactly the station's text.
  static void ExpectInStep();

  int m_iChanges = 0;
};

}  // namespace glidetrak
