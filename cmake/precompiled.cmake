# Headers that many sources include, compiled once for all of them.

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

set(common <algorithm> <functional> <iostream> <map> <memory> <optional> <span> <string> <string_view> <vector>)
kzm_precompiled_headers(kzm_common_headers ${common})
kzm_precompiled_headers(kzm_json_headers ${common} <nlohmann/json.hpp>)
