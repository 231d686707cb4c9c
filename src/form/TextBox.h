#pragma once

// A text box. Its text is UTF-16 with CR LF line ends; offsets are 0-based and count both
// characters of a line end. The text here is the master: the station sets it and the view sends
// the user's edits, so that a bare LF, a tab or a NUL survives whatever the widget makes of it.

#include <QStringView>

#include "form/Controls.h"

namespace glidetrak {

class TextBox : public Control {
 public:
  const QString& Text() const { return m_sText; }

  /// Sets the whole text. A real change puts the caret to 0 and fires Change.
  void SetText(const QString& sText);

  /// The number of CR LF plus one; 1 for an empty text.
  int LineCount() const;

  /// Offset of each line's first character; LineCount() entries, the first 0.
  const std::vector<int>& LineStarts() const;

  int SelStart() const { return m_iSelStart; }
  int SelLength() const { return m_iSelLength; }
  QString SelText() const { return m_sText.mid(m_iSelStart, m_iSelLength); }

  /// Sets the selection. Offsets beyond the text are cut to its end, negative ones to 0.
  void Select(int iStart, int iLength);

  /// Replaces the selection and leaves a bare caret behind the new text; fires Change.
  void ReplaceSelection(const QString& sText);

  /// The user's edit: at iStart, iRemoved characters give way to sInserted, and the caret stands
  /// behind them. Fires Change. The view does not get its own edit back.
  void UserEdit(int iStart, int iRemoved, const QString& sInserted);

  /// The user moved the caret or the selection in the widget.
  void UserSelect(int iStart, int iLength);

  Event<> Change;

  Method<> TextSet;                   ///< the station set the whole text
  Method<int, QString> TextReplaced;  ///< the station replaced a stretch: its start, the new text
  Method<int, int> SelectionSet;      ///< the station set the selection: start, length

 private:
  void Splice(int iStart, int iRemoved, const QString& sInserted);
  void PlaceSelection(int iStart, int iLength);

  QString m_sText;
  int m_iSelStart = 0;
  int m_iSelLength = 0;
  mutable std::vector<int> m_aLineStarts;  ///< empty: not counted since the last change
};

}  // namespace glidetrak
