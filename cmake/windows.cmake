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

# The exports of kova.dll: the four entry points under their plain names and
# nothing else. 64-bit Windows has one calling convention and no decoration:
# kova.def names them. On 32-bit they are __stdcall, decorated with their
# argument bytes (_KOVA_ParseData@20): kova32.def names them so, the linker
# exports them with the decoration cut off, and kova.lib is made again by
# dlltool, because the one the linker writes would drop the decoration from
# the symbols a client's calls refer to as well.
function(kova_windows_exports target)
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/src/api/kova.def)
    return()
  endif()
  set(def ${PROJECT_SOURCE_DIR}/src/api/kova32.def)
  target_sources(${target} PRIVATE ${def})
  target_link_options(${target} PRIVATE -Wl,--kill-at)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_DLLTOOL} --input-def ${def} --dllname $<TARGET_FILE_NAME:${target}> --kill-at
            --output-lib $<TARGET_LINKER_FILE:${target}>
    VERBATIM)
endfunction()
