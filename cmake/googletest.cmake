# GoogleTest as GTest::gtest. Debian has it built for the machine itself; for other targets it is built
# from the sources of Debian's package googletest.
if(NOT CMAKE_CROSSCOMPILING)
  find_package(GTest REQUIRED)
  return()
endif()

set(BRISAL_GOOGLETEST /usr/src/googletest CACHE PATH "Sources of GoogleTest, for cross builds")
if(NOT EXISTS ${BRISAL_GOOGLETEST}/CMakeLists.txt)
  message(FATAL_ERROR "The tests of a cross build need GoogleTest's sources: install the package "
    "googletest, set BRISAL_GOOGLETEST to their folder, or leave the tests out with -DBRISAL_TESTS=OFF")
endif()
set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
set(gtest_disable_pthreads ON)
add_subdirectory(${BRISAL_GOOGLETEST} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
if(NOT TARGET GTest::gtest)
  add_library(GTest::gtest ALIAS gtest)
endif()
