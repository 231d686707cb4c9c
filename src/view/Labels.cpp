#include "view/Labels.h"

#include <QFontMetrics>

#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "view/Observe.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

/// What a label looks like beyond its text.
enum class Look {
  Text,
  Legend,     ///< one line, centred, fitted to its place
  RightText,  ///< along the right edge
  TitleBar,   ///< the head of a floating panel
  Pane,       ///< framed
};

constexpr qreal fSmallestLegend = 0.72;  ///< of the design size; below that nobody reads it
constexpr int iTitleIndent = 6;
constexpr int iTitleDarkness = 150;

struct LookRow {
  const Label* pLabel;
  Look look;
};

const LookRow LookTable[] = {
    {&lblTimerTitle, Look::Legend},
    {&lblTimer, Look::Legend},
    {&lblImpactTitle, Look::Legend},
    {&lblImpact, Look::Legend},
    {&lblImpact2, Look::Legend},
    {&lblOn1, Look::Legend},
    {&lblOn2, Look::Legend},
    {&lblOff, Look::Legend},
    {&lblOff2, Look::Legend},
    {&lblControlTitle, Look::Legend},
    {&lblPowerTitle, Look::Legend},
    {&lblEmergStop1, Look::Legend},
    {&lblEmergStop2, Look::Legend},
    {&lblHWState, Look::RightText},
    {&lblCopyright, Look::RightText},
    {&lblMsgTitle, Look::TitleBar},
    {&CommandSelTitle, Look::TitleBar},
    {&fraHelp, Look::Pane},
};

Look LookOf(const Label& label) {
  for (const LookRow& row : LookTable) {
    if (row.pLabel == &label) return row.look;
  }
  return Look::Text;
}

/// The colour holds for an inactive window too; a disabled label pales.
void ShowForeColour(QLabel* pWidget, QColor colour) {
  QPalette palette = pWidget->palette();
  palette.setColor(QPalette::WindowText, colour);
  palette.setColor(QPalette::Disabled, QPalette::WindowText, colour.darker(160));
  pWidget->setPalette(palette);
}

int LegendWidth(const QFont& font, const QString& sText) {
  return QFontMetrics(font).horizontalAdvance(sText);
}

/// The design font, made smaller where the text needs it.
QFont LegendFont(QFont font, const QString& sText, int iWidth) {
  const int iDesign = font.pixelSize();
  const int iSmallest = qRound(iDesign * fSmallestLegend);
  for (int i = iDesign; i > iSmallest && LegendWidth(font, sText) > iWidth;) {
    font.setPixelSize(--i);
  }
  return font;
}

void FitLegend(QLabel* pWidget, const Label& label, const QFont& designFont) {
  QRect place = PlaceOf(label);
  const QFont font = LegendFont(designFont, label.Caption, place.width());
  const int iMissing = LegendWidth(font, label.Caption) - place.width();
  if (iMissing > 0) place.adjust(-(iMissing + 1) / 2, 0, (iMissing + 1) / 2, 0);
  pWidget->setFont(font);
  pWidget->setGeometry(place);
}

void ShowLegend(QLabel* pWidget, Label& label, const QFont& font) {
  pWidget->setWordWrap(false);
  pWidget->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  const auto fit = [pWidget, &label, font] { FitLegend(pWidget, label, font); };
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
    case Look::Text:
    case Look::Legend:
      break;
    case Look::RightText:
      pWidget->setAlignment(Qt::AlignRight | Qt::AlignTop);
      break;
    case Look::TitleBar:
      ShowTitleBar(pWidget);
      break;
    case Look::Pane:
      pWidget->setFrameStyle(QFrame::Box | QFrame::Plain);
      break;
  }
}

}  // namespace

QLabel* MakeLabel(Label& label, const QFont& font, QWidget* pParent) {
  auto* pWidget = new QLabel(pParent);
  pWidget->setTextFormat(Qt::PlainText);
  pWidget->setWordWrap(true);
  pWidget->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  pWidget->setFont(font);
  Observe(pWidget, label.Caption, [pWidget, &label] { pWidget->setText(label.Caption); });
  Observe(pWidget, label.ForeColor,
          [pWidget, &label] { ShowForeColour(pWidget, ColourOf(label.ForeColor)); });
  const Look look = LookOf(label);
  if (look == Look::Legend) {
    ShowLegend(pWidget, label, font);
  } else {
    ApplyLook(pWidget, look);
    ObservePlace(pWidget, label, [pWidget, &label] { pWidget->setGeometry(PlaceOf(label)); });
  }
  return pWidget;
}

}  // namespace glidetrak
