# Sanitizers, the fuzzer and coverage, chosen by the presets.
set(KZM_SANITIZE "" CACHE STRING "Sanitizers for the whole build, such as address,undefined or thread")
option(KZM_FUZZ "Build the fuzz targets with clang's fuzzer" OFF)
option(KZM_COVERAGE "Count which lines the tests reach" OFF)

if(KZM_SANITIZE)
  add_compile_options(-fsanitize=${KZM_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KZM_SANITIZE})
  # With a sanitizer's checks in between, g++ takes the unused members of a variant for uninitialized ones.
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
if(KZM_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(KZM_COVERAGE)
  add_compile_options(--coverage -O0)
  add_link_options(--coverage)
endif()
