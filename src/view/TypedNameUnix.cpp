#include "view/TypedName.h"

namespace glidetrak {

/// Any character may be part of a name.
QString BareName(const QString& sTyped) {
  return sTyped;
}

/// The toolkit takes a text with double quotes for a list of names; the station takes a backslash
/// for the end of a folder.
bool IsMisreadByToolkit(const QString& sName) {
  return sName.contains(u'"') || sName.contains(u'\\');
}

}  // namespace glidetrak
