# Windows builds (cross-built with MinGW-w64 by `make windows`).
enable_language(RC)

# The C++ runtime, libgcc and winpthreads are linked in: kova.dll and the
# executables need no DLL beyond the system's.
add_link_options(-static $<$<CONFIG:Release>:-s>)

# jsoncpp for Windows, built here from Debian's own source package, which
# `make windows` unpacks with tools/debian_source.sh.
set(KOVA_JSONCPP_SOURCE_DIR "" CACHE PATH "Unpacked Debian jsoncpp source package")
if(NOT EXISTS "${KOVA_JSONCPP_SOURCE_DIR}/include/json/json.h")
  message(FATAL_ERROR "KOVA_JSONCPP_SOURCE_DIR must name an unpacked jsoncpp source package "
                      "(`make windows` unpacks Debian's)")
endif()
file(GLOB KOVA_JSONCPP_SOURCES ${KOVA_JSONCPP_SOURCE_DIR}/src/lib_json/*.cpp)
add_library(kova_jsoncpp STATIC ${KOVA_JSONCPP_SOURCES})
target_include_directories(kova_jsoncpp SYSTEM PUBLIC ${KOVA_JSONCPP_SOURCE_DIR}/include)
# Not our code: its warnings are not ours to fix.
target_compile_options(kova_jsoncpp PRIVATE -w)
set(KOVA_JSONCPP kova_jsoncpp)

# ctest runs the Windows executables under Wine, in a prefix of the build's
# own, quietly.
find_program(KOVA_WINE wine)
if(CMAKE_CROSSCOMPILING AND KOVA_WINE AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_COMMAND} -E env WINEPREFIX=${PROJECT_BINARY_DIR}/wine
    WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= ${KOVA_WINE})
endif()
