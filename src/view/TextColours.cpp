#include "view/TextColours.h"

#include <QPalette>

namespace glidetrak {

void ShowTextColours(QWidget* pWidget, QColor background) {
  constexpr QColor Selection(38, 107, 193);
  QPalette palette = pWidget->palette();
  palette.setColor(QPalette::Base, background);
  palette.setColor(QPalette::Text, background.lightness() > 127 ? Qt::black : Qt::white);
  palette.setColor(QPalette::Highlight, Selection);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  pWidget->setPalette(palette);
}

}  // namespace glidetrak
