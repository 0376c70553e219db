# Warnings for every target of ours; -Werror where the build asks for it (CI does).
option(ZENTREL_WERROR "Treat warnings as errors" OFF)

add_library(zentrel_warnings INTERFACE)
target_compile_options(zentrel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow
                                                  -Wnon-virtual-dtor -Wconversion -Wno-sign-conversion)
if(ZENTREL_WERROR)
  target_compile_options(zentrel_warnings INTERFACE -Werror)
endif()

add_library(zentrel_sanitize INTERFACE)
if(ZENTREL_SANITIZE)
  target_compile_options(zentrel_sanitize INTERFACE -fsanitize=address,undefined
                                                    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zentrel_sanitize INTERFACE -fsanitize=address,undefined)
endif()
if(ZENTREL_WITH_FUZZ)
  # Coverage probes for libFuzzer; the standard library's templates get none (they say
  # nothing about our code and cost a third of each run).
  target_compile_options(
    zentrel_sanitize INTERFACE -fsanitize=fuzzer-no-link
    -fsanitize-coverage-ignorelist=${CMAKE_SOURCE_DIR}/tests/fuzz/coverage_ignore.txt)
  # Programs other than the fuzz targets still need the probes' runtime.
  target_link_options(zentrel_sanitize INTERFACE -fsanitize=fuzzer-no-link)
endif()
