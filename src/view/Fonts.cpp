#include "view/Fonts.h"

#include <QFontMetrics>
#include <QStringList>

namespace glidetrak {

namespace {

struct Face {
  const char* sFamily;
  bool bRaster;            ///< Windows has it as pixels, in few sizes that fit no scaled display
  const char* aOthers[4];  ///< the nearest in width first; null ends the list
};

constexpr Face FaceTable[] = {
    {"MS Sans Serif", true, {"Microsoft Sans Serif", "Arial", "Liberation Sans", "Nimbus Sans"}},
    {"Verdana", false, {"DejaVu Sans", nullptr}},
    {"Malgun Gothic", false, {"Segoe UI", "Liberation Sans", "Nimbus Sans", nullptr}},
    {"Arial Narrow",
     false,
     {"Liberation Sans Narrow", "Nimbus Sans Narrow", "DejaVu Sans Condensed", "Arial"}},
    {"Courier", true, {"Courier New", "Liberation Mono", "DejaVu Sans Mono", nullptr}},
    {"Courier New", false, {"Liberation Mono", "DejaVu Sans Mono", nullptr}},
};

constexpr qreal fSmallest = 0.72;  ///< of the design size; below that nobody reads it

QStringList FamiliesFor(const QString& sFamily) {
  QStringList aFamilies{sFamily};
  for (const Face& row : FaceTable) {
    if (sFamily != row.sFamily) continue;
    if (row.bRaster) aFamilies.clear();
    for (int i = 0; i < 4 && row.aOthers[i]; ++i) aFamilies.append(row.aOthers[i]);
  }
  return aFamilies;
}

}  // namespace

QFont MakeFont(const Font& font) {
  const QString sFamily = font.sFamily;
  QFont made;
  made.setFamilies(FamiliesFor(sFamily));
  made.setStyleHint(sFamily.startsWith("Courier") ? QFont::Monospace : QFont::SansSerif);
  made.setPixelSize(qRound(font.fPoints * 96 / 72));
  made.setBold(font.bBold);
  return made;
}

QFont FittingFont(QFont font, const QString& sText, int iWidth) {
  const int iSmallest = qRound(font.pixelSize() * fSmallest);
  while (font.pixelSize() > iSmallest && QFontMetrics(font).horizontalAdvance(sText) > iWidth) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  return font;
}

}  // namespace glidetrak
