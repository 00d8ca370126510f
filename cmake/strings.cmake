# String tables: checked and written as one source at build time, so that editing a table rebuilds what shows it and a
# broken one stops the build with its file and line. When cross-compiling, the program runs under the toolchain's
# emulator, or KZM_COMPILE_STRINGS names one that this machine can run.
set(KZM_COMPILE_STRINGS "" CACHE FILEPATH "A kzm_compile_strings to use instead of the one that is built")

# The tables and the rules that need no Unicode data: what runs during a build is made of this alone, and so needs no
# library of the machine that the build is for.
add_library(kzm_strings STATIC)
foreach(source allowed catalog cpp_source key note structure_rules table text_rules utf8 wording_rules)
  target_sources(kzm_strings PRIVATE ${PROJECT_SOURCE_DIR}/tools/strings/${source}.cc)
endforeach()
target_include_directories(kzm_strings PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(kzm_strings PRIVATE kzm_warnings)
kzm_precompile(kzm_strings kzm_common_headers)
kzm_compile_together(kzm_strings)

add_executable(kzm_compile_strings ${PROJECT_SOURCE_DIR}/tools/strings/compile_strings.cc)
target_link_libraries(kzm_compile_strings PRIVATE kzm_strings kzm_warnings)

# The translator's desk: all rules, and what else a translator needs. Built for who asks for it.
add_library(kzm_desk STATIC EXCLUDE_FROM_ALL)
foreach(source export import open_data po report unicode_rules)
  target_sources(kzm_desk PRIVATE ${PROJECT_SOURCE_DIR}/tools/strings/${source}.cc)
endforeach()
target_sources(kzm_desk PRIVATE ${PROJECT_SOURCE_DIR}/port/display_width.cc)
target_include_directories(kzm_desk PRIVATE ${PROJECT_SOURCE_DIR}/include)
target_link_libraries(kzm_desk PUBLIC kzm_strings ICU::uc ICU::i18n PRIVATE kzm_warnings)

add_executable(kzm_strings_desk EXCLUDE_FROM_ALL ${PROJECT_SOURCE_DIR}/tools/strings/desk.cc)
target_link_libraries(kzm_strings_desk PRIVATE kzm_desk kzm_warnings)

set_target_properties(kzm_compile_strings kzm_strings_desk PROPERTIES
  RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tools)

# Adds to `target` the source that kzm_compile_strings writes from every <language>.lproj folder below this one.
function(kzm_compile_strings target)
  file(GLOB tables CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.lproj/*.strings)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/strings.cc)
  set(compiler kzm_compile_strings)
  if(KZM_COMPILE_STRINGS)
    set(compiler ${KZM_COMPILE_STRINGS})
  endif()
  add_custom_command(OUTPUT ${output}
    COMMAND ${compiler} ${output} ${tables}
    DEPENDS ${compiler} ${tables}
    COMMENT "Checking and embedding the string tables"
    VERBATIM)
  # The target lives in another folder, which sees the file but not the rule that makes it.
  add_custom_target(${target}_strings DEPENDS ${output})
  add_dependencies(${target} ${target}_strings)
  target_sources(${target} PRIVATE ${output})
  set_source_files_properties(${output} TARGET_DIRECTORY ${target}
    PROPERTIES GENERATED ON SKIP_PRECOMPILE_HEADERS ON)
endfunction()
