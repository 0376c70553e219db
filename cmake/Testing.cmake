find_package(GTest REQUIRED)
include(GoogleTest)

# zentrel_add_test(NAME KIND ARGS...): every test of the project goes through here.
#   unit     ARGS are the sources of a GoogleTest program over the core (zentrel_core)
#   ui       the same over the Qt view (zentrel_ui), on the offscreen platform
#   cli      the same over the command line's library, with zentrel-cli built for it
#   command  ARGS are a command run from the program folder (a script, a benchmark run)
# Test programs link the libraries, never their sources, and find tests/data through
# ZENTREL_TEST_DATA.
function(zentrel_add_test name kind)
  if(kind STREQUAL "command")
    add_test(NAME ${name} COMMAND ${ARGN} WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    return()
  endif()
  set(environment "ZENTREL_TEST_DATA=${PROJECT_SOURCE_DIR}/tests/data")
  if(kind STREQUAL "unit")
    set(library zentrel_core)
  elseif(kind STREQUAL "ui")
    set(library zentrel_ui)
    list(PREPEND environment "QT_QPA_PLATFORM=offscreen")
  elseif(kind STREQUAL "cli")
    set(library zentrel_cli_lib)
  else()
    message(FATAL_ERROR "zentrel_add_test(${name}): unknown kind ${kind}")
  endif()
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE ${library} zentrel_test_support GTest::gtest_main
                                        zentrel_warnings zentrel_sanitize)
  add_dependencies(${name} zentrel_resources)
  if(kind STREQUAL "cli")
    add_dependencies(${name} zentrel-cli)
  endif()
  gtest_discover_tests(${name} WORKING_DIRECTORY ${CMAKE_BINARY_DIR}/bin
                       PROPERTIES ENVIRONMENT "${environment}" DISCOVERY_TIMEOUT 60)
endfunction()
