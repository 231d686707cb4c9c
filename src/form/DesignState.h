#pragma once

namespace glidetrak {

/// Puts every control of both forms into its design state: place, size, captions, what is hidden,
/// timers and pictures.
void ResetForms();

}  // namespace glidetrak
