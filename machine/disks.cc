#include "machine/disks.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "port/ascii.h"

namespace kzm::machine {
namespace {

constexpr std::uint64_t kSector = 512;  // bytes, whatever the disk's own block size

// Made of memory, files or other disks.
constexpr std::string_view kPassedOver[] = {"loop", "ram", "zram", "dm-", "md"};

// Of the numbers after the name, the sectors read and the sectors written.
constexpr std::size_t kRead = 2;
constexpr std::size_t kWritten = 6;

bool isDisk(std::string_view name) {
  return std::ranges::none_of(kPassedOver, [name](std::string_view prefix) { return name.starts_with(prefix); });
}

// "sda1" of "sda", "nvme0n1p1" of "nvme0n1".
bool isPartitionOf(std::string_view name, std::string_view disk) {
  if (disk.empty() || !name.starts_with(disk)) return false;
  std::string_view number = name.substr(disk.size());
  if (port::isDigit(disk.back())) {
    if (!number.starts_with('p')) return false;
    number.remove_prefix(1);
  }
  return !number.empty() && std::ranges::all_of(number, port::isDigit);
}

std::optional<std::uint64_t> bytesIn(std::string_view sectors) {
  const std::optional<std::uint64_t> count = countIn(sectors);
  if (!count || *count > std::numeric_limits<std::uint64_t>::max() / kSector) return std::nullopt;
  return *count * kSector;
}

void add(Sample& sample, std::string_view name, const std::vector<std::string_view>& fields, std::size_t first) {
  if (!isDisk(name) || fields.size() <= first + kWritten) return;
  const std::optional<std::uint64_t> read = bytesIn(fields[first + kRead]);
  const std::optional<std::uint64_t> written = bytesIn(fields[first + kWritten]);
  if (read && written) sample.counters.push_back({shownText(name), *read, *written});
}

// Drives without a medium and unused network disks have no sectors.
bool hasMedium(const std::string& disk) { return readNumber(disk + "/size").value_or(1) > 0; }

// Here a line for each disk and each partition: two numbers and the name are before the counters.
void addFromTable(Sample& sample, const std::string& text) {
  const std::vector<std::string_view> lines = linesOf(text);
  std::vector<std::string_view> names;
  for (const std::string_view line : lines) {
    const std::vector<std::string_view> fields = fieldsOf(line);
    if (fields.size() > 3) names.push_back(fields[2]);
  }
  for (const std::string_view line : lines) {
    const std::vector<std::string_view> fields = fieldsOf(line);
    if (fields.size() <= 3) continue;
    const bool isPart =
        std::ranges::any_of(names, [&](std::string_view disk) { return isPartitionOf(fields[2], disk); });
    if (!isPart) add(sample, fields[2], fields, 3);
  }
}

}  // namespace

Sample readDisks(const Root& root, double seconds) {
  Sample sample{seconds, {}};
  const std::vector<std::string> names = namesIn(root.at("sys/block"));
  for (const std::string& name : names) {
    const std::string disk = root.at("sys/block/" + name);
    const std::string text = readText(disk + "/stat");
    if (hasMedium(disk)) add(sample, name, fieldsOf(text), 0);
  }
  if (names.empty()) addFromTable(sample, readText(root.at("proc/diskstats")));
  return sample;
}

}  // namespace kzm::machine
