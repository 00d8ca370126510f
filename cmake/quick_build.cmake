# What makes a build quick: headers that many sources include are compiled once, and small sources several at a time.

# kzm_precompiled_headers(NAME HEADER... [LIBRARIES ...]): a set of them, and the libraries that they belong to.
function(kzm_precompiled_headers name)
  cmake_parse_arguments(ARG "" "" "LIBRARIES" ${ARGN})
  if(KZM_PRECOMPILED_HEADERS)
    set(source ${PROJECT_BINARY_DIR}/${name}.cc)
    file(CONFIGURE OUTPUT ${source} CONTENT "// Nothing but the headers.\n")
    add_library(${name} OBJECT ${source})
    target_compile_options(${name} PRIVATE -pthread)
    target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} kzm_warnings)
    target_precompile_headers(${name} PRIVATE ${ARG_UNPARSED_ARGUMENTS})
  endif()
endfunction()

# kzm_precompile(TARGET NAME): the target's sources use that set.
function(kzm_precompile target name)
  if(KZM_PRECOMPILED_HEADERS)
    target_compile_options(${target} PRIVATE -pthread)  # as some of the libraries ask for: one set suits all targets
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()

# kzm_compile_together(TARGET...): several sources of a target at a time. For what is not edited and measured all day:
# each is still compiled by itself in the builds that check the sources. Static libraries are left out: two of them have
# a source in common, and a program can only take that from one of them while it is an object of its own.
function(kzm_compile_together)
  if(KZM_COMPILE_TOGETHER AND BUILD_SHARED_LIBS)
    set_target_properties(${ARGN} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 6)
  endif()
endfunction()

# kzm_compile_folders_together(TARGET FOLDER...): the sources that a target has in each of these folders.
function(kzm_compile_folders_together target)
  if(KZM_COMPILE_TOGETHER AND BUILD_SHARED_LIBS)
    get_target_property(sources ${target} SOURCES)
    foreach(folder ${ARGN})
      set(together ${sources})
      list(FILTER together INCLUDE REGEX "/${folder}/[^/]*[.]cc$")
      set_source_files_properties(${together} PROPERTIES UNITY_GROUP ${folder})
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  endif()
endfunction()

set(common <algorithm> <functional> <iostream> <map> <memory> <optional> <span> <string> <string_view> <vector>)
kzm_precompiled_headers(kzm_common_headers ${common})
kzm_precompiled_headers(kzm_json_headers ${common} <nlohmann/json.hpp>)
