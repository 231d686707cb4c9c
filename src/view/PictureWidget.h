#pragma once

#include <QWidget>

#include "form/Controls.h"
#include "view/PictureStore.h"

namespace glidetrak {

/// Draws a panel, an image, a lamp or a line: a background, a picture over it, a border round it,
/// each of them optional.
class PictureWidget : public QWidget {
 public:
  using QWidget::QWidget;

  void ShowPicture(PictureId picture, Fit fit);
  void ShowBackground(QColor colour);
  void ShowBorder(QColor colour);

 protected:
  void paintEvent(QPaintEvent* pEvent) override;

 private:
  PictureId m_picture = PictureId::None;
  Fit m_fit = Fit::Stretch;
  QColor m_background;  ///< invalid: what lies behind shows through
  QColor m_border;      ///< invalid: none
};

}  // namespace glidetrak
