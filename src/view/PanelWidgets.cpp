#include "view/PanelWidgets.h"

#include "view/EventRelay.h"
#include "view/Observe.h"
#include "view/PictureWidget.h"
#include "view/Units.h"

namespace glidetrak {

/// A panel with a picture of its own shows what lies behind where the picture is transparent.
QWidget* MakePictureBox(PictureBox& box, bool bBorder, QWidget* pParent) {
  auto* pWidget = new PictureWidget(pParent);
  const auto show = [pWidget, &box] {
    const bool bPlain = box.Picture.value() == PictureId::None;
    pWidget->ShowBackground(bPlain ? ColourOf(box.BackColor) : QColor());
    pWidget->ShowPicture(box.Picture, Fit::KeepProportions);
  };
  Observe(pWidget, box.Picture, show);
  ObserveChanges(pWidget, box.BackColor, show);
  if (bBorder) pWidget->ShowBorder(ColourOf(lGrey));
  RelayPassive(pWidget, box);
  return pWidget;
}

QWidget* MakeImage(Image& image, QWidget* pParent) {
  auto* pWidget = new PictureWidget(pParent);
  Observe(pWidget, image.Picture,
          [pWidget, &image] { pWidget->ShowPicture(image.Picture, Fit::Stretch); });
  RelayPassive(pWidget, image);
  return pWidget;
}

QWidget* MakeShape(Shape& shape, QWidget* pParent) {
  auto* pWidget = new PictureWidget(pParent);
  pWidget->ShowBorder(Qt::black);
  Observe(pWidget, shape.FillColor,
          [pWidget, &shape] { pWidget->ShowBackground(ColourOf(shape.FillColor)); });
  RelayPassive(pWidget, shape);
  return pWidget;
}

/// A line of no height is drawn one pixel high.
QWidget* MakeLine(Line& line, QWidget* pParent) {
  auto* pWidget = new PictureWidget(pParent);
  pWidget->ShowBackground(ColourOf(lGrey));
  pWidget->setMinimumSize(1, 1);
  RelayPassive(pWidget, line);
  return pWidget;
}

}  // namespace glidetrak
