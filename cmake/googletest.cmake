# GoogleTest for a cross build, compiled here from the sources Debian's
# googletest package installs; gives the targets GTest::gtest and
# GTest::gtest_main that find_package(GTest) gives natively.
set(KOVA_GOOGLETEST_DIR /usr/src/googletest/googletest CACHE PATH "GoogleTest sources")
if(NOT EXISTS ${KOVA_GOOGLETEST_DIR}/src/gtest-all.cc)
  message(FATAL_ERROR "no GoogleTest sources in ${KOVA_GOOGLETEST_DIR} (Debian package googletest)")
endif()
add_library(kova_gtest STATIC ${KOVA_GOOGLETEST_DIR}/src/gtest-all.cc)
target_include_directories(kova_gtest SYSTEM PUBLIC ${KOVA_GOOGLETEST_DIR}/include
  PRIVATE ${KOVA_GOOGLETEST_DIR})
target_compile_options(kova_gtest PRIVATE -w)
add_library(kova_gtest_main STATIC ${KOVA_GOOGLETEST_DIR}/src/gtest_main.cc)
target_link_libraries(kova_gtest_main PUBLIC kova_gtest)
target_compile_options(kova_gtest_main PRIVATE -w)
add_library(GTest::gtest ALIAS kova_gtest)
add_library(GTest::gtest_main ALIAS kova_gtest_main)
