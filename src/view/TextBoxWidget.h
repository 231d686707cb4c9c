#pragma once

// The widget of a text box with several lines. The station's text is the master: the widget shows
// it, and what the user does in the widget reaches it as the smallest edit, so that every other
// character of it stays as it was, shown or not.
//
// A text above a million characters is put in piece by piece between the events; until it stands
// complete the user can read and scroll, but not edit. A text with a line of more than 50,000
// characters is shown up to there, for reading only.
//
// What the station puts into the place of the selection is an edit like the user's: it can be
// undone, and the place to which the user has scrolled stays. A text that the station sets anew
// cannot be undone.
//
// While a program runs, a Trace step included, nothing that the user does changes the text;
// reading, marking and copying go on. Text is never moved by dragging.
//
// What the widget holds, by m_bStale, m_bComplete and m_iFilled:
//
//   Filling  the text up to m_iFilled, less than m_iShowable; a turn is posted. Read-only, no undo.
//   Cut      the text up to m_iShowable, where a line grows too long. Read-only, no undo.
//   Whole    m_bComplete: the whole text. Editable while no program runs, undo on.
//   Stale    m_bStale: not the station's text. A turn is posted; edits and selections are told to
//            nobody.
//
//   any -> Filling, Cut, Whole   the station sets its text [Fill]
//   Filling -> Filling, Cut, Whole   a posted turn [Follow]
//   Whole -> Whole   an edit of the user's [TellEdit], a replacement by the station that can be
//                    made in the widget [PutIn]; any other is a new text [FollowReplacement]
//   Whole -> Stale   the station sets its text while it hears of an edit, when the widget is in
//                    the midst of that edit and cannot be filled [FollowText]; or an edit makes a
//                    bare CR and a bare LF neighbours, so that the station has a line end more than
//                    the widget shows [TellEdit]
//   Stale -> Filling, Cut, Whole   ahead of the next event of the user's or at the posted turn,
//                                  whichever comes first [MendStale]
//
// Beside that the station's selection waits (m_bSelectionMarked) from MarkSelection to
// ApplySelection, which comes at the posted turn or ahead of the user's next event; one that ends
// behind what is filled (m_bSelectionCut) is marked again with the last piece. Within m_bApplying
// the widget changes by the station's will and tells it nothing.

#include <QPlainTextEdit>

#include "form/TextBox.h"

namespace glidetrak {

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
  qsizetype m_iShowable = 0;     ///< so much of the text the widget could show when it was filled
  qsizetype m_iFilled = 0;       ///< so much of it was put in, 0 to m_iShowable
  bool m_bComplete = false;      ///< that was the whole text
  bool m_bFollowPosted = false;  ///< a turn of Follow will come
  bool m_bStale = false;         ///< the widget no longer shows the station's text
  bool m_bSelectionMarked = false;  ///< the station's selection will be applied
  bool m_bSelectionCut = false;     ///< it reached beyond what was filled then
  bool m_bApplying = false;         ///< the widget changes by the station's will, not the user's
  bool m_bTelling = false;          ///< an edit is on its way to the station
  bool m_bWordChosen = false;       ///< the button of a double click is still held
};

}  // namespace glidetrak
