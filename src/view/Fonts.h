#pragma once

#include <QFont>

#include "form/ControlTable.h"

namespace glidetrak {

/// The font of a control's row, at 96 dots an inch. Where the family is missing, one of like width
/// takes its place.
QFont MakeFont(const Font& font);

/// The font, made smaller as far as a text needs it to fit on one line of that width in pixels; but
/// no smaller than can be read.
QFont FittingFont(QFont font, const QString& sText, int iWidth);

}  // namespace glidetrak
