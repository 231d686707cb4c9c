#include "view/TextWidgets.h"

#include <QFontMetrics>
#include <QLineEdit>

#include "common/SkipOnError.h"
#include "view/EventRelay.h"
#include "view/Observe.h"
#include "view/TextBoxWidget.h"
#include "view/TextColours.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

constexpr int iTabColumns = 8;

/// Input methods stay off: while a program runs a key pressed here is for the program.
QWidget* MakeLine(TextBox& box, QWidget* pParent) {
  auto* pWidget = new QLineEdit(pParent);
  pWidget->setFrame(false);
  pWidget->setAttribute(Qt::WA_InputMethodEnabled, false);
  box.TextSet = [pWidget, &box] { pWidget->setText(box.Text()); };
  box.TextReplaced = [pWidget, &box](int, const QString&) { pWidget->setText(box.Text()); };
  QObject::connect(pWidget, &QLineEdit::textEdited, pWidget, [&box](const QString& sText) {
    SkipOnError([&] { box.UserEdit(0, static_cast<int>(box.Text().size()), sText); });
  });
  RelayActive(pWidget, box);
  return pWidget;
}

QWidget* MakeEditor(TextBox& box, const QFont& font, bool bScrollBar, QWidget* pParent) {
  auto* pWidget = new TextBoxWidget(box, pParent);
  pWidget->setTabStopDistance(iTabColumns * QFontMetrics(font).horizontalAdvance(u' '));
  if (bScrollBar) pWidget->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  RelayKeys(pWidget, box);
  return pWidget;
}

}  // namespace

QWidget* MakeTextBox(TextBox& box, const QFont& font, const Style& style, QWidget* pParent) {
  QWidget* pWidget =
      style.bOneLine ? MakeLine(box, pParent) : MakeEditor(box, font, style.bScrollBar, pParent);
  Observe(pWidget, box.BackColor,
          [pWidget, &box] { ShowTextColours(pWidget, ColourOf(box.BackColor)); });
  return pWidget;
}

}  // namespace glidetrak
