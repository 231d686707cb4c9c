#include "view/FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "view/EventRelay.h"
#include "view/Fire.h"
#include "view/Observe.h"
#include "view/PictureWidget.h"
#include "view/Pointers.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

constexpr int iMostAnswers = 4;  ///< a size that the system refuses is not asked for without end

/// Writes a length only if the pixels differ: what the station wrote between two pixels stands.
void TellLength(QProperty<float>& length, int iPixels) {
  if (Pixels(length) != iPixels) length = Twips(iPixels);
}

int StateOf(Qt::WindowStates states) {
  if (states & Qt::WindowMinimized) return stateMinimised;
  return states & Qt::WindowMaximized ? stateMaximised : stateNormal;
}

Qt::WindowState ToolkitState(int iState) {
  if (iState == stateMinimised) return Qt::WindowMinimized;
  return iState == stateMaximised ? Qt::WindowMaximized : Qt::WindowNoState;
}

/// The toolkit would show the application's name in place of an empty title.
QString TitleOf(const Form& form) {
  return form.Caption.value().isEmpty() ? " " : form.Caption.value();
}

/// The message box or file dialog that waits for an answer, on top of every form; null without one.
QWidget* OpenBox() {
  return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

}  // namespace

FormWindow::FormWindow(Form& form, const char* sName, QWidget* pOwner)
    : QMainWindow(pOwner, pOwner ? Qt::Dialog : Qt::Window), m_form(form) {
  setObjectName(sName);
  auto* pClient = new PictureWidget(this);
  setCentralWidget(pClient);
  Observe(pClient, form.BackColor,
          [pClient, &form] { pClient->ShowBackground(ColourOf(form.BackColor)); });
  ObservePointer(pClient, form);
  RelayPassive(pClient, form);
  ObserveForm();
  FillMethods();
}

void FormWindow::ObserveForm() {
  Observe(this, m_form.Caption, [this] { setWindowTitle(TitleOf(m_form)); });
  Observe(this, m_form.Enabled, [this] { Client()->setEnabled(m_form.Enabled); });
  ObserveChanges(this, m_form.Width, [this] { ObeySize(); });
  ObserveChanges(this, m_form.Height, [this] { ObeySize(); });
  ObserveChanges(this, m_form.Left, [this] { ObeyPlace(); });
  ObserveChanges(this, m_form.Top, [this] { ObeyPlace(); });
  ObserveChanges(this, m_form.WindowState, [this] { ObeyState(); });
  ObserveChanges(this, m_form.Visible, [this] { ObeyVisible(); });
}

void FormWindow::FillMethods() {
  m_form.Show = [this] {
    m_form.Visible = true;
    ComeForward();
  };
  m_form.ShowModal = [this] { ShowModal(); };
  m_form.Unload = [this] { close(); };
  m_form.Refresh = [this] { repaint(); };
  m_form.SetFocus = [this] { TakeFocus(); };
}

void FormWindow::ComeForward() {
  if (!isVisible()) return;
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  if (OpenBox() != nullptr) OpenBox()->raise();
  TakeFocus();
}

/// A minimised window stays so. An open box keeps the focus: behind the window it could not be
/// answered, and the station would seem dead.
void FormWindow::TakeFocus() {
  if (!isVisible() || isMinimized()) return;
  QWidget* pFront = OpenBox() != nullptr ? OpenBox() : this;
  pFront->activateWindow();
}

/// What the menu bar leaves. Computed rather than asked of the client's widget, which a hidden
/// window does not lay out.
QSize FormWindow::ClientSize() const {
  const int iBar = menuWidget() != nullptr ? menuWidget()->minimumHeight() : 0;
  return {width(), std::max(0, height() - iBar)};
}

void FormWindow::FitClient() {
  const QScopedValueRollback telling(m_bTelling, true);
  resize(Pixels(m_form.ScaleWidth), Pixels(m_form.ScaleHeight));
  resize(size() + (size() - ClientSize()));
  m_toldClient = ClientSize();
  TellLength(m_form.Width, width());
  TellLength(m_form.Height, height());
}

/// A window that is minimised or maximised has no size or place of its own to set. The station may
/// answer the resize with another size, and a write from inside an observer of the same property is
/// not observed; hence the second look.
void FormWindow::ObeySize() {
  if (m_bTelling || StateOf(windowState()) != stateNormal) return;
  for (int i = 0; i < iMostAnswers && size() != SizeOf(m_form); ++i) {
    resize(SizeOf(m_form));
    if (!isVisible()) TellSize();
  }
}

void FormWindow::ObeyPlace() {
  if (m_bTelling || StateOf(windowState()) != stateNormal) return;
  setGeometry(QRect(PlaceOf(m_form).topLeft(), size()));
}

void FormWindow::ObeyState() {
  if (m_bTelling || StateOf(windowState()) == m_form.WindowState) return;
  setWindowState(ToolkitState(m_form.WindowState));
}

/// A form that was never moved stands at 0, 0: its frame does, as a title bar off the screen could
/// not be reached. Untold, a window manager would choose a place of its own, and late.
void FormWindow::ObeyVisible() {
  if (!testAttribute(Qt::WA_Moved)) move(0, 0);
  setVisible(m_form.Visible);
  if (!m_form.Visible && m_pModalLoop != nullptr) m_pModalLoop->quit();
  if (!m_form.Visible || std::exchange(m_bShown, true)) return;
  TellSize();
  Fire(m_form.Resize);
}

/// Returns when the form was unloaded, by whatever road. A window that is there already must go and
/// come again: modality is taken up in showing.
void FormWindow::ShowModal() {
  if (m_pModalLoop != nullptr) return;
  hide();
  setWindowModality(Qt::ApplicationModal);
  m_form.Visible = true;
  show();
  QEventLoop loop;
  const QScopedValueRollback modal(m_pModalLoop, &loop);
  loop.exec();
  setWindowModality(Qt::NonModal);
}

void FormWindow::TellSize() {
  const QSize client = ClientSize();
  {
    const QScopedValueRollback telling(m_bTelling, true);
    TellLength(m_form.Width, width());
    TellLength(m_form.Height, height());
    TellLength(m_form.ScaleWidth, client.width());
    TellLength(m_form.ScaleHeight, client.height());
  }
  if (std::exchange(m_toldClient, client) != client) Fire(m_form.Resize);
}

void FormWindow::TellPlace() {
  const QScopedValueRollback telling(m_bTelling, true);
  TellLength(m_form.Left, geometry().left());
  TellLength(m_form.Top, geometry().top());
}

void FormWindow::resizeEvent(QResizeEvent* pEvent) {
  QMainWindow::resizeEvent(pEvent);
  TellSize();
}

void FormWindow::moveEvent(QMoveEvent* pEvent) {
  QMainWindow::moveEvent(pEvent);
  TellPlace();
}

void FormWindow::changeEvent(QEvent* pEvent) {
  QMainWindow::changeEvent(pEvent);
  if (pEvent->type() != QEvent::WindowStateChange) return;
  const QScopedValueRollback telling(m_bTelling, true);
  m_form.WindowState = StateOf(windowState());
}

/// Unloading pumps events; a second close that comes in there is no second unload.
void FormWindow::closeEvent(QCloseEvent* pEvent) {
  pEvent->ignore();
  if (m_bClosing) return;
  const QScopedValueRollback closing(m_bClosing, true);
  bool bCancel = false;
  Fire(m_form.QueryUnload, bCancel);
  if (bCancel) return;
  Fire(m_form.FormUnload);
  m_form.Visible = false;
  pEvent->accept();
}

}  // namespace glidetrak
