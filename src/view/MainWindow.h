#pragma once

#include "view/FormWindow.h"

namespace glidetrak {

/// The window of the main form; null before BuildView and after the application object has gone.
FormWindow* MainWindow();

}  // namespace glidetrak
