#include "view/PictureWidget.h"

#include <QPainter>

namespace glidetrak {

void PictureWidget::ShowPicture(PictureId picture, Fit fit) {
  m_picture = picture;
  m_fit = fit;
  update();
}

void PictureWidget::ShowBackground(QColor colour) {
  m_background = colour;
  update();
}

void PictureWidget::ShowBorder(QColor colour) {
  m_border = colour;
  update();
}

void PictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (m_background.isValid()) painter.fillRect(rect(), m_background);
  const QPixmap pixmap = PictureAt(m_picture, size(), devicePixelRatioF(), m_fit);
  if (!pixmap.isNull()) painter.drawPixmap(0, 0, pixmap);
  if (!m_border.isValid()) return;
  painter.setPen(m_border);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace glidetrak
