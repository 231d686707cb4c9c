#pragma once

#include <QPlainTextEdit>

#include "form/TextBox.h"

namespace glidetrak {

/// The widget of a text box with several lines. The station's text is the master: the widget shows
/// it, and what the user does in the widget reaches it as the smallest edit, so that every other
/// character of it stays as it was, shown or not.
///
/// A text above a million characters is put in piece by piece between the events; until it stands
/// complete the user can read and scroll, but not edit. A text with a line of more than 50,000
/// characters is shown up to there, for reading only.
///
/// What the station puts into the place of the selection is an edit like the user's: it can be
/// undone, and the place to which the user has scrolled stays.
///
/// While a program runs, a Trace step included, nothing that the user does changes the text;
/// reading, marking and copying go on. Text is never moved by dragging.
///
/// Where an edit makes a bare CR and a bare LF neighbours, the station has a line end more than the
/// widget shows; the widget is then stale and filled anew before it takes another event.
class TextBoxWidget : public QPlainTextEdit {
 public:
  TextBoxWidget(TextBox& box, QWidget* pParent);

 protected:
  bool event(QEvent* pEvent) override;
  bool viewportEvent(QEvent* pEvent) override;
  void contextMenuEvent(QContextMenuEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void inputMethodEvent(QInputMethodEvent* pEvent) override;
  void mousePressEvent(QMouseEvent* pEvent) override;
  void mouseMoveEvent(QMouseEvent* pEvent) override;
  void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
  void mouseReleaseEvent(QMouseEvent* pEvent) override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* pSource) override;

 private:
  // The station's text to the widget.
  void FollowText();
  void FollowReplacement(int iStart, const QString& sInserted);
  bool PutIn(int iStart, const QString& sInserted);
  void Fill();
  void FillSlice();
  void FollowLater();
  void Follow();
  void CatchUp();
  void MarkStale();
  void MendStale();
  void ObeyLock();

  // The selection, either way.
  void MarkSelection();
  void ApplySelection();
  void TellSelection();

  // The user's edits to the station.
  void TellEdit(int iPosition, int iRemoved);

  int DocumentLength() const { return document()->characterCount() - 1; }
  /// The length that the document has when it shows the whole text.
  int ShownLength() const { return static_cast<int>(m_box.Text().size()) - m_box.LineCount() + 1; }

  TextBox& m_box;
  qsizetype m_iShowable = 0;        ///< so much of the station's text the widget can show
  qsizetype m_iFilled = 0;          ///< so much of the station's text is in the widget
  bool m_bComplete = false;         ///< the widget holds the whole text
  bool m_bFollowPosted = false;     ///< a turn of Follow will come
  bool m_bStale = false;            ///< the widget no longer shows the station's text
  bool m_bSelectionMarked = false;  ///< the station's selection will be applied
  bool m_bSelectionCut = false;     ///< it reached beyond what was filled then
  bool m_bApplying = false;         ///< the widget changes by the station's will, not the user's
  bool m_bTelling = false;          ///< an edit is on its way to the station
  bool m_bWordChosen = false;       ///< the button of a double click is still held
};

}  // namespace glidetrak
