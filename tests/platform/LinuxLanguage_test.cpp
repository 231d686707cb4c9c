// Locales as language codes.

#include "platform/linux/LinuxLanguage.h"

#include <gtest/gtest.h>

namespace glidetrak {

namespace {

TEST(LinuxLanguage, LocaleHasItsCode) {
  const struct {
    const char* sLocale;
    int iCode;
  } rows[] = {
      {"en_US", 0x0409}, {"en_GB", 0x0809},    {"en_AU", 0x0809}, {"es_ES", 0x0C0A},
      {"es_MX", 0x080A}, {"es_AR", 0x2C0A},    {"es_CL", 0x0C0A}, {"fr_FR", 0x040C},
      {"fr_CA", 0x040C}, {"de_DE", 0x0407},    {"de_AT", 0x0407}, {"pt_BR", 0x0416},
      {"pt_PT", 0x0816}, {"ru_RU", 0x0419},    {"kk_KZ", 0x043F}, {"C", 0x0409},
      {"sv_SE", 0x0409}, {"nonsense", 0x0409},
  };
  for (const auto& row : rows)
    EXPECT_EQ(LanguageCode(QLocale(row.sLocale)), row.iCode) << row.sLocale;
}

TEST(LinuxLanguage, UnknownLocaleIsUnitedStatesEnglish) {
  EXPECT_EQ(KnownLocale(QLocale::c()), QLocale(QLocale::English, QLocale::UnitedStates));
  EXPECT_EQ(KnownLocale(QLocale("es_ES")), QLocale("es_ES"));
}

}  // namespace

}  // namespace glidetrak
