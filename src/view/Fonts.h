#pragma once

#include <QFont>

#include "form/ControlTable.h"

namespace glidetrak {

/// The font of a control's row, at 96 dots an inch. Where the family is missing, one of like width
/// takes its place.
QFont MakeFont(const Font& font);

}  // namespace glidetrak
