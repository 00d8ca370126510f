#include "localization/texts.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include <KZMUtilities/key.h>

namespace kzm::localization {
namespace {

// Room is cheaper here than a second comparison.
constexpr std::size_t kSlotsPerEntry = 4;

// Takes the first entry off a list in which a zero byte ends each.
std::string_view takeEntry(std::string_view& list) {
  const std::string_view entry = list.substr(0, list.find('\0'));
  list.remove_prefix(std::min(list.size(), entry.size() + 1));
  return entry;
}

// Keys of one family differ in their ends.
std::uint64_t hashOf(std::string_view key) noexcept {
  std::uint64_t end = 0;
  const std::size_t count = std::min(key.size(), sizeof end);
  if (count == sizeof end) {
    std::memcpy(&end, key.data() + key.size() - sizeof end, sizeof end);
  } else if (count > 0) {  // an empty key may be no text at all
    std::memcpy(&end, key.data(), count);
  }
  return (end ^ key.size()) * 0x9E3779B97F4A7C15U >> 32U;
}

}  // namespace

// The slot of the key, or the free one where it would be.
[[gnu::always_inline]] inline std::size_t Texts::slotOf(std::string_view key) const noexcept {
  const std::size_t mask = slots_.size() - 1;
  auto slot = static_cast<std::size_t>(hashOf(key)) & mask;
  while (slots_[slot] != 0 && !internal::sameText(entries_[slots_[slot] - 1U].key, key)) slot = (slot + 1) & mask;
  return slot;
}

void Texts::grow() {
  slots_.assign(std::max<std::size_t>(16, 2 * slots_.size()), 0);
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    slots_[slotOf(entries_[i].key)] = static_cast<std::uint16_t>(i + 1);
  }
}

void Texts::add(const StringTable& table) {
  std::string_view keys = table.keys;
  std::string_view texts = table.texts;
  while (!keys.empty() && entries_.size() < std::numeric_limits<std::uint16_t>::max()) {
    if (slots_.size() <= kSlotsPerEntry * entries_.size()) grow();
    const Entry entry{takeEntry(keys), takeEntry(texts)};
    std::uint16_t& slot = slots_[slotOf(entry.key)];
    if (slot != 0) continue;
    entries_.push_back(entry);
    slot = static_cast<std::uint16_t>(entries_.size());
  }
}

std::optional<std::string_view> Texts::find(std::string_view key) const noexcept {
  if (slots_.empty()) return std::nullopt;
  const std::uint16_t place = slots_[slotOf(key)];
  return place != 0 ? std::optional(entries_[place - 1U].text) : std::nullopt;
}

}  // namespace kzm::localization
