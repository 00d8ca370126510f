# How each of the libraries is made.

# kzm_library(NAME OBJECTS TARGET... [LIBRARIES ...] [PUBLIC_LIBRARIES ...] [VERSION_SCRIPT FILE] [C_HEADERS FOLDER]): a
# library of these object libraries, shared or static. LIBRARIES are those that its code calls and its headers do not
# show. With C_HEADERS its users need no C++: the headers in this folder are all that they see.
function(kzm_library name)
  cmake_parse_arguments(ARG "" "VERSION_SCRIPT;C_HEADERS" "OBJECTS;LIBRARIES;PUBLIC_LIBRARIES" ${ARGN})
  add_library(${name})
  add_library(KZMUtilities::${name} ALIAS ${name})
  foreach(objects ${ARG_OBJECTS})
    target_sources(${name} PRIVATE $<TARGET_OBJECTS:${objects}>)
  endforeach()
  target_link_libraries(${name} PUBLIC ${ARG_PUBLIC_LIBRARIES} PRIVATE ${ARG_LIBRARIES})
  set(headers ${PROJECT_SOURCE_DIR}/include)
  if(ARG_C_HEADERS)
    set(headers ${ARG_C_HEADERS})
  else()
    target_compile_features(${name} INTERFACE cxx_std_20)
  endif()
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${headers}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX INSTALL_RPATH "$ORIGIN"
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  if(BUILD_SHARED_LIBS)
    # Ending threads call into the libraries, so they stay loaded once they are (nodelete).
    target_link_options(${name} PRIVATE -Wl,-z,defs -Wl,-z,nodelete -Wl,--as-needed
      -Wl,--version-script=${ARG_VERSION_SCRIPT})
    set_target_properties(${name} PROPERTIES LINK_DEPENDS ${ARG_VERSION_SCRIPT})
  endif()
endfunction()

# kzm_module(NAME FILE OBJECTS TARGET... [LIBRARIES ...]): what a library loads when it is first needed, from the folder
# KZMUtilities beside it. The file has the version in its name, for a module fits only the library of its own version.
function(kzm_module name file)
  cmake_parse_arguments(ARG "" "" "OBJECTS;LIBRARIES" ${ARGN})
  add_library(${name} MODULE)
  foreach(objects ${ARG_OBJECTS})
    target_sources(${name} PRIVATE $<TARGET_OBJECTS:${objects}>)
  endforeach()
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES})
  target_link_options(${name} PRIVATE -Wl,-z,defs -Wl,-z,nodelete -Wl,--as-needed)
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX INSTALL_RPATH ""
    OUTPUT_NAME ${file} PREFIX "" SUFFIX ".so.${PROJECT_VERSION}"
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib/KZMUtilities)
endfunction()
