#pragma once

#include <QMainWindow>

#include "form/Controls.h"

class QEventLoop;

namespace glidetrak {

/// The window of a form: an optional menu bar with the client area below it. Left, Top, Width and
/// Height of the form are the window without its frame, so that writing back what was read never
/// moves it.
///
/// Resize comes at every change of the client area, while the window is hidden too, and at the
/// first showing.
class FormWindow : public QMainWindow {
 public:
  FormWindow(Form& form, const char* sName, QWidget* pOwner);

  /// The form that the window shows.
  Form& ShownForm() const { return m_form; }

  QWidget* Client() const { return centralWidget(); }

  /// To the front and active, out of the minimised state too; an open box stays on top of it. No
  /// effect while hidden.
  void ComeForward();

  /// Makes the window so large that the client area has the form's scale size.
  void FitClient();

 protected:
  void resizeEvent(QResizeEvent* pEvent) override;
  void moveEvent(QMoveEvent* pEvent) override;
  void changeEvent(QEvent* pEvent) override;
  void closeEvent(QCloseEvent* pEvent) override;

 private:
  void ObserveForm();
  void FillMethods();
  void ObeySize();
  void ObeyPlace();
  void ObeyState();
  void ObeyVisible();
  void ShowModal();
  void TellSize();
  void TellPlace();
  QSize ClientSize() const;
  void TakeFocus();

  Form& m_form;
  QSize m_toldClient;                  ///< the client area that the station knows
  bool m_bTelling = false;             ///< the form's values follow the window, not the reverse
  bool m_bShown = false;               ///< it was shown before
  bool m_bClosing = false;             ///< a close is under way
  QEventLoop* m_pModalLoop = nullptr;  ///< waits for a modal showing to end; null without one
};

}  // namespace glidetrak
