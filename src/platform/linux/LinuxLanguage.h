#pragma once

// The user's locale as a 16-bit language code: the low 10 bits the language, the rest the region.

#include <QLocale>

namespace glidetrak {

/// The code of a locale. Where only the language is known the code names its first region; a
/// language outside the table, an unknown locale and C are United States English.
int LanguageCode(const QLocale& locale);

/// The locale itself, or United States English for C.
QLocale KnownLocale(const QLocale& locale);

}  // namespace glidetrak
