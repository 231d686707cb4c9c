#pragma once

// The words in which a person at the bench speaks to the rig. A command is one line of words
// parted by blanks:
//
//   state                 tells everything, one value a line (below)
//   press BUTTON MS       BUTTON is START_BUTTON, CITY_CALL or AIRPORT_CALL; 1 to 60000 ms
//   light on|off          day or night
//   sound on|off|MS       a lasting noise, silence, or a noise of 1 to 60000 ms
//   unplug, plug          the lead between rig and adapter: without it the rig is silent
//   detach, attach        the adapter: without it the port has none
//   place MM              the vehicle at rest, 0 to 2000 mm from the city buffer
//   log                   tells the bytes that were written, one a line (RigRecord.h)
//
// The answer to state, as it reads at rest in the city station by day; the others answer nothing:
//
//   position 100 mm
//   speed 0 mm/s
//   power 0
//   direction backward
//   inputs LIGHT_SENSOR
//   analog 0
//   plugged yes
//   attached yes
//
// Several inputs are parted by blanks, bit 0 first; none are written "none".

#include <functional>
#include <string>

#include "bench/Rig.h"

namespace glidetrak::bench {

/// Carries a command out and gives its answer, whole lines.
using RigCommand = std::function<std::string(Rig&)>;

/// The command that the line holds; an empty function when it holds none.
RigCommand ParseRigCommand(const std::string& sLine);

/// One line for each command, for the help text.
std::string RigCommandHelp();

}  // namespace glidetrak::bench
