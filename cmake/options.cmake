# What is built beside the libraries. A project that embeds this one gets the libraries alone and none of its settings.
option(KZM_BUILD_PROGRAM "Build kzmutil" ${PROJECT_IS_TOP_LEVEL})
option(KZM_BUILD_C "Build the C library" ${PROJECT_IS_TOP_LEVEL})
option(KZM_BUILD_EXAMPLES "Build the examples" ${PROJECT_IS_TOP_LEVEL})
option(KZM_BUILD_BENCHMARKS "Build the benchmarks" ${PROJECT_IS_TOP_LEVEL})
option(KZM_BUILD_TESTS "Build the tests, and what they test" ${PROJECT_IS_TOP_LEVEL})
option(KZM_INSTALL "Install what is built" ${PROJECT_IS_TOP_LEVEL})
option(KZM_PRECOMPILED_HEADERS "Compile the headers that most sources include only once" OFF)
option(KZM_ALL_TESTS "Also build and run the tests that need other toolkits" ${PROJECT_IS_TOP_LEVEL})

if(DEFINED BUILD_TESTING AND NOT BUILD_TESTING)
  set(KZM_BUILD_TESTS OFF)
endif()
if(KZM_BUILD_TESTS)
  set(KZM_BUILD_PROGRAM ON)
endif()
if(KZM_BUILD_TESTS OR KZM_BUILD_BENCHMARKS)
  set(KZM_BUILD_C ON)
endif()

# Shared libraries unless somebody wants them otherwise; a variable of this folder only, not of the whole build.
if(NOT DEFINED BUILD_SHARED_LIBS)
  set(BUILD_SHARED_LIBS ON)
endif()

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  message(STATUS "No build type was chosen: building Release")
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release, RelWithDebInfo or MinSizeRel" FORCE)
endif()
