#include "platform/ThisSystem.h"

#include <utility>

#include "platform/HidapiHid.h"
#include "platform/linux/LinuxMachine.h"

namespace glidetrak {

/// Both live until the process is gone: the last deed of an end uses them.
void UseThisSystem(std::function<void()> activate) {
  auto* pThis = new LinuxMachine;
  pThis->SetActivation(std::move(activate));
  pMachine = pThis;
  pHid = new HidapiHid;
}

}  // namespace glidetrak
