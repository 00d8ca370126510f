// A call of everything that the catalogue lists: link sample_calls.cc into the test program.
#ifndef KZM_TESTS_SUPPORT_SAMPLE_CALLS_H
#define KZM_TESTS_SUPPORT_SAMPLE_CALLS_H

#include "catalogue/callables.h"

namespace kzm::tests {

/// Arguments that lead the call through all of its work: groups, digits, texts that a string has no room for.
[[nodiscard]] catalogue::Json sampleArguments(const catalogue::Callable& callable);

/// Whether two calls with the same arguments may differ, for time has gone by.
[[nodiscard]] bool readsTheClock(const catalogue::Callable& callable);

}  // namespace kzm::tests

#endif
