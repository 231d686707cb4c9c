#pragma once

// The widgets of a form's controls, made from its table.

#include <span>

#include "form/ControlTable.h"
#include "view/FocusKeeper.h"

namespace glidetrak {

/// Makes the widget of every row, each a child of its container's widget, the form's own controls
/// on `pClient`, and wires their properties, events and methods. Layers, the order of Tab and the
/// keeper of the focus are the table's. Widgets and timers are named as their controls, members of
/// an array name_index. File dialogs, whose methods are filled, and
/// image lists have no widget.
void MakeControls(std::span<const ControlRow> rows, QWidget* pClient, FocusKeeper& focus);

/// Wires what every control has in common: visible, enabled, tool tip, pointer, focus, repaint.
void WireControl(QWidget* pWidget, Control& control, FocusKeeper& focus);

}  // namespace glidetrak
