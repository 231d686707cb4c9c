#include "view/FormWindow.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QLayout>
#include <QScopedValueRollback>
#include <utility>

#include "view/EventRelay.h"
#include "view/Fire.h"
#include "view/Observe.h"
#include "view/PictureWidget.h"
#include "view/Pointers.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

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
  Observe(this, m_form.Caption, [this] { setWindowTitle(m_form.Caption); });
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
  m_form.SetFocus = [this] { ComeForward(); };
}

void FormWindow::ComeForward() {
  if (!isVisible()) return;
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
}

/// Brings the client area in line with the window. A hidden window does not do it by itself.
void FormWindow::LayOut() {
  layout()->invalidate();
  layout()->activate();
}

void FormWindow::FitClient() {
  const QSize client(Pixels(m_form.ScaleWidth), Pixels(m_form.ScaleHeight));
  const QScopedValueRollback telling(m_bTelling, true);
  resize(client);
  LayOut();
  resize(client + (size() - Client()->size()));
  LayOut();
  m_toldClient = Client()->size();
  TellLength(m_form.Width, width());
  TellLength(m_form.Height, height());
}

/// A window that is minimised or maximised has no size or place of its own to set.
void FormWindow::ObeySize() {
  if (m_bTelling || StateOf(windowState()) != stateNormal) return;
  resize(SizeOf(m_form));
  if (isVisible()) return;
  LayOut();
  TellSize();
}

void FormWindow::ObeyPlace() {
  if (m_bTelling || StateOf(windowState()) != stateNormal) return;
  setGeometry(QRect(PlaceOf(m_form).topLeft(), size()));
}

void FormWindow::ObeyState() {
  if (m_bTelling || StateOf(windowState()) == m_form.WindowState) return;
  setWindowState(ToolkitState(m_form.WindowState));
}

void FormWindow::ObeyVisible() {
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
  {
    const QScopedValueRollback telling(m_bTelling, true);
    TellLength(m_form.Width, width());
    TellLength(m_form.Height, height());
    TellLength(m_form.ScaleWidth, Client()->width());
    TellLength(m_form.ScaleHeight, Client()->height());
  }
  if (std::exchange(m_toldClient, Client()->size()) != Client()->size()) Fire(m_form.Resize);
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
