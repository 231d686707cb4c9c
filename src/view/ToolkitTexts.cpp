#include "view/ToolkitTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "strings/LanguageFunctions.h"
#include "strings/ResourceStrings.h"

namespace glidetrak {

void InstallToolkitTexts() {
  static QTranslator* pTranslator = nullptr;
  if (pTranslator != nullptr) return;
  pTranslator = new QTranslator(QCoreApplication::instance());
  if (GetCurrentLanguage() != iSpanish) return;
  if (pTranslator->load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(pTranslator);
  }
}

}  // namespace glidetrak
