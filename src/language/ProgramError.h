#pragma once

#include "strings/ShowMessage.h"

namespace glidetrak {

constexpr int iProgramErrorTitle = 500;

/// Tells the user of an error in the program. Always false, for the caller to hand on.
inline bool FailWith(int iMessage, BoxIcon icon = BoxIcon::Exclamation) {
  ShowMessage(iMessage, iProgramErrorTitle, icon);
  return false;
}

}  // namespace glidetrak
