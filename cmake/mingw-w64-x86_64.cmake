# 64-bit Windows, built on Linux: one file without dependencies beyond the system's own libraries.
set(CORVANE_WINDOWS_TRIPLET x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
