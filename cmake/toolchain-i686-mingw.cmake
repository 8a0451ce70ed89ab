# 32-bit Windows, the primary target.
set(ZO_MINGW_TRIPLE i686-w64-mingw32)
set(CMAKE_SYSTEM_PROCESSOR x86)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw-common.cmake)
