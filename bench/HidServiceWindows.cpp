// Windows lets no program be a HID device without a driver of its own.

#include <stdexcept>

#include "bench/RigService.h"

namespace glidetrak::bench {

void RigService::ServeOnHid() {
  throw std::runtime_error("a rig on a USB adapter is offered on Linux alone");
}

}  // namespace glidetrak::bench
