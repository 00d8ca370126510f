# Draws the panel at two scales and checks the sizes of the pictures: PANEL, LOCALE and FILE say what is run.
set(points_wide 588)

# The picture's sides in pixels, from the header of the file, which must be a PNG.
function(measure width height)
  file(READ ${FILE} header LIMIT 24 HEX)
  if(NOT header MATCHES "^89504e470d0a1a0a0000000d49484452(........)(........)$")
    message(FATAL_ERROR "${FILE} is no PNG")
  endif()
  math(EXPR wide "0x${CMAKE_MATCH_1}")
  math(EXPR high "0x${CMAKE_MATCH_2}")
  set(${width} ${wide} PARENT_SCOPE)
  set(${height} ${high} PARENT_SCOPE)
endfunction()

foreach(scale 1 2)
  file(REMOVE ${FILE})
  execute_process(COMMAND ${PANEL} --locale ${LOCALE} --output ${FILE} --scale ${scale}
    RESULT_VARIABLE result OUTPUT_VARIABLE output)
  if(NOT result EQUAL 0 OR NOT output STREQUAL "wrote ${FILE}\n")
    message(FATAL_ERROR "exit code ${result}, output: ${output}")
  endif()
  measure(width height)
  # What the card is high without rows, less the gap below the last one; then 72 points for each line of rows.
  math(EXPR expected_width "${points_wide} * ${scale}")
  math(EXPR remainder "(${height} - 102 * ${scale}) % (72 * ${scale})")
  if(NOT width EQUAL expected_width OR NOT remainder EQUAL 0 OR height LESS 102)
    message(FATAL_ERROR "${width} x ${height} pixels at scale ${scale}")
  endif()
endforeach()
