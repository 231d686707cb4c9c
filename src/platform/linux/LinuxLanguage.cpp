#include "platform/linux/LinuxLanguage.h"

#include <array>

namespace glidetrak {

namespace {

constexpr int iUnitedStatesEnglish = 0x0409;

struct LanguageRow {
  QLocale::Language language;
  QLocale::Territory territory;  ///< AnyTerritory: every region that no row before it names
  int iCode;
};

constexpr std::array LanguageRows{
    LanguageRow{QLocale::English, QLocale::UnitedStates, iUnitedStatesEnglish},
    LanguageRow{QLocale::English, QLocale::AnyTerritory, 0x0809},
    LanguageRow{QLocale::Spanish, QLocale::Mexico, 0x080A},
    LanguageRow{QLocale::Spanish, QLocale::Argentina, 0x2C0A},
    LanguageRow{QLocale::Spanish, QLocale::AnyTerritory, 0x0C0A},
    LanguageRow{QLocale::French, QLocale::AnyTerritory, 0x040C},
    LanguageRow{QLocale::German, QLocale::AnyTerritory, 0x0407},
    LanguageRow{QLocale::Portuguese, QLocale::Brazil, 0x0416},
    LanguageRow{QLocale::Portuguese, QLocale::AnyTerritory, 0x0816},
    LanguageRow{QLocale::Russian, QLocale::AnyTerritory, 0x0419},
    LanguageRow{QLocale::Kazakh, QLocale::AnyTerritory, 0x043F},
};

}  // namespace

int LanguageCode(const QLocale& locale) {
  for (const LanguageRow& row : LanguageRows) {
    if (row.language != locale.language()) continue;
    if (row.territory == QLocale::AnyTerritory || row.territory == locale.territory()) {
      return row.iCode;
    }
  }
  return iUnitedStatesEnglish;
}

QLocale KnownLocale(const QLocale& locale) {
  if (locale.language() != QLocale::C) return locale;
  return QLocale(QLocale::English, QLocale::UnitedStates);
}

}  // namespace glidetrak
