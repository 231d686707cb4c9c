#include "common/UserPaths.h"

#include "platform/Platform.h"

namespace glidetrak {

QString WithBackslash(const QString& sFolder) {
  return sFolder.endsWith(u'\\') ? sFolder : sFolder + u'\\';
}

QString GetDocumentsFolder() {
  try {
    const QString sFolder = pMachine->DocumentsFolder();
    return WithBackslash(sFolder.left(sFolder.indexOf(QChar(u'\0'))));
  } catch (const RuntimeError&) {
    return "\\";
  }
}

QString DataFolder() {
  return sAppPath + sLanguageFolder;
}

QString ConfigurationFile() {
  return DataFolder() + sConfigurationName;
}

}  // namespace glidetrak
