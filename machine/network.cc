#include "machine/network.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::machine {
namespace {

// After the name and its colon: eight numbers of what was received, then eight of what was sent; bytes come first.
constexpr std::size_t kReceived = 0;
constexpr std::size_t kSent = 8;

std::optional<Counter> counterIn(std::string_view line) {
  const std::size_t colon = line.rfind(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const std::vector<std::string_view> fields = fieldsOf(line.substr(colon + 1));
  if (fields.size() <= kSent) return std::nullopt;
  const std::optional<std::uint64_t> received = countIn(fields[kReceived]);
  const std::optional<std::uint64_t> sent = countIn(fields[kSent]);
  std::string name = shownText(line.substr(0, colon));
  if (!received || !sent || name.empty()) return std::nullopt;
  return Counter{name, *received, *sent};
}

}  // namespace

Sample readNetwork(const Root& root, double seconds) {
  Sample sample{seconds, {}};
  const std::string text = readText(root.at("proc/net/dev"));
  for (const std::string_view line : linesOf(text)) {
    if (const std::optional<Counter> counter = counterIn(line)) sample.counters.push_back(*counter);
  }
  return sample;
}

}  // namespace kzm::machine
