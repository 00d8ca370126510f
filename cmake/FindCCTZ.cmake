# The time-zone library cctz, which brings no CMake files of its own: the target CCTZ::cctz.
find_path(CCTZ_INCLUDE_DIR cctz/time_zone.h)
find_library(CCTZ_LIBRARY cctz)
mark_as_advanced(CCTZ_INCLUDE_DIR CCTZ_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(CCTZ REQUIRED_VARS CCTZ_LIBRARY CCTZ_INCLUDE_DIR)

if(CCTZ_FOUND AND NOT TARGET CCTZ::cctz)
  add_library(CCTZ::cctz UNKNOWN IMPORTED)
  set_target_properties(CCTZ::cctz PROPERTIES
    IMPORTED_LOCATION "${CCTZ_LIBRARY}" INTERFACE_INCLUDE_DIRECTORIES "${CCTZ_INCLUDE_DIR}")
endif()
