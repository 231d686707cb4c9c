// The form of the rig that is a HID device, through uhid.

#include "bench/DeviceNode.h"
#include "bench/RigService.h"
#include "bench/UhidDevice.h"

namespace glidetrak::bench {

namespace {

/// The adapter of the rig is the device.
void FollowAdapter(LiveRig& rig, UhidDevice& device) {
  const bool bWanted = rig.With([](Rig& present) { return present.Attached(); });
  bWanted ? device.Plug() : device.Unplug();
}

}  // namespace

void RigService::ServeOnHid() {
  RigService service;
  UhidDevice device(service.Rig(), {.iUser = NodeUser()});
  device.Plug();
  service.Serve([&] { FollowAdapter(service.Rig(), device); });
}

}  // namespace glidetrak::bench
