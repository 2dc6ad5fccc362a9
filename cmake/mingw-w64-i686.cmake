# 32-bit Windows, built on Linux: the environment's own kind of process.
set(CORVANE_WINDOWS_TRIPLET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
