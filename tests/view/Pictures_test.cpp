// The pictures: each is there, each looks different, and each bar shows its value.

#include "view/PictureStore.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPicture>

namespace glidetrak {
namespace {

QImage ImageOf(PictureId picture, QSize size = {60, 60}) {
  return PictureAt(picture, size, 1, Fit::Stretch).toImage();
}

bool IsEmpty(const QImage& image) {
  for (int iY = 0; iY < image.height(); ++iY) {
    for (int iX = 0; iX < image.width(); ++iX) {
      if (image.pixelColor(iX, iY).alpha() != 0) return false;
    }
  }
  return true;
}

TEST(Pictures, AreAllThere) {
  for (const PictureFile& row : PictureFiles) {
    const QImage image = ImageOf(row.picture);
    ASSERT_FALSE(image.isNull()) << row.sFile;
    EXPECT_FALSE(IsEmpty(image)) << row.sFile;
  }
}

TEST(Pictures, AllLookDifferent) {
  for (const PictureFile& first : PictureFiles) {
    for (const PictureFile& second : PictureFiles) {
      if (first.picture == second.picture) continue;
      EXPECT_NE(ImageOf(first.picture), ImageOf(second.picture))
          << first.sFile << ' ' << second.sFile;
    }
  }
}

QByteArray Drawing(const PictureFile& row) {
  QFile file(QString("%1/%2.svg").arg(GLIDETRAK_PICTURES, row.sFile));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << row.sFile;
  return file.readAll();
}

/// Texts come from the string table, in two languages.
TEST(Pictures, HoldNoText) {
  for (const PictureFile& row : PictureFiles) {
    EXPECT_FALSE(Drawing(row).contains("<text")) << row.sFile;
  }
}

/// What is painted may reach less far than the drawing, or farther.
TEST(Pictures, AreRecordedAtTheSizeOfTheirDrawing) {
  EXPECT_FALSE(ImageOf(PictureId::Lever).isNull());
  for (const PictureFile& row : PictureFiles) {
    QPicture picture;
    ASSERT_TRUE(picture.load(QString(":/pictures/%1.picture").arg(row.sFile))) << row.sFile;
    const QRect rect = picture.boundingRect();
    const auto sBox = QString("viewBox=\"%1 %2 %3 %4\"")
                          .arg(rect.x())
                          .arg(rect.y())
                          .arg(rect.width())
                          .arg(rect.height());
    EXPECT_TRUE(Drawing(row).contains(sBox.toUtf8())) << row.sFile << ' ' << sBox.toStdString();
  }
}

TEST(Pictures, NoPictureAndNoSizeAreNothing) {
  EXPECT_TRUE(PictureAt(PictureId::None, {10, 10}, 1, Fit::Stretch).isNull());
  EXPECT_TRUE(PictureAt(PictureId::Lever, {0, 10}, 1, Fit::Stretch).isNull());
}

TEST(Pictures, AreDrawnForTheScreensPixels) {
  const QPixmap pixmap = PictureAt(PictureId::Lever, {121, 49}, 2, Fit::Stretch);
  EXPECT_EQ(pixmap.size(), QSize(242, 98));
  EXPECT_EQ(pixmap.devicePixelRatio(), 2);
}

TEST(Pictures, MayKeepTheirProportions) {
  const QImage wide = PictureAt(PictureId::TimerReset, {90, 30}, 1, Fit::KeepProportions).toImage();
  EXPECT_EQ(wide.pixelColor(5, 15).alpha(), 0);
  EXPECT_EQ(wide.pixelColor(45, 4).alpha(), 255);
  const QImage filled = PictureAt(PictureId::TimerReset, {90, 30}, 1, Fit::Stretch).toImage();
  EXPECT_NE(filled.pixelColor(10, 15).alpha(), 0);
}

/// The brightness in the middle of a segment, the lowest being 0.
int Brightness(int iValue, int iSegment) {
  const auto bar = static_cast<PictureId>(static_cast<int>(PictureId::Bar0) + iValue);
  const QImage image = ImageOf(bar, {43, 169});
  return image.pixelColor(21, qRound(169 - (iSegment + 0.5) * 169 / 15)).value();
}

TEST(Pictures, OfTheBarAreLitFromTheBottomUpToTheValue) {
  for (int iValue = 0; iValue <= 15; ++iValue) {
    for (int iSegment = 0; iSegment < 15; ++iSegment) {
      const bool bLit = Brightness(iValue, iSegment) > 120;
      EXPECT_EQ(bLit, iSegment < iValue) << iValue << ' ' << iSegment;
    }
  }
}

TEST(Pictures, OfTheBarGoFromGreenOverYellowToRed) {
  const QImage image = ImageOf(PictureId::Bar15, {43, 169});
  const QColor low = image.pixelColor(21, 163);
  const QColor middle = image.pixelColor(21, 62);
  const QColor high = image.pixelColor(21, 6);
  EXPECT_GT(low.green(), low.red());
  EXPECT_NEAR(middle.red(), middle.green(), 60);
  EXPECT_GT(high.red(), 2 * high.green());
}

}  // namespace
}  // namespace glidetrak
