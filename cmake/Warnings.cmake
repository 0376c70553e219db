# Warnings for every target of ours; -Werror where the build asks for it (CI does).
option(ZENTREL_WERROR "Treat warnings as errors" OFF)

add_library(zentrel_warnings INTERFACE)
target_compile_options(zentrel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow
                                                  -Wnon-virtual-dtor -Wconversion -Wno-sign-conversion)
if(ZENTREL_WERROR)
  target_compile_options(zentrel_warnings INTERFACE -Werror)
endif()

add_library(zentrel_sanitize INTERFACE)
if(ZENTREL_WITH_FUZZ)
  target_compile_options(
    zentrel_sanitize INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer
    -fsanitize-coverage-ignorelist=${CMAKE_SOURCE_DIR}/tests/fuzz/coverage_ignore.txt)
  target_link_options(zentrel_sanitize INTERFACE -fsanitize=address,undefined)
elseif(ZENTREL_SANITIZE)
  target_compile_options(zentrel_sanitize INTERFACE -fsanitize=address,undefined
                                                    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zentrel_sanitize INTERFACE -fsanitize=address,undefined)
endif()
