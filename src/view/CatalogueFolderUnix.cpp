#include "view/CatalogueFolder.h"

#include <QLibraryInfo>

namespace glidetrak {

QString CatalogueFolder() {
  return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}

}  // namespace glidetrak
