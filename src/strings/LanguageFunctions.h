#pragma once

// Which language the station speaks. There are two ways from a language code to a choice, and they
// differ on purpose: GetCurrentLanguage picks the texts, LanguageIndexFromCode the folder of the
// configuration file. French has an index and no texts; German has a code for texts and no index.

#include <QString>

#include "platform/Platform.h"

namespace glidetrak {

/// Code of the language of the texts; 0 until it is decided, then never changed. Written by
/// GetCurrentLanguage, at the first LoadText, or earlier by SetUILanguage.
inline qint16 iUILanguage = 0;

/// Decides and keeps iUILanguage; the code of the texts' language.
int GetCurrentLanguage();

/// 1087 (Kazakh) falls back to 1049 (Russian); any other code to itself.
int GetFallbackLanguage(int iLanguage);

/// The override of the command line's /LC.
void SetUILanguage(qint16 iLanguage);

/// The value UILanguage of the user, then of the machine, then the user's default language; a
/// stored 0 counts as not stored.
qint16 GetSystemLanguage();

/// A number of the settings store; the default for any other type, a missing value or key.
qint32 ReadRegistryNumber(Scope root, const QString& sKeyPath, const QString& sValueName,
                          qint32 lDefault);

/// The language index, 0 to 6, that picks the configuration's folder.
int LanguageIndexFromCode(int iLanguage);

/// The code of an index; 1033 for an index above 6 or below 0.
int LanguageCodeFromIndex(int iIndex);

/// The code of an index as four upper-case hexadecimal digits.
QString LanguageFolderCode(int iIndex);

}  // namespace glidetrak
