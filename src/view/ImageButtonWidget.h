#pragma once

#include <QAbstractButton>

#include "form/Controls.h"

namespace glidetrak {

/// A picture with a caption on top of it. Enter presses it like Space.
class ImageButtonWidget : public QAbstractButton {
 public:
  using QAbstractButton::QAbstractButton;

  void ShowPicture(PictureId picture);
  void ShowForeColour(QColor colour);

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;

 private:
  PictureId m_picture = PictureId::None;
  QColor m_foreColour;
};

}  // namespace glidetrak
