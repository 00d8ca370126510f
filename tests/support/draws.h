// Tests of what holds for all inputs, on many drawn ones.
#ifndef KZM_TESTS_SUPPORT_DRAWS_H
#define KZM_TESTS_SUPPORT_DRAWS_H

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "tests/support/input.h"
#include "tests/support/sweeps.h"

namespace kzm::tests {

/// Calls the body with inputs of random bytes, the same ones in each run, until one of them fails. The failure names
/// its seed, which gtest takes back as the first: --gtest_random_seed=SEED.
template <class Body>
void forDraws(int whole, int few, const Body& body) {
  const int first = GTEST_FLAG_GET(random_seed);
  const int end = first + inSweep(whole, few);
  for (int seed = first; seed < end && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("--gtest_random_seed=" + std::to_string(seed));
    std::mt19937_64 random(static_cast<std::uint64_t>(seed));
    std::array<std::uint8_t, 1024> bytes{};
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
    Input input(bytes.data(), bytes.size());
    body(input);
  }
}

}  // namespace kzm::tests

#endif
