#include "strings/ResourceText.h"

#include "common/SkipOnError.h"
#include "strings/LanguageFunctions.h"
#include "strings/ResourceStrings.h"

namespace glidetrak {

namespace {

QString FindText(int iId) {
  const int iLanguage = GetCurrentLanguage();
  const int iAlternative = GetFallbackLanguage(iLanguage);
  QString sText = LoadTextFor(iId, iLanguage);
  if (sText.isEmpty() && iAlternative != iLanguage) sText = LoadTextFor(iId, iAlternative);
  if (sText.isEmpty() && iLanguage != iEnglish && iAlternative != iEnglish) {
    sText = LoadTextFor(iId, iEnglish);
  }
  return sText.isEmpty() ? LoadDefaultText(iId) : sText;
}

}  // namespace

QString LoadText(TextId id) {
  return ReplaceTokens(id, {});
}

QString ReplaceTokens(TextId id, const std::vector<Token>& aTokens) {
  QString sText;
  SkipOnError([&] { sText = FindText(id); });
  for (const auto& [sToken, sValue] : aTokens) sText.replace(sToken, sValue);
  return sText;
}

}  // namespace glidetrak
