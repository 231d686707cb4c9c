// picture-recorder IN.svg OUT.picture: records how a picture is painted, so that the station
// repeats it at any size without reading SVG. picture-recorder IN.svg OUT.png PIXELS: the same
// picture as a square of pixels.

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>
#include <cstdio>

namespace {

int Fail(const char* sText, const QString& sFile) {
  std::fprintf(stderr, "picture-recorder: %s: %s\n", sText, qPrintable(sFile));
  return 1;
}

bool Record(QSvgRenderer& renderer, const QString& sFile) {
  const QRect whole(QPoint(), renderer.viewBox().size());
  QPicture picture;
  // Ahead of the painting, which would else count what it touches and store that.
  picture.setBoundingRect(whole);
  QPainter painter(&picture);
  renderer.render(&painter, whole);
  painter.end();
  return picture.save(sFile);
}

bool Draw(QSvgRenderer& renderer, const QString& sFile, int iPixels) {
  QImage image(iPixels, iPixels, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  renderer.render(&painter, QRectF(image.rect()));
  painter.end();
  return image.save(sFile);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "minimal");
  const QGuiApplication application(argc, argv);
  const QStringList aArguments = QGuiApplication::arguments();
  if (aArguments.size() < 3) return Fail("needs", "IN.svg OUT.picture | IN.svg OUT.png PIXELS");
  QSvgRenderer renderer(aArguments[1]);
  if (!renderer.isValid()) return Fail("cannot be read", aArguments[1]);
  const bool bWritten = aArguments.size() > 3 ? Draw(renderer, aArguments[2], aArguments[3].toInt())
                                              : Record(renderer, aArguments[2]);
  return bWritten ? 0 : Fail("cannot be written", aArguments[2]);
}
