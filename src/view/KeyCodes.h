#pragma once

// The toolkit's key events in the station's terms.

#include <QKeyEvent>

namespace glidetrak {

/// The virtual key code of the physical key: letters 65 to 90, digits of the main keys 48 to 57
/// whatever the shift keys make of them, numeric pad 96 to 111, function keys from 112. 0 for a key
/// without a code.
int VirtualKeyCode(const QKeyEvent& event);

/// The code of the event's one character in the code page, '?' when the code page lacks it; 0 when
/// the key has no character. Delete has none.
int CharacterCode(const QKeyEvent& event);

}  // namespace glidetrak
