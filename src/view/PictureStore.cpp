#include "view/PictureStore.h"

#include <QFile>
#include <QPainter>
#include <QPicture>
#include <QPixmapCache>

/// Stands outside every namespace because the macro declares a function of the resource file.
static void OpenPictures() {
  Q_INIT_RESOURCE(pictures);
}

namespace glidetrak {

namespace {

constexpr int iBarSegments = 15;
constexpr int iCacheKilobytes = 64 * 1024;  ///< a window being resized draws the rig at each size

bool IsBar(PictureId picture) {
  return picture >= PictureId::Bar0 && picture <= PictureId::Bar15;
}

QString FileOf(PictureId picture) {
  for (const PictureFile& row : PictureFiles) {
    if (row.picture == picture) return QString(":/pictures/%1.picture").arg(row.sFile);
  }
  return {};
}

QColor SegmentColour(int iSegment) {
  if (iSegment < 8) return {72, 199, 116};
  return iSegment < 12 ? QColor(235, 200, 66) : QColor(226, 74, 61);
}

/// The column of the impact bar, lit from the bottom up to the picture's value.
void DrawBar(QPainter& painter, PictureId picture, QSizeF size) {
  const int iLit = static_cast<int>(picture) - static_cast<int>(PictureId::Bar0);
  const qreal fStep = size.height() / iBarSegments;
  painter.fillRect(QRectF(QPointF(), size), QColor(24, 23, 30));
  for (int i = 0; i < iBarSegments; ++i) {
    const QColor colour = i < iLit ? SegmentColour(i) : SegmentColour(i).darker(420);
    const qreal fTop = size.height() - (i + 1) * fStep;
    painter.fillRect(QRectF(3, fTop + 1.5, size.width() - 6, fStep - 3), colour);
  }
}

QPicture ReadPicture(PictureId picture) {
  static const bool bOpen = (OpenPictures(), true);
  Q_UNUSED(bOpen);
  QPicture read;
  QFile file(FileOf(picture));
  if (file.open(QIODevice::ReadOnly)) read.load(&file);
  return read;
}

/// The drawing's own size, stretched to the one that is wanted or fitted into it.
void DrawFile(QPainter& painter, PictureId picture, QSizeF size, Fit fit) {
  const QPicture read = ReadPicture(picture);
  const QSizeF own = read.boundingRect().size();
  if (own.isEmpty()) return;
  const QSizeF drawn =
      own.scaled(size, fit == Fit::KeepProportions ? Qt::KeepAspectRatio : Qt::IgnoreAspectRatio);
  painter.translate((size.width() - drawn.width()) / 2, (size.height() - drawn.height()) / 2);
  painter.scale(drawn.width() / own.width(), drawn.height() / own.height());
  painter.drawPicture(0, 0, read);
}

QPixmap Draw(PictureId picture, QSize size, qreal fPixelRatio, Fit fit) {
  QPixmap pixmap(size * fPixelRatio);
  pixmap.setDevicePixelRatio(fPixelRatio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  if (IsBar(picture)) {
    DrawBar(painter, picture, size);
  } else {
    DrawFile(painter, picture, size, fit);
  }
  return pixmap;
}

}  // namespace

QPixmap PictureAt(PictureId picture, QSize size, qreal fPixelRatio, Fit fit) {
  if (picture == PictureId::None || size.isEmpty()) return {};
  const QString sKey = QString("picture %1 %2x%3 %4 %5")
                           .arg(static_cast<int>(picture))
                           .arg(size.width())
                           .arg(size.height())
                           .arg(fPixelRatio)
                           .arg(static_cast<int>(fit));
  QPixmap pixmap;
  if (QPixmapCache::find(sKey, &pixmap)) return pixmap;
  QPixmapCache::setCacheLimit(iCacheKilobytes);
  pixmap = Draw(picture, size, fPixelRatio, fit);
  QPixmapCache::insert(sKey, pixmap);
  return pixmap;
}

}  // namespace glidetrak
