#include "tools/strings/key.h"

#include <algorithm>
#include <iterator>

#include "port/ascii.h"

namespace kzm::strings {
namespace {

// What a text may say instead of the "%%" of its key.
constexpr std::string_view kPercentSigns[] = {
    "\u066A",  // Arabic
};

constexpr std::string_view kSpaces[] = {" ", kNoBreakSpace};

int countOf(std::string_view part, std::string_view text) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

}  // namespace

std::optional<Key> parseKey(std::string_view key) {
  const auto* prefix = std::ranges::find_if(kPrefixes, [&](std::string_view each) { return key.starts_with(each); });
  if (prefix == std::end(kPrefixes)) return std::nullopt;
  key.remove_prefix(prefix->size());
  const auto letters = static_cast<std::size_t>(std::ranges::find_if_not(key, port::isLetter) - key.begin());
  if (letters == 0 || letters + 1 >= key.size() || key[letters] != '.') return std::nullopt;
  return Key{key.substr(0, letters), key.substr(letters + 1)};
}

std::optional<Slots> slotsOf(std::string_view text) {
  Slots slots;
  for (const std::string_view sign : kPercentSigns) slots.percents += countOf(sign, text);
  for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 2)) {
    const std::string_view directive = text.substr(at, 2);
    if (directive != kNumber && directive != kPercent) return std::nullopt;
    ++(directive == kNumber ? slots.numbers : slots.percents);
  }
  return slots;
}

Parts partsOf(std::string_view text) {
  // The first "%@" of "%%%@" is not at the second sign: directives are two characters each.
  std::size_t at = text.find('%');
  while (at != std::string_view::npos && text.substr(at, 2) != kNumber) at = text.find('%', at + 2);
  if (at == std::string_view::npos) return {text, {}, false};
  return {text.substr(0, at), text.substr(at + kNumber.size()), true};
}

bool isSpaced(std::string_view text) {
  const Parts parts = partsOf(text);
  return parts.hasNumber && std::ranges::any_of(kSpaces, [&](std::string_view space) {
           return parts.before.ends_with(space) || parts.after.starts_with(space);
         });
}

std::string unitOf(std::string_view text) {
  Parts parts = partsOf(text);
  for (const std::string_view space : kSpaces) {
    if (!parts.hasNumber) break;
    if (parts.before.ends_with(space)) parts.before.remove_suffix(space.size());
    if (parts.after.starts_with(space)) parts.after.remove_prefix(space.size());
  }
  return std::string(parts.before) + std::string(parts.after);
}

}  // namespace kzm::strings
