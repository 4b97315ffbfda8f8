include(GoogleTest)
find_package(PNG REQUIRED)

add_executable(host_test host_test.cc)
target_include_directories(host_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(host_test PRIVATE brisal_host brisal PNG::PNG GTest::gtest_main)
brisal_warnings(host_test)
gtest_discover_tests(host_test PROPERTIES TIMEOUT 60)

add_executable(tool_test tool_test.cc)
target_include_directories(tool_test PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(tool_test PRIVATE brisal_host brisal GTest::gtest_main)
target_compile_definitions(tool_test PRIVATE
  BRISAL_TOOL="$<TARGET_FILE:brisal_tool>"
  BRISAL_HEADER="${PROJECT_SOURCE_DIR}/include/brisal/brisal.h")
add_dependencies(tool_test brisal_tool)
brisal_warnings(tool_test)
gtest_discover_tests(tool_test PROPERTIES TIMEOUT 60)
