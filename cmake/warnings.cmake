# The warnings that this project's own sources are held to. That a warning is an error is for the presets to say
# (CMAKE_COMPILE_WARNING_AS_ERROR), never for who builds our sources with another compiler.
add_library(kzm_warnings INTERFACE)

# kzm_warn(CONDITION FLAG...): the flags where the condition, a generator expression, holds.
function(kzm_warn condition)
  target_compile_options(kzm_warnings INTERFACE "$<${condition}:${ARGN}>")
endfunction()

set(gcc "$<CXX_COMPILER_ID:GNU>")
set(gcc14 "$<AND:${gcc},$<VERSION_LESS:$<CXX_COMPILER_VERSION>,15>>")

kzm_warn(1 -Wall -Wextra -Wpedantic)
kzm_warn(1 -Wconversion -Wsign-conversion)  # a number that changes on its way is a wrong reading
kzm_warn(1 -Wshadow)  # one name, one thing
kzm_warn(1 -Wold-style-cast -Wcast-qual)  # a cast says what it does
kzm_warn(1 -Wnon-virtual-dtor -Woverloaded-virtual)
kzm_warn(1 -Wformat=2)  # no format that is not a literal
kzm_warn(1 -Wundef)  # a macro that is asked for is there
kzm_warn(${gcc} -Wduplicated-cond -Wlogical-op)  # clang has neither name; its -Wall looks for the same
# g++ 12 to 14 see overlaps and overruns inside std::string where there are none.
kzm_warn(${gcc14} -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
