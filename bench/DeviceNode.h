#pragma once

// The node in /dev of a HID device that was made here. The kernel makes it root's alone, and the
// rule for the rig's own adapter (packaging/60-glidetrak.rules) is at work only where the station
// is installed. So that the station need not run as root, the node is given to the user who stands
// behind root: who called sudo.

#include <string>

namespace glidetrak::bench {

/// The user's number: that of who called sudo for this process, else this process's own.
int NodeUser();

/// Makes the node of the device of that unique name the user's own, mode 0660: the group's part is
/// what a rule of the system may grant the user at the screen. False while there is no such node.
bool GiveNode(const std::string& sUnique, int iUser);

}  // namespace glidetrak::bench
