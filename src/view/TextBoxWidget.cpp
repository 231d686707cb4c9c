#include "view/TextBoxWidget.h"

#include <QCoreApplication>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <utility>

#include "common/SharedState.h"
#include "common/SkipOnError.h"
#include "view/EditorText.h"
#include "view/EventRelay.h"
#include "view/Observe.h"
#include "view/ToolkitTexts.h"

namespace glidetrak {

namespace {

const auto FollowEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

constexpr qsizetype iLargeText = 1'000'000;  ///< from here on the widget is filled in pieces
constexpr qsizetype iSlice = 100'000;        ///< a piece that a user does not feel

/// The widget lays a line out as a whole, in a time that grows with the square of its length. A
/// text that compiles is shorter than this in all.
constexpr int iLongestLine = 50'000;

/// How much of the text the widget can show: all of it, or up to where a line grows too long.
qsizetype ShowableEnd(const TextBox& box) {
  const std::vector<int>& aStarts = box.LineStarts();
  const auto iEnd = static_cast<int>(box.Text().size());
  for (size_t i = 0; i < aStarts.size(); ++i) {
    const int iNext = i + 1 < aStarts.size() ? aStarts[i + 1] : iEnd;
    if (iNext - aStarts[i] > iLongestLine) return aStarts[i] + iLongestLine;
  }
  return iEnd;
}

/// The end of the piece that begins at iStart; never between CR and LF.
qsizetype SliceEnd(const QString& sText, qsizetype iStart, qsizetype iEnd) {
  const qsizetype iWanted = iStart + iSlice;
  if (iEnd <= iLargeText || iWanted >= iEnd) return iEnd;
  return sText[iWanted - 1] == u'\r' ? iWanted + 1 : iWanted;
}

}  // namespace

TextBoxWidget::TextBoxWidget(TextBox& box, QWidget* pParent) : QPlainTextEdit(pParent), m_box(box) {
  setTabChangesFocus(true);
  setLineWrapMode(QPlainTextEdit::WidgetWidth);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setMouseTracking(true);
  connect(document(), &QTextDocument::contentsChange, this,
          [this](int iPosition, int iRemoved, int) { TellEdit(iPosition, iRemoved); });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { TellSelection(); });
  connect(this, &QPlainTextEdit::selectionChanged, this, [this] { TellSelection(); });
  box.TextSet = [this] { FollowText(); };
  box.TextReplaced = [this](int iStart, const QString& sInserted) {
    FollowReplacement(iStart, sInserted);
  };
  box.SelectionSet = [this](int, int) { MarkSelection(); };
  ObserveChanges(this, bProgramRunning, [this] { ObeyLock(); });
  Fill();
}

/// The station may set the text while it hears of an edit; the widget is in the midst of that edit
/// then and cannot be filled.
void TextBoxWidget::FollowText() {
  if (m_bTelling) {
    MarkStale();
  } else {
    Fill();
  }
}

void TextBoxWidget::FollowReplacement(int iStart, const QString& sInserted) {
  const bool bShowsAll = m_bComplete && !m_bTelling && !m_bStale;
  if (!bShowsAll || !PutIn(iStart, sInserted)) FollowText();
  MarkSelection();
}

/// What lies behind the replaced stretch tells where it ended. False where the widget then shows
/// another text: the replacement has parted a line end, made one, or a line too long to be shown.
bool TextBoxWidget::PutIn(int iStart, const QString& sInserted) {
  const QScopedValueRollback applying(m_bApplying, true);
  const auto iInserted = static_cast<int>(sInserted.size());
  const int iFrom = DocumentPosition(m_box.LineStarts(), iStart);
  const int iEnd = DocumentPosition(m_box.LineStarts(), iStart + iInserted);
  const int iTo = DocumentLength() - (ShownLength() - iEnd);
  if (iTo < iFrom || ShowableEnd(m_box) != m_box.Text().size()) return false;
  QTextCursor cursor(document());
  cursor.setPosition(iFrom);
  cursor.setPosition(iTo, QTextCursor::KeepAnchor);
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  InsertShown(cursor, sInserted);
  cursor.endEditBlock();
  return document()->blockCount() == m_box.LineCount() &&
         StationText(*document(), 0, DocumentLength()) == m_box.Text();
}

void TextBoxWidget::Fill() {
  const QScopedValueRollback applying(m_bApplying, true);
  m_bStale = false;
  m_iFilled = 0;
  m_iShowable = ShowableEnd(m_box);
  setUndoRedoEnabled(false);
  document()->clear();
  FillSlice();
  MarkSelection();
}

void TextBoxWidget::FillSlice() {
  const QScopedValueRollback applying(m_bApplying, true);
  const QString& sText = m_box.Text();
  const qsizetype iEnd = SliceEnd(sText, m_iFilled, m_iShowable);
  QTextCursor cursor(document());
  cursor.movePosition(QTextCursor::End);
  cursor.beginEditBlock();
  InsertShown(cursor, QStringView(sText).mid(m_iFilled, iEnd - m_iFilled));
  cursor.endEditBlock();
  m_iFilled = iEnd;
  Q_ASSERT(m_iFilled <= m_iShowable);
  m_bComplete = m_iFilled == sText.size();
  ObeyLock();
  setUndoRedoEnabled(m_bComplete);
  if (m_iFilled < m_iShowable) {
    FollowLater();
  } else if (m_bSelectionCut) {
    MarkSelection();
  }
}

/// Whatever waits by then is done at the next turn of the event loop, once.
void TextBoxWidget::FollowLater() {
  if (std::exchange(m_bFollowPosted, true)) return;
  QCoreApplication::postEvent(this, new QEvent(FollowEvent));
}

void TextBoxWidget::Follow() {
  m_bFollowPosted = false;
  CatchUp();
  if (m_iFilled < m_iShowable) FillSlice();
}

/// What the user does next is done to what the station shows by now.
void TextBoxWidget::CatchUp() {
  MendStale();
  ApplySelection();
}

void TextBoxWidget::MarkStale() {
  m_bStale = true;
  FollowLater();
}

void TextBoxWidget::MendStale() {
  if (!m_bStale) return;
  const int iScroll = verticalScrollBar()->value();
  Fill();
  ApplySelection();
  verticalScrollBar()->setValue(iScroll);
}

/// A read-only editor takes no key, no input method, no paste, cut or drop, and offers none in its
/// menu; disabled, it would lose the focus, which a Trace step leaves where it is.
void TextBoxWidget::ObeyLock() {
  const bool bLocked = !m_bComplete || bProgramRunning;
  if (isReadOnly() != bLocked) setReadOnly(bLocked);
}

/// A run selects a line for every statement: the widget follows once per return to the event loop.
void TextBoxWidget::MarkSelection() {
  m_bSelectionMarked = true;
  FollowLater();
}

void TextBoxWidget::ApplySelection() {
  if (!std::exchange(m_bSelectionMarked, false) || m_bStale) return;
  const QScopedValueRollback applying(m_bApplying, true);
  const int iStart = m_box.SelStart();
  const int iFrom = DocumentPosition(m_box.LineStarts(), iStart);
  const int iTo = DocumentPosition(m_box.LineStarts(), iStart + m_box.SelLength());
  m_bSelectionCut = iTo > DocumentLength();
  QTextCursor cursor(document());
  cursor.setPosition(std::min(iFrom, DocumentLength()));
  cursor.setPosition(std::min(iTo, DocumentLength()), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ensureCursorVisible();
}

void TextBoxWidget::TellSelection() {
  if (m_bApplying || m_bStale) return;
  const QTextCursor cursor = textCursor();
  const int iStart = StationOffset(m_box.LineStarts(), cursor.selectionStart());
  const int iEnd = StationOffset(m_box.LineStarts(), cursor.selectionEnd());
  m_box.UserSelect(iStart, iEnd - iStart);
}

/// The widget often reports a wider stretch than was changed, and the final paragraph break with
/// it; what lies behind the stretch tells where it ends now.
void TextBoxWidget::TellEdit(int iPosition, int iRemoved) {
  if (m_bApplying || m_bStale) return;
  const int iOldEnd = std::min(iPosition + iRemoved, ShownLength());
  const int iNewEnd = DocumentLength() - (ShownLength() - iOldEnd);
  const int iStart = StationOffset(m_box.LineStarts(), iPosition);
  const int iEnd = StationOffset(m_box.LineStarts(), iOldEnd);
  const TextEdit edit = Difference(QStringView(m_box.Text()).mid(iStart, iEnd - iStart),
                                   StationText(*document(), iPosition, iNewEnd));
  if (edit.iRemoved == 0 && edit.sInserted.isEmpty()) return;
  const QScopedValueRollback telling(m_bTelling, true);
  SkipOnError([&] { m_box.UserEdit(iStart + edit.iStart, edit.iRemoved, edit.sInserted); });
  if (ShownLength() != DocumentLength()) MarkStale();
}

bool TextBoxWidget::event(QEvent* pEvent) {
  if (pEvent->type() == FollowEvent) {
    Follow();
    return true;
  }
  if (pEvent->type() == QEvent::KeyPress || pEvent->type() == QEvent::InputMethod) CatchUp();
  return QPlainTextEdit::event(pEvent);
}

/// The mouse is told after the widget's own answer: a double click finds its word selected.
bool TextBoxWidget::viewportEvent(QEvent* pEvent) {
  const bool bMouse = IsMouseEvent(*pEvent);
  if (bMouse || pEvent->type() == QEvent::Drop) CatchUp();
  const bool bAnswered = QPlainTextEdit::viewportEvent(pEvent);
  if (bMouse) RelayMouse(m_box, *this, static_cast<QMouseEvent&>(*pEvent));
  return bAnswered;
}

/// The menu is the toolkit's own.
void TextBoxWidget::contextMenuEvent(QContextMenuEvent* pEvent) {
  InstallToolkitTexts();
  QPlainTextEdit::contextMenuEvent(pEvent);
}

/// A line separator is a line end like any other.
void TextBoxWidget::keyPressEvent(QKeyEvent* pEvent) {
  if (!pEvent->matches(QKeySequence::InsertLineSeparator) || isReadOnly()) {
    QPlainTextEdit::keyPressEvent(pEvent);
    return;
  }
  textCursor().insertBlock();
  ensureCursorVisible();
}

/// The toolkit would take it in a read-only editor too.
void TextBoxWidget::inputMethodEvent(QInputMethodEvent* pEvent) {
  if (isReadOnly()) {
    pEvent->ignore();
  } else {
    QPlainTextEdit::inputMethodEvent(pEvent);
  }
}

/// A press into the selection begins a new one, as it does beside it: the toolkit would take it for
/// the beginning of a drag and move the text.
void TextBoxWidget::mousePressEvent(QMouseEvent* pEvent) {
  const bool bExtends = pEvent->modifiers() == Qt::ShiftModifier;
  QTextCursor cursor = textCursor();
  if (pEvent->button() == Qt::LeftButton && !bExtends && cursor.hasSelection()) {
    cursor.clearSelection();
    setTextCursor(cursor);
  }
  QPlainTextEdit::mousePressEvent(pEvent);
}

/// A hand that trembles on the second press must not drag the selection off the line that the
/// double click has chosen.
void TextBoxWidget::mouseMoveEvent(QMouseEvent* pEvent) {
  if (!m_bWordChosen) QPlainTextEdit::mouseMoveEvent(pEvent);
}

void TextBoxWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
  m_bWordChosen = true;
  QPlainTextEdit::mouseDoubleClickEvent(pEvent);
}

void TextBoxWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
  m_bWordChosen = false;
  QPlainTextEdit::mouseReleaseEvent(pEvent);
}

/// Other programs, and the toolkit's clipboard, end lines with LF.
QMimeData* TextBoxWidget::createMimeDataFromSelection() const {
  const QTextCursor cursor = textCursor();
  QString sText = StationText(*document(), cursor.selectionStart(), cursor.selectionEnd());
  auto* pData = new QMimeData;
  pData->setText(sText.replace("\r\n", "\n"));
  return pData;
}

void TextBoxWidget::insertFromMimeData(const QMimeData* pSource) {
  if (isReadOnly() || !pSource->hasText()) return;
  QTextCursor cursor = textCursor();
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  InsertShown(cursor, WithLineEnds(pSource->text()));
  cursor.endEditBlock();
  setTextCursor(cursor);
  ensureCursorVisible();
}

}  // namespace glidetrak
