#include "bench/sweep.h"

#include <algorithm>
#include <limits>

namespace kzm::bench {

std::vector<double> leastTimes(const std::vector<Timed>& calls, int rounds) {
  std::vector<double> least(calls.size(), std::numeric_limits<double>::infinity());
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < calls.size(); ++i) {
      least[i] = std::min(least[i], timeOfOne(calls[i].pass, calls[i].values));
    }
  }
  return least;
}

}  // namespace kzm::bench
