# Toolchain for 32-bit Windows (`make windows32`), where the entry points are
# __stdcall.
set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
