# Tests that not every run of the suite makes.

# kzm_more_tests(NAME REASON COMMAND...): a test that `./dev test` leaves out, for the reason given, and says so.
function(kzm_more_tests name reason)
  if(KZM_ALL_TESTS)
    add_test(NAME ${name} COMMAND ${ARGN} WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
    set_tests_properties(${name} PROPERTIES TIMEOUT 1200 ENVIRONMENT "CMAKE_GENERATOR=${CMAKE_GENERATOR}")
  else()
    add_test(NAME ${name} COMMAND sh -c "echo 'left out: ${reason}; ./dev test --all runs it'; exit 77")
    set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE 77)
  endif()
endfunction()
