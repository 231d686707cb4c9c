#pragma once

// Mouse and key events of the widgets, handed on to the events of their controls.

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include "form/Controls.h"

namespace glidetrak {

/// Fires the control's mouse event. The place is told in twips inside `widget`; the button is the
/// one pressed or released, or the one held during a move.
void RelayMouse(Control& control, const QWidget& widget, const QMouseEvent& event);

/// Fires the control's key events; true when the control swallows the key, be it by KeyDown or by
/// KeyPress. A control character (Enter, Escape, Ctrl+C) is swallowed by KeyPress alone: what
/// KeyDown hears of Ctrl+C is the letter's code. Tab moves the focus before a control sees it as a
/// key.
bool RelayKey(Control& control, const QKeyEvent& event);

/// Whether it is one of the four mouse events.
bool IsMouseEvent(const QEvent& event);

/// For a widget that answers no mouse of its own (panel, image, label, lamp, the debug panel's
/// displays): what happens over it is its control's alone, and nothing goes on to the panel behind.
void RelayPassive(QWidget* pWidget, Control& control);

/// For a widget that also answers mouse and keys itself: the control comes first, and the widget
/// never sees a key that the control swallows.
void RelayActive(QWidget* pWidget, Control& control);

/// The keys alone, the mouse being told by the widget itself, after its own answer.
void RelayKeys(QWidget* pWidget, Control& control);

}  // namespace glidetrak
