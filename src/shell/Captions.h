#pragma once

namespace glidetrak {

/// Gives every control of the main window its text in the interface language, once, at start-up.
/// Ids that the store does not hold clear the property; some tool tips are blank that way.
void LoadCaptions();

}  // namespace glidetrak
