# The cross compiler: 32-bit, as the parallel adapter's library is a 32-bit one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)
set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)

list(APPEND CMAKE_FIND_ROOT_PATH /usr/i686-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# One file that needs nothing beside it, and the same bytes from each build. The stack is kept at 16
# bytes for the vector instructions of the toolkit, whoever calls: 32-bit Windows promises 4.
set(CMAKE_C_FLAGS_INIT "-mstackrealign")
set(CMAKE_CXX_FLAGS_INIT "-mstackrealign")
set(GLIDETRAK_LINK_FLAGS "-static -Wl,--no-insert-timestamp -Wl,--large-address-aware")
set(CMAKE_EXE_LINKER_FLAGS_INIT "${GLIDETRAK_LINK_FLAGS}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${GLIDETRAK_LINK_FLAGS}")
