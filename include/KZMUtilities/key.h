// The keys of a Dictionary, and the names of all options and results.
//
// A key never changes and may be read from any thread. It refers to its text, which the caller keeps.
// Like value.h, this header needs no library: all of its code is here.
#ifndef KZMUTILITIES_KEY_H
#define KZMUTILITIES_KEY_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace kzm {

namespace internal {

// What the library itself looks up: every option, and what results hold. Each name has a slot of its own in every
// Dictionary, so that its look-up compares nothing.
//
// The list and its order are part of the binary interface. A name that joins later has to share the other slots: it is
// then found where programs put it that were built before it joined.
// clang-format off
inline constexpr std::array<std::string_view, 25> kSlottedNames{
    "attributes-main", "attributes-units", "bandwidthformat", "decimals", "decimals-amperage", "decimals-frequency",
    "decimals-gb", "decimals-kb", "decimals-mb", "decimals-pb", "decimals-power", "decimals-tb", "decimals-voltage",
    "early-upgrade", "format", "hide-bytes", "off", "reverse", "reverse-type", "short", "space", "strip", "units",
    "unitsize", "value",
};
// clang-format on

// FNV-1a, folded so that its low bits depend on all of them.
constexpr std::uint32_t hashOf(std::string_view text) noexcept {
  std::uint32_t hash = 2166136261U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  return hash ^ (hash >> 16U);
}

// Texts of 4 to 32 bytes, as keys are, are compared by words that overlap: a call of memcmp would be most of a look-up.
template <class Word>
[[nodiscard]] inline bool sameEnds(const char* a, const char* b, std::size_t size) noexcept {
  Word words[4];
  std::memcpy(&words[0], a, sizeof(Word));
  std::memcpy(&words[1], b, sizeof(Word));
  std::memcpy(&words[2], a + size - sizeof(Word), sizeof(Word));
  std::memcpy(&words[3], b + size - sizeof(Word), sizeof(Word));
  return words[0] == words[1] && words[2] == words[3];
}
[[nodiscard]] inline bool sameText(std::string_view a, std::string_view b) noexcept {
  constexpr std::size_t kHalf = 16;
  const std::size_t size = a.size();
  if (size != b.size()) return false;
  if (size < sizeof(std::uint32_t) || size > 2 * kHalf) return a == b;
  if (size < sizeof(std::uint64_t)) return sameEnds<std::uint32_t>(a.data(), b.data(), size);
  if (size <= kHalf) return sameEnds<std::uint64_t>(a.data(), b.data(), size);
  return sameEnds<std::uint64_t>(a.data(), b.data(), kHalf) &&
         sameEnds<std::uint64_t>(a.data() + size - kHalf, b.data() + size - kHalf, kHalf);
}

// Seven bits that no two of the names share.
constexpr std::size_t kSignatures = 128;
constexpr std::size_t signatureOf(std::uint32_t hash) noexcept { return (hash >> 13U) % kSignatures; }

// The slot of the name with each signature.
inline constexpr std::array<std::uint8_t, kSignatures> kSlotOfSignature = [] {
  constexpr std::uint8_t kNone = kSlottedNames.size();
  std::array<std::uint8_t, kSignatures> places{};
  places.fill(kNone);
  for (std::size_t i = 0; i < kSlottedNames.size(); ++i) {
    std::uint8_t& slot = places[signatureOf(hashOf(kSlottedNames[i]))];
    if (slot != kNone) throw "two names have one signature";
    slot = static_cast<std::uint8_t>(i);
  }
  return places;
}();

}  // namespace internal

/// A dictionary key with its hash and its slot. Made from a literal in a constant, they cost nothing at run time.
class Key {
 public:
  constexpr Key(std::string_view text) noexcept
      : text_(text), hash_(internal::hashOf(text)), slot_(slotOf(text, hash_)) {}
  constexpr Key(const char* text) noexcept : Key(std::string_view(text)) {}
  Key(const std::string& text) noexcept : Key(std::string_view(text)) {}

  [[nodiscard]] constexpr std::string_view text() const noexcept { return text_; }
  [[nodiscard]] constexpr std::uint32_t hash() const noexcept { return hash_; }

  /// How many slots a Dictionary has: first those of one name each, then those that all other keys share.
  static constexpr std::size_t kSlots = 64;
  [[nodiscard]] constexpr std::uint8_t slot() const noexcept { return slot_; }
  /// Whether no other key has this key's slot.
  [[nodiscard]] constexpr bool isAloneInSlot() const noexcept { return slot_ < kNames; }

 private:
  static constexpr std::size_t kNames = internal::kSlottedNames.size();

  static constexpr std::uint8_t slotOf(std::string_view text, std::uint32_t hash) noexcept {
    const std::uint8_t name = internal::kSlotOfSignature[internal::signatureOf(hash)];
    if (name < kNames && internal::kSlottedNames[name] == text) return name;
    return static_cast<std::uint8_t>(kNames + hash % (kSlots - kNames));
  }

  std::string_view text_;
  std::uint32_t hash_;
  std::uint8_t slot_;
};

}  // namespace kzm

#endif
