// From the user's locale to a language code.

#include "platform/linux/LinuxLanguage.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "platform/linux/LinuxMachine.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

struct LocaleRow {
  const char* sLocale;
  int iCode;
};

const LocaleRow LocaleRows[] = {
    {"en_US", 0x0409}, {"en_GB", 0x0809}, {"es_ES", 0x0C0A}, {"fr_FR", 0x040C}, {"de_DE", 0x0407},
    {"pt_PT", 0x0816}, {"ru_RU", 0x0419}, {"kk_KZ", 0x043F}, {"C", 0x0409},     {"ja_JP", 0x0409},
};

TEST(LinuxLanguage, TurnsALocaleIntoItsCode) {
  for (const LocaleRow& row : LocaleRows) {
    EXPECT_EQ(LanguageCode(QLocale(row.sLocale)), row.iCode) << row.sLocale;
  }
}

/// The low 10 bits of a code.
const LocaleRow PrimaryRows[] = {
    {"es_MX", 10}, {"es_AR", 10}, {"es_CO", 10}, {"en_AU", 9},  {"en_IE", 9},
    {"pt_BR", 22}, {"fr_CA", 12}, {"de_AT", 7},  {"ru_UA", 25},
};

TEST(LinuxLanguage, KeepsTheLanguageOfEveryRegion) {
  for (const LocaleRow& row : PrimaryRows) {
    EXPECT_EQ(LanguageCode(QLocale(row.sLocale)) & 0x3FF, row.iCode) << row.sLocale;
  }
}

TEST(LinuxLanguage, TakesOtherEnglishForOtherEnglish) {
  for (const char* sLocale : {"en_AU", "en_IE", "en_ZA"}) {
    EXPECT_NE(LanguageCode(QLocale(sLocale)), 0x0409) << sLocale;
  }
}

TEST(LinuxLanguage, TakesAnUnknownLocaleForTheUnitedStates) {
  const QLocale known = KnownLocale(QLocale::c());
  EXPECT_EQ(known.language(), QLocale::English);
  EXPECT_EQ(known.territory(), QLocale::UnitedStates);
  EXPECT_EQ(KnownLocale(QLocale("es_ES")), QLocale("es_ES"));
}

TEST(LinuxLanguage, IsUnitedStatesEnglishWithoutALocale) {
  LinuxMachine machine;
  EXPECT_EQ(machine.UserDefaultLanguage(), 1033);
}

TEST(LinuxLanguage, WritesTheTimeWithoutItsZone) {
  LinuxMachine machine;
  const QRegularExpression expected("^\\d{1,2}:\\d{2}:\\d{2}\\s[AP]M$",
                                    QRegularExpression::UseUnicodePropertiesOption);
  EXPECT_TRUE(expected.match(machine.LongTime()).hasMatch()) << machine.LongTime().toStdString();
}

}  // namespace
}  // namespace glidetrak
