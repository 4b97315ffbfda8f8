include(GoogleTest)
find_package(PNG REQUIRED)

add_executable(host_test host_test.cc)
target_include_directories(host_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(host_test PRIVATE brisal_host brisal PNG::PNG GTest::gtest_main)
brisal_warnings(host_test)
gtest_discover_tests(host_test PROPERTIES TIMEOUT 120)

foreach(test tool_test animate_test font_tool_test)
  add_executable(${test} ${test}.cc)
  target_include_directories(${test} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${test} PRIVATE brisal_host brisal GTest::gtest_main)
  target_compile_definitions(${test} PRIVATE
    BRISAL_TOOL="$<TARGET_FILE:brisal_tool>"
    BRISAL_HEADER="${PROJECT_SOURCE_DIR}/include/brisal/brisal.h"
    BRISAL_GALLERY_HASH="${gallery_hash}")
  add_dependencies(${test} brisal_tool)
  brisal_warnings(${test})
  gtest_discover_tests(${test} PROPERTIES TIMEOUT 120)
endforeach()
if(TARGET SDL2::SDL2)
  target_compile_definitions(animate_test PRIVATE BRISAL_HAS_WINDOW=1)
endif()
