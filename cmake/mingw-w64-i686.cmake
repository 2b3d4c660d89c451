# Cross-building for 32-bit Windows (x86) with Debian's MinGW-w64 (posix threads): the hosts
# that still run as 32-bit processes load a 32-bit kiv_skin.dll.
set(CMAKE_SYSTEM_PROCESSOR x86)
set(triple i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-common.cmake)
