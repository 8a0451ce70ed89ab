# Cross-compiling for Windows with MinGW-w64; the per-architecture toolchain files set
# ZO_MINGW_TRIPLE and CMAKE_SYSTEM_PROCESSOR, then include this. The posix-threads variant
# of the compilers is named explicitly: the win32 one lacks std::thread and std::mutex.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER   ${ZO_MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZO_MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER  ${ZO_MINGW_TRIPLE}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${ZO_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/wine-run)
