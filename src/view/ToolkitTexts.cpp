#include "view/ToolkitTexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <string_view>

#include "strings/LanguageFunctions.h"
#include "strings/ResourceStrings.h"
#include "view/CatalogueFolder.h"

namespace glidetrak {

namespace {

struct ToolkitText {
  std::string_view sContext;
  std::string_view sEnglish;
  const char* sSpanish;
};

/// What the toolkit's Spanish catalogue lacks, misspells or says in other words than the station,
/// which has "archivo" and "carpeta" throughout.
constexpr ToolkitText aSpanishTexts[] = {
    {"QAbstractFileIconProvider", "Drive", "Unidad"},
    {"QAbstractFileIconProvider", "File Folder", "Carpeta"},
    {"QAbstractFileIconProvider", "Folder", "Carpeta"},
    {"QFileDialog", "%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nNo se encuentra la carpeta.\nCompruebe que el nombre de la carpeta es correcto."},
    {"QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nNo se encuentra el archivo.\nCompruebe que el nombre del archivo es correcto."},
    {"QFileDialog", "All Files (*)", "Todos los archivos (*)"},
    {"QFileDialog", "Change to detail view mode", "Cambiar a la vista detallada"},
    {"QFileDialog", "Change to list view mode", "Cambiar a la vista de lista"},
    {"QFileDialog", "Could not delete directory.", "No se puede borrar la carpeta."},
    {"QFileDialog", "File &name:", "&Nombre de archivo:"},
    {"QFileDialog", "Files of type:", "Archivos de tipo:"},
    {"QFileDialog", "Forward", "Adelante"},
    {"QFileDialog", "Go forward", "Ir adelante"},
    {"QFileDialog", "Go to the parent directory", "Ir a la carpeta superior"},
    {"QFileDialog", "Look in:", "Carpeta:"},
    {"QFileDialog", "Parent Directory", "Carpeta superior"},
    {"QFileDialog", "Show &hidden files", "Mostrar los archivos &ocultos"},
    {"QFileSystemModel", "Date Modified", "Modificado"},
};

class SpanishTexts : public QTranslator {
 public:
  using QTranslator::QTranslator;

  bool isEmpty() const override { return false; }

  QString translate(const char* sContext, const char* sEnglish, const char* sNote,
                    int iCount) const override {
    for (const ToolkitText& row : aSpanishTexts) {
      if (row.sContext == sContext && row.sEnglish == sEnglish) return row.sSpanish;
    }
    return QTranslator::translate(sContext, sEnglish, sNote, iCount);
  }
};

/// The user's own kind of Spanish where the system speaks one.
QLocale SpanishLocale() {
  const QLocale system = QLocale::system();
  return system.language() == QLocale::Spanish ? system : QLocale(QLocale::Spanish, QLocale::Spain);
}

void InstallSpanish() {
  auto* pTexts = new SpanishTexts(QCoreApplication::instance());
  // Without the toolkit's catalogue the rows above are in Spanish all the same.
  (void)pTexts->load("qtbase_es", CatalogueFolder());
  QCoreApplication::installTranslator(pTexts);
  QLocale::setDefault(SpanishLocale());
}

}  // namespace

void InstallToolkitTexts() {
  static bool bDone = false;
  if (bDone) return;
  bDone = true;
  if (GetCurrentLanguage() == iSpanish) InstallSpanish();
}

}  // namespace glidetrak
