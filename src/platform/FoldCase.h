#pragma once

// Names that match without regard to case.

#include <QString>
#include <algorithm>

namespace glidetrak {

/// A key under which names that differ in case alone are one. Character by character, as the
/// comparison of names goes: a folding that changes the length would take two names for one.
inline QString FoldCase(const QString& sName) {
  QString sKey = sName;
  std::transform(sKey.cbegin(), sKey.cend(), sKey.begin(),
                 [](QChar c) { return c.toCaseFolded(); });
  return sKey;
}

}  // namespace glidetrak
