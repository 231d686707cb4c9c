#include "view/TypedName.h"

namespace glidetrak {

/// A path that was copied as one stands in double quotes.
QString BareName(const QString& sTyped) {
  const bool bQuoted = sTyped.size() > 2 && sTyped.startsWith(u'"') && sTyped.endsWith(u'"');
  return bQuoted ? sTyped.mid(1, sTyped.size() - 2) : sTyped;
}

/// The toolkit takes a text with double quotes for a list of names, where the system refuses it.
bool IsMisreadByToolkit(const QString& sName) {
  return sName.contains(u'"');
}

}  // namespace glidetrak
