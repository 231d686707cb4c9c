#pragma once

#include <QWidget>

#include "form/Controls.h"

namespace glidetrak {

/// The drop-down list of a ComboBox. Click is the user's choice, the same entry chosen again
/// included, and never the station's own ListIndex.
QWidget* MakeComboBox(ComboBox& box, QWidget* pParent);

/// The list of a ListBox. The user's move writes ListIndex, then fires Click.
QWidget* MakeListBox(ListBox& box, QWidget* pParent);

}  // namespace glidetrak
