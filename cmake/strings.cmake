# String tables: checked and written as one source at build time, so that editing a table rebuilds what shows it and a
# broken one stops the build with its file and line.
add_executable(compile_strings ${PROJECT_SOURCE_DIR}/tools/compile_strings.cc)
target_link_libraries(compile_strings PRIVATE kzm_warnings)
set_target_properties(compile_strings PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tools)

# Adds to `target` the source that tools/compile_strings writes from every <language>.lproj folder below this one.
function(kzm_compile_strings target development_language)
  file(GLOB tables CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.lproj/*.strings)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/strings.cc)
  add_custom_command(OUTPUT ${output}
    COMMAND compile_strings ${development_language} ${output} ${tables}
    DEPENDS compile_strings ${tables}
    COMMENT "Checking and embedding the string tables"
    VERBATIM)
  # The target lives in another folder, which sees the file but not the rule that makes it.
  add_custom_target(${target}_strings DEPENDS ${output})
  add_dependencies(${target} ${target}_strings)
  target_sources(${target} PRIVATE ${output})
  set_source_files_properties(${output} TARGET_DIRECTORY ${target} PROPERTIES GENERATED ON)
endfunction()
