#pragma once

namespace glidetrak {

/// Power 0 and run flag off. Unlocks nothing: under a run the run loop sees the flag at its next
/// test, finishes and gives the editor back.
void AbortProgram();

}  // namespace glidetrak
