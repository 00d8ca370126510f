// Tests of very many cases: all of them in a run of all tests, a few in every other, so that it takes seconds.
#ifndef KZM_TESTS_SUPPORT_SWEEPS_H
#define KZM_TESTS_SUPPORT_SWEEPS_H

#include <cstdlib>

namespace kzm::tests {

/// Whether all tests are run: the build says so to the programs that it starts.
inline bool sweepsAreWhole() {
  return std::getenv("KZM_WHOLE_SWEEPS") != nullptr;  // NOLINT(concurrency-mt-unsafe): tests begin with one thread
}

template <class Number>
Number inSweep(Number whole, Number few) {
  return sweepsAreWhole() ? whole : few;
}

}  // namespace kzm::tests

#endif
