#include "view/ImageButtonWidget.h"

#include <QKeyEvent>
#include <QPainter>

#include "view/PictureStore.h"

namespace glidetrak {

namespace {

constexpr qreal fDisabledOpacity = 0.45;

}  // namespace

void ImageButtonWidget::ShowPicture(PictureId picture) {
  m_picture = picture;
  update();
}

void ImageButtonWidget::ShowForeColour(QColor colour) {
  m_foreColour = colour;
  update();
}

void ImageButtonWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!isEnabled()) painter.setOpacity(fDisabledOpacity);
  painter.drawPixmap(0, 0, PictureAt(m_picture, size(), devicePixelRatioF(), Fit::Stretch));
  painter.setPen(m_foreColour);
  painter.drawText(isDown() ? rect().translated(1, 1) : rect(), Qt::AlignCenter, text());
  if (!hasFocus()) return;
  painter.setPen(QPen(m_foreColour, 1, Qt::DotLine));
  painter.drawRect(rect().adjusted(4, 4, -5, -5));
}

void ImageButtonWidget::keyPressEvent(QKeyEvent* pEvent) {
  const bool bEnter = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
  if (!bEnter) {
    QAbstractButton::keyPressEvent(pEvent);
  } else if (!pEvent->isAutoRepeat()) {
    click();
  }
}

}  // namespace glidetrak
