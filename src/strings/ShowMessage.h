#pragma once

// Modal boxes by string id.

#include <QString>

#include "platform/Platform.h"
#include "strings/TextIds.h"

namespace glidetrak {

/// A box with OK, text and title by their ids.
void ShowMessage(TextId idText, TextId idTitle, BoxIcon icon, BoxPlace place = BoxPlace::Middle);

/// A box with OK and a text put together by the caller.
void ShowMessage(const QString& sText, const QString& sTitle, BoxIcon icon,
                 BoxPlace place = BoxPlace::Middle);

/// A box with Yes and No and the question icon; true for Yes.
bool AskYesNo(const QString& sText, const QString& sTitle);

}  // namespace glidetrak
