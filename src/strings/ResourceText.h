#pragma once

// The texts of the station by name, in the interface language.

#include <QString>
#include <utility>
#include <vector>

#include "strings/TextIds.h"

namespace glidetrak {

/// The text of an id in the interface language, else in its fallback, else in English; "" if the
/// id has no text anywhere. Never fails. Reads the store at each call.
QString LoadText(TextId id);

/// A token and what takes its place.
using Token = std::pair<QString, QString>;

/// LoadText, then each token replaced in turn, everywhere it stands.
QString ReplaceTokens(TextId id, const std::vector<Token>& aTokens);

}  // namespace glidetrak
