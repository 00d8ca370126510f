# Every target of this project is compiled with these; a warning is an error.
add_library(kzm_warnings INTERFACE)
target_compile_options(kzm_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wcast-qual
  -Wnon-virtual-dtor -Woverloaded-virtual -Wduplicated-cond -Wlogical-op -Wformat=2 -Wundef -Werror
  -Wno-restrict)  # g++ 12 sees overlaps in std::string assignments where there are none
