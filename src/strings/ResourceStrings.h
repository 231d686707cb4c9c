#pragma once

// The numbered string store: every text that the user reads and the keywords of the Control
// Program language, in English and in Spanish, over the same ids. The rows stand in data/strings.

#include <QString>

namespace glidetrak {

/// Language codes of the tables that the store holds.
constexpr int iEnglish = 1033;
constexpr int iSpanish = 3082;

/// Number of ids; each table has a row for each.
constexpr int iStringCount = 212;

/// One row of the store; "" when that language has no such row. An absent row and an empty text
/// are the same thing.
QString LoadTextFor(int iId, int iLanguage);

/// The row of that id in whatever language holds it first, or "".
QString LoadDefaultText(int iId);

}  // namespace glidetrak
