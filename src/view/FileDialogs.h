#pragma once

#include <QWidget>

#include "form/Controls.h"

namespace glidetrak {

/// Fills ShowOpen and ShowSave of a file dialog: modal over the window, and without a question
/// before a file is overwritten, which is the station's own business.
void WireFileDialog(FileDialog& dialog, QWidget* pWindow);

}  // namespace glidetrak
