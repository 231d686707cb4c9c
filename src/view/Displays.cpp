#include "view/Displays.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QRadioButton>

#include "view/EventRelay.h"
#include "view/Fonts.h"
#include "view/Observe.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

/// Beside the caption stands the mark, whose width is the toolkit's.
void FitCaption(QAbstractButton* pWidget, const Control& control, const QFont& font) {
  pWidget->setFont(font);
  const int iMark =
      pWidget->sizeHint().width() - QFontMetrics(font).horizontalAdvance(pWidget->text());
  pWidget->setFont(FittingFont(font, pWidget->text(), Pixels(control.Width) - iMark));
}

template <class Button, class Box>
Button* MakeDisplay(Box& box, const QFont& font, QWidget* pParent) {
  auto* pWidget = new Button(pParent);
  pWidget->setFocusPolicy(Qt::NoFocus);
  QPalette palette = pWidget->palette();
  palette.setColor(QPalette::WindowText, Qt::white);
  pWidget->setPalette(palette);
  Observe(pWidget, box.Caption, [pWidget, &box, font] {
    pWidget->setText(box.Caption);
    FitCaption(pWidget, box, font);
  });
  Observe(pWidget, box.Value, [pWidget, &box] { pWidget->setChecked(box.Value); });
  RelayPassive(pWidget, box);
  return pWidget;
}

}  // namespace

/// Not exclusive by itself: the two members of a pair follow their own values.
QWidget* MakeOptionButton(OptionButton& button, const QFont& font, QWidget* pParent) {
  auto* pWidget = MakeDisplay<QRadioButton>(button, font, pParent);
  pWidget->setAutoExclusive(false);
  return pWidget;
}

QWidget* MakeCheckBox(CheckBox& box, const QFont& font, QWidget* pParent) {
  return MakeDisplay<QCheckBox>(box, font, pParent);
}

}  // namespace glidetrak
