#include "hardware/AdapterLayer.h"

#include "common/SharedState.h"
#include "hardware/Declares.h"

namespace glidetrak {

void WriteOutputPort() {
  WriteAdapter(lPortAddress, lOutputImage);
}

}  // namespace glidetrak
