#pragma once

// The system's own declarations, without the names of the station's that they would replace.

#include <windows.h>

#undef DeleteFile
#undef GetCommandLine
