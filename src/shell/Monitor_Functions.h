#pragma once

// The main window's place and the monitors. Rectangles are screen pixels.

#include "platform/Platform.h"

namespace glidetrak {

struct TwipsRect {
  qint32 lLeft = 0, lTop = 0, lWidth = 0, lHeight = 0;
};

/// The window's normal rectangle in twips, else its present one; false, and nothing written, when
/// neither is known.
bool GetWindowRectTwips(TwipsRect& rect);

/// The nearest monitor, else the work area, else the screen from its own size.
PixelRect GetMonitorRect();

/// The window's top-left corner lies on the monitor, both edges included. Only this corner counts.
bool IsTopLeftOnMonitor(const PixelRect& monitor);

/// Centres the window on the monitor in each axis in which its corner lies outside; its size stays.
void CentreWindowOnMonitor(const PixelRect& monitor);

/// Brings a window back whose corner lies on no monitor.
void KeepWindowOnMonitor();

/// True when the main window is the active window.
bool IsActiveWindow();

}  // namespace glidetrak
