#include "view/Pointers.h"

#include <QGuiApplication>

#include "form/frmGlidetrak.h"
#include "view/Observe.h"
#include "view/PictureStore.h"

namespace glidetrak {

namespace {

constexpr QSize IconSize{32, 32};
constexpr QPoint FingerTip{12, 2};  ///< in the hand picture

QCursor IconCursor(PictureId icon, qreal fPixelRatio) {
  if (icon == PictureId::None) return Qt::ArrowCursor;
  const QPixmap pixmap = PictureAt(icon, IconSize, fPixelRatio, Fit::KeepProportions);
  return QCursor(pixmap, FingerTip.x(), FingerTip.y());
}

/// A pointer that nobody sets is no custom one; it falls back to the arrow.
QCursor SystemCursor(int iPointer) {
  switch (iPointer) {
    case ptrNorthSouth:
      return Qt::SizeVerCursor;
    case ptrHourglass:
      return Qt::WaitCursor;
    case ptrNoDrop:
      return Qt::ForbiddenCursor;
    default:
      return Qt::ArrowCursor;
  }
}

void ApplyScreenPointer(bool& bOverridden) {
  const int iPointer = screen.MousePointer;
  if (iPointer == ptrDefault) {
    if (bOverridden) QGuiApplication::restoreOverrideCursor();
  } else if (bOverridden) {
    QGuiApplication::changeOverrideCursor(SystemCursor(iPointer));
  } else {
    QGuiApplication::setOverrideCursor(SystemCursor(iPointer));
  }
  bOverridden = iPointer != ptrDefault;
}

}  // namespace

void ObservePointer(QWidget* pWidget, Control& control) {
  const QCursor ownCursor =
      pWidget->testAttribute(Qt::WA_SetCursor) ? pWidget->cursor() : QCursor(Qt::ArrowCursor);
  const auto apply = [pWidget, &control, ownCursor] {
    const int iPointer = control.MousePointer;
    if (iPointer == ptrDefault) {
      pWidget->setCursor(ownCursor);
    } else if (iPointer == ptrCustom) {
      pWidget->setCursor(IconCursor(control.MouseIcon, pWidget->devicePixelRatioF()));
    } else {
      pWidget->setCursor(SystemCursor(iPointer));
    }
  };
  Observe(pWidget, control.MousePointer, apply);
  ObserveChanges(pWidget, control.MouseIcon, apply);
}

void ObserveScreenPointer(QObject* pOwner) {
  Observe(pOwner, screen.MousePointer,
          [bOverridden = false]() mutable { ApplyScreenPointer(bOverridden); });
}

}  // namespace glidetrak
