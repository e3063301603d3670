# `cmake --install`: the shared library, the public headers, the kova tool,
# the CMake package (find_package(kova CONFIG) gives kova::kova) and the
# pkg-config file; `make package` wraps the same files into a .deb.
include(CMakePackageConfigHelpers)

install(TARGETS kova_shared EXPORT kovaTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS kova_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/kova DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(KOVA_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/kova)
install(EXPORT kovaTargets NAMESPACE kova:: DESTINATION ${KOVA_CMAKE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kovaConfig.cmake.in
  ${PROJECT_BINARY_DIR}/kovaConfig.cmake INSTALL_DESTINATION ${KOVA_CMAKE_DIR})
# The SONAME changes with the major version only, so any 1.x satisfies a
# request for 1.y with y <= x.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kovaConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kovaConfig.cmake ${PROJECT_BINARY_DIR}/kovaConfigVersion.cmake
  DESTINATION ${KOVA_CMAKE_DIR})

# The pkg-config file names the prefix it is installed into, which is known
# only at install time (`--prefix`, or /usr when CPack installs for the .deb).
set(KOVA_PREFIX @KOVA_PREFIX@)  # left for install time
configure_file(${PROJECT_SOURCE_DIR}/cmake/kova.pc.in ${PROJECT_BINARY_DIR}/kova.pc.in @ONLY)
install(CODE "
  file(READ \"${PROJECT_BINARY_DIR}/kova.pc.in\" pc)
  string(REPLACE \"@KOVA_PREFIX@\" \"\${CMAKE_INSTALL_PREFIX}\" pc \"\${pc}\")
  file(WRITE \"${PROJECT_BINARY_DIR}/pkgconfig/kova.pc\" \"\${pc}\")
  file(INSTALL \"${PROJECT_BINARY_DIR}/pkgconfig/kova.pc\"
       DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig\")")

# CPack: one .deb with everything above. The runtime dependencies (the C and
# C++ runtimes, jsoncpp) are read off the binaries by dpkg-shlibdeps; the
# package's shlibs file and ldconfig trigger are generated.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kova)
set(CPACK_PACKAGE_VENDOR "kova")
set(CPACK_PACKAGE_CONTACT "kova developers <kova@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
  "translates surveillance devices' JSON configuration to fixed-layout records and back")
set(CPACK_PACKAGE_DESCRIPTION
  "The kova shared library (four exported C functions), its public headers, the kova \
command-line tool, a CMake package (kova::kova) and a pkg-config file.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_STRIP_FILES ON)
include(CPack)
