#pragma once

// The boxes of the language's errors. They stand over the top band, so that the line that the
// editor shows for the error is seen.

#include "strings/ResourceText.h"
#include "strings/ShowMessage.h"

namespace glidetrak {

constexpr int iProgramErrorTitle = 500;

/// Tells the user of an error in the program. Always false, for the caller to hand on.
inline bool FailWith(const QString& sText, BoxIcon icon = BoxIcon::Exclamation) {
  ShowMessage(sText, LoadText(iProgramErrorTitle), icon, BoxPlace::TopBand);
  return false;
}
inline bool FailWith(int iMessage, BoxIcon icon = BoxIcon::Exclamation) {
  return FailWith(LoadText(iMessage), icon);
}

}  // namespace glidetrak
