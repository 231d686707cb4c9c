#include "strings/LanguageFunctions.h"

#include <array>

#include "strings/ResourceStrings.h"

namespace glidetrak {

namespace {

constexpr int iRussian = 1049;
constexpr int iKazakh = 1087;
constexpr int iPortuguese = 2070;
constexpr int iFrench = 1036;
constexpr int iOtherEnglish = 2057;
constexpr int iGerman = 1031;

/// The low 10 bits of a code: the language without its region.
constexpr int PrimaryLanguage(int iLanguage) {
  return iLanguage & 0x3FF;
}

constexpr std::array aIndexCodes{iEnglish,    iOtherEnglish, iSpanish, iFrench,
                                 iPortuguese, iRussian,      iKazakh};

int TextLanguage(int iLanguage) {
  switch (PrimaryLanguage(iLanguage)) {
    case 63:
      return iKazakh;
    case 25:
      return iRussian;
    case 10:
      return iSpanish;
    case 22:
      return iPortuguese;
    case 7:
      return iGerman;
    default:
      return iEnglish;
  }
}

}  // namespace

int GetCurrentLanguage() {
  const int iLanguage = TextLanguage(iUILanguage != 0 ? iUILanguage : GetSystemLanguage());
  if (iUILanguage == 0) iUILanguage = static_cast<qint16>(iLanguage);
  return iLanguage;
}

int GetFallbackLanguage(int iLanguage) {
  return iLanguage == iKazakh ? iRussian : iLanguage;
}

void SetUILanguage(qint16 iLanguage) {
  iUILanguage = iLanguage;
}

qint16 GetSystemLanguage() {
  const QString sKey = "Software\\Torvane";
  qint32 lLanguage = ReadRegistryNumber(Scope::User, sKey, "UILanguage", 0);
  if (lLanguage == 0) lLanguage = ReadRegistryNumber(Scope::Machine, sKey, "UILanguage", 0);
  if (lLanguage == 0) lLanguage = pMachine->UserDefaultLanguage();
  return static_cast<qint16>(lLanguage);
}

qint32 ReadRegistryNumber(Scope root, const QString& sKeyPath, const QString& sValueName,
                          qint32 lDefault) {
  return pMachine->ReadRegistryNumber(root, sKeyPath, sValueName).value_or(lDefault);
}

int LanguageIndexFromCode(int iLanguage) {
  switch (PrimaryLanguage(iLanguage)) {
    case 63:
      return 6;
    case 25:
      return 5;
    case 10:
      return 2;
    case 22:
      return 4;
    case 12:
      return 3;
    case 9:
      return iLanguage == iEnglish ? 0 : 1;
    default:
      return 0;
  }
}

int LanguageCodeFromIndex(int iIndex) {
  const bool bKnown = iIndex >= 0 && iIndex < static_cast<int>(aIndexCodes.size());
  return bKnown ? aIndexCodes[static_cast<size_t>(iIndex)] : iEnglish;
}

QString LanguageFolderCode(int iIndex) {
  return QString("%1").arg(LanguageCodeFromIndex(iIndex), 4, 16, QChar(u'0')).toUpper();
}

}  // namespace glidetrak
