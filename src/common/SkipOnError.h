#pragma once

#include "platform/RuntimeError.h"

namespace glidetrak {

/// Runs one step; a step that raises an error is passed over.
template <class Step>
void SkipOnError(Step step) {
  try {
    step();
  } catch (const RuntimeError&) {
  }
}

}  // namespace glidetrak
