#include "view/CatalogueFolder.h"

#include <QDir>

/// The linker would leave out what nobody names. Stands outside every namespace because the macro
/// declares a function of the resource file.
static void OpenCatalogues() {
  Q_INIT_RESOURCE(catalogues);
}

namespace glidetrak {

QString CatalogueFolder() {
  OpenCatalogues();
  return ":/catalogues";
}

}  // namespace glidetrak
