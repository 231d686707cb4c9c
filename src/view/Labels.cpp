#include "view/Labels.h"

#include <QFontMetrics>
#include <algorithm>

#include "view/Fonts.h"
#include "view/Observe.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

constexpr int iTitleIndent = 6;
constexpr int iTitleDarkness = 150;

/// The colour holds for an inactive window too; a disabled label pales.
void ShowForeColour(QLabel* pWidget, QColor colour) {
  QPalette palette = pWidget->palette();
  palette.setColor(QPalette::WindowText, colour);
  palette.setColor(QPalette::Disabled, QPalette::WindowText, colour.darker(160));
  pWidget->setPalette(palette);
}

/// How far the text of one line reaches beyond its place.
int Overhang(const QFont& font, const Label& label) {
  return std::max(0, QFontMetrics(font).horizontalAdvance(label.Caption) - Pixels(label.Width));
}

void FitLegend(QLabel* pWidget, const Label& label, const QFont& designFont) {
  const QFont font = FittingFont(designFont, label.Caption, Pixels(label.Width));
  const int iSide = (Overhang(font, label) + 1) / 2;
  pWidget->setFont(font);
  pWidget->setGeometry(PlaceOf(label).adjusted(-iSide, 0, iSide, 0));
}

void FitName(QLabel* pWidget, const Label& label) {
  pWidget->setGeometry(PlaceOf(label).adjusted(0, 0, Overhang(pWidget->font(), label), 0));
}

/// Keeps the widget fitted to its caption and its place.
template <class Fit>
void KeepFitting(QLabel* pWidget, Label& label, Fit fit) {
  pWidget->setWordWrap(false);
  ObserveChanges(pWidget, label.Caption, fit);
  ObservePlace(pWidget, label, fit);
}

void ShowTitleBar(QLabel* pWidget) {
  pWidget->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  pWidget->setIndent(iTitleIndent);
  pWidget->setAutoFillBackground(true);
  QPalette palette = pWidget->palette();
  palette.setColor(QPalette::Window, ColourOf(lPanelBackground).darker(iTitleDarkness));
  pWidget->setPalette(palette);
}

void ApplyLook(QLabel* pWidget, Look look) {
  switch (look) {
    case Look::Legend:
      pWidget->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
      break;
    case Look::RightText:
      pWidget->setAlignment(Qt::AlignRight | Qt::AlignTop);
      break;
    case Look::TitleBar:
      ShowTitleBar(pWidget);
      break;
    default:
      pWidget->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  }
}

void PlaceLabel(QLabel* pWidget, Label& label, Look look, const QFont& font) {
  if (look == Look::Legend) {
    KeepFitting(pWidget, label, [pWidget, &label, font] { FitLegend(pWidget, label, font); });
  } else if (look == Look::Name) {
    KeepFitting(pWidget, label, [pWidget, &label] { FitName(pWidget, label); });
  } else {
    ObservePlace(pWidget, label, [pWidget, &label] { pWidget->setGeometry(PlaceOf(label)); });
  }
}

}  // namespace

QLabel* MakeLabel(Label& label, const QFont& font, const Style& style, QWidget* pParent) {
  auto* pWidget = new QLabel(pParent);
  pWidget->setTextFormat(Qt::PlainText);
  pWidget->setWordWrap(true);
  pWidget->setFont(font);
  Observe(pWidget, label.Caption, [pWidget, &label] { pWidget->setText(label.Caption); });
  Observe(pWidget, label.ForeColor,
          [pWidget, &label] { ShowForeColour(pWidget, ColourOf(label.ForeColor)); });
  if (style.bBorder) pWidget->setFrameStyle(QFrame::Box | QFrame::Plain);
  ApplyLook(pWidget, style.look);
  PlaceLabel(pWidget, label, style.look, font);
  return pWidget;
}

}  // namespace glidetrak
