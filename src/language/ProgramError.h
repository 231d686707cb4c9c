#pragma once

// The boxes of the language's errors. They stand over the top band, so that the line that the
// editor shows for the error is seen.

#include "strings/ResourceText.h"
#include "strings/ShowMessage.h"

namespace glidetrak {

/// Tells the user of an error in the program. Always false, for the caller to hand on.
inline bool FailWith(const QString& sText, BoxIcon icon = BoxIcon::Exclamation) {
  ShowMessage(sText, LoadText(idProgramError), icon, BoxPlace::TopBand);
  return false;
}
inline bool FailWith(TextId id, BoxIcon icon = BoxIcon::Exclamation) {
  return FailWith(LoadText(id), icon);
}

}  // namespace glidetrak
