#include "machine/memory.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::machine {
namespace {

struct Row {
  std::string_view name;
  std::optional<std::uint64_t> Memory::*member;
};

constexpr Row kRows[] = {
    {"MemTotal:", &Memory::total},
    {"MemAvailable:", &Memory::available},
    {"SwapTotal:", &Memory::swapTotal},
    {"SwapFree:", &Memory::swapFree},
};

constexpr std::uint64_t kKibibyte = 1024;

void readLine(std::string_view line, Memory& memory) {
  const std::vector<std::string_view> fields = fieldsOf(line);
  if (fields.size() < 2) return;
  const std::optional<std::uint64_t> size = countIn(fields[1]);
  if (!size || *size > std::numeric_limits<std::uint64_t>::max() / kKibibyte) return;
  for (const Row& row : kRows) {
    if (row.name == fields[0]) memory.*row.member = *size * kKibibyte;
  }
}

void limit(std::optional<std::uint64_t>& part, const std::optional<std::uint64_t>& whole) {
  if (part && whole) part = std::min(*part, *whole);
}

}  // namespace

Memory readMemory(const Root& root) {
  Memory memory;
  const std::string text = readText(root.at("proc/meminfo"));
  for (const std::string_view line : linesOf(text)) readLine(line, memory);
  limit(memory.available, memory.total);
  limit(memory.swapFree, memory.swapTotal);
  return memory;
}

}  // namespace kzm::machine
