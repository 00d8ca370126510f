// From counters that only grow to bytes per second: network and disk activity alike.
#ifndef KZM_MACHINE_RATES_H
#define KZM_MACHINE_RATES_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kzm::machine {

/// What went in (received, read) and out (sent, written) since the machine started, in bytes.
struct Counter {
  std::string name;
  std::uint64_t in = 0;
  std::uint64_t out = 0;
};

/// Counters at one moment, in seconds of a clock that never goes back.
struct Sample {
  double seconds = 0;
  std::vector<Counter> counters;
};

/// Bytes per second, finite and not negative; nothing where two counters do not show it.
struct Rate {
  std::string name;
  std::optional<double> in;
  std::optional<double> out;
};

/// A rate for each counter of the later sample, in its order. There is none for a counter that the earlier sample
/// has not, when no time has passed, and when a counter was reset.
[[nodiscard]] std::vector<Rate> ratesBetween(const Sample& earlier, const Sample& later);

/// Now, for a Sample.
[[nodiscard]] double secondsNow();

}  // namespace kzm::machine

#endif
