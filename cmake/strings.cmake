# String tables: checked and written as one source at build time, so that editing a table rebuilds what shows it and a
# broken one stops the build with its file and line. When cross-compiling, the program runs under the toolchain's
# emulator, or KZM_COMPILE_STRINGS names one that this machine can run.
set(KZM_COMPILE_STRINGS "" CACHE FILEPATH "A kzm_compile_strings to use instead of the one that is built")
add_executable(kzm_compile_strings ${PROJECT_SOURCE_DIR}/tools/compile_strings.cc)
target_link_libraries(kzm_compile_strings PRIVATE kzm_warnings)
set_target_properties(kzm_compile_strings PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tools)

# Adds to `target` the source that tools/compile_strings writes from every <language>.lproj folder below this one.
function(kzm_compile_strings target development_language)
  file(GLOB tables CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.lproj/*.strings)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/strings.cc)
  set(compiler kzm_compile_strings)
  if(KZM_COMPILE_STRINGS)
    set(compiler ${KZM_COMPILE_STRINGS})
  endif()
  add_custom_command(OUTPUT ${output}
    COMMAND ${compiler} ${development_language} ${output} ${tables}
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
