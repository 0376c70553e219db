find_package(GTest REQUIRED)
include(GoogleTest)

# A unit-test program: links the core and the test support, never the sources again.
function(zentrel_add_unit_test name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE zentrel_core zentrel_test_support GTest::gtest_main
                                        zentrel_warnings zentrel_sanitize)
  add_dependencies(${name} zentrel_resources)
  gtest_discover_tests(${name} WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin
                       PROPERTIES ENVIRONMENT "ZENTREL_TEST_DATA=${PROJECT_SOURCE_DIR}/tests/data"
                       DISCOVERY_TIMEOUT 60)
endfunction()

# A test of the Qt view: offscreen platform, no splash screen.
function(zentrel_add_ui_test name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE zentrel_ui zentrel_test_support GTest::gtest_main
                                        zentrel_warnings zentrel_sanitize)
  add_dependencies(${name} zentrel_resources)
  gtest_discover_tests(${name} WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin
                       PROPERTIES ENVIRONMENT
                       "QT_QPA_PLATFORM=offscreen;ZENTREL_TEST_DATA=${PROJECT_SOURCE_DIR}/tests/data"
                       DISCOVERY_TIMEOUT 60)
endfunction()

# A test of the command line: in process through the CLI entry function.
function(zentrel_add_cli_test name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE zentrel_cli_lib zentrel_test_support GTest::gtest_main
                                        zentrel_warnings zentrel_sanitize)
  add_dependencies(${name} zentrel_resources)
  gtest_discover_tests(${name} WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin
                       PROPERTIES ENVIRONMENT "ZENTREL_TEST_DATA=${PROJECT_SOURCE_DIR}/tests/data"
                       DISCOVERY_TIMEOUT 60)
endfunction()
