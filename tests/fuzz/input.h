// What each fuzz target has: bytes to take values off, and a way to say what must hold.
#ifndef KZM_TESTS_FUZZ_INPUT_H
#define KZM_TESTS_FUZZ_INPUT_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tests/support/input.h"

namespace kzm::fuzz {

using tests::Input;

/// Ends the process, as a sanitizer does, when what must hold does not.
inline void demand(bool holds, std::string_view what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %.*s\n", static_cast<int>(what.size()), what.data());
  std::abort();
}

}  // namespace kzm::fuzz

/// What the fuzzer calls for each input; 0 always.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

#endif
