# What compilers are told so that numbers are the same to the last digit on every machine. It reaches the sources of
# this folder alone, not those of a project that embeds it.
include(CheckCXXSourceCompiles)

# A product and a sum are rounded one after the other, also by a processor that could do both at once.
add_compile_options(-ffp-contract=off)

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  # Times after 2038 and files beyond 2 GB.
  add_compile_definitions(_FILE_OFFSET_BITS=64 _TIME_BITS=64)
  # The older arithmetic of x86 keeps more digits than a double has.
  check_cxx_source_compiles("#ifndef __i386__\n#error another processor\n#endif\nint main() {}" KZM_IS_I386)
  if(KZM_IS_I386)
    add_compile_options(-msse2 -mfpmath=sse)
  endif()
endif()
