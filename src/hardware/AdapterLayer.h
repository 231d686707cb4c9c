#pragma once

// The adapter layer: the rooms above see the rig only through what stands here.

#include <QtGlobal>

namespace glidetrak {

/// I/O address of the parallel port in use; 0 until one is found.
inline qint32 lPortAddress = 0;

/// Sends lOutputImage as it stands over the active link. Tells its caller nothing.
void WriteOutputPort();

}  // namespace glidetrak
