// The string-keyed dictionary of Values: options come in and results go out as one.
//
// Like value.h, this header stands on its own: there is no library code behind it.
#ifndef KZMUTILITIES_DICTIONARY_H
#define KZMUTILITIES_DICTIONARY_H

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <KZMUtilities/value.h>

namespace kzm {

/// A dictionary key with its hash. Made from a literal in a constant, the hash costs nothing at run time.
class Key {
 public:
  constexpr Key(std::string_view text) noexcept : text_(text), hash_(hashOf(text)) {}
  constexpr Key(const char* text) noexcept : Key(std::string_view(text)) {}
  Key(const std::string& text) noexcept : Key(std::string_view(text)) {}

  [[nodiscard]] constexpr std::string_view text() const noexcept { return text_; }
  [[nodiscard]] constexpr std::uint32_t hash() const noexcept { return hash_; }

 private:
  // FNV-1a, folded so that the low six bits, which choose Dictionary's slot, depend on all of them.
  static constexpr std::uint32_t hashOf(std::string_view text) noexcept {
    std::uint32_t hash = 2166136261U;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return hash ^ (hash >> 16U);
  }

  std::string_view text_;
  std::uint32_t hash_;
};

/// A string-keyed dictionary of Values: flat, in the order in which keys were first set.
///
/// It is made for reading a handful of options many times. One of 64 slots, chosen by the key's hash, says where to
/// look: a free slot means that the key is absent, and the entry that a taken slot names is nearly always the one asked
/// for. Dictionaries of more than a few entries keep an index beside.
class Dictionary {
 public:
  struct Entry {
    std::string key;
    Value value;
    std::uint32_t hash = 0;
  };
  struct Member {
    std::string key;
    Value value;
  };

  Dictionary() noexcept = default;
  Dictionary(std::initializer_list<Member> members) {
    entries_.reserve(members.size());
    for (const Member& member : members) set(member.key, member.value);
  }

  /// The Value under the key, or null. A key is present also when its Value is null.
  [[nodiscard, gnu::always_inline]] const Value* find(const Key& key) const noexcept {
    const std::size_t slot = slots_[key.hash() % kSlots];
    if (slot == kFree) return nullptr;
    if (slot < kBeyond && isAt(slot - 1, key)) [[likely]]
      return &entries_[slot - 1].value;
    const std::size_t position = positionOf(key);
    return position < entries_.size() ? &entries_[position].value : nullptr;
  }

  [[nodiscard]] bool contains(const Key& key) const noexcept { return find(key) != nullptr; }

  /// Puts the Value under the key, in the place of the former one if there was one.
  void set(const Key& key, Value value) {
    const std::size_t position = contains(key) ? positionOf(key) : entries_.size();
    if (position < entries_.size()) {
      entries_[position].value = std::move(value);
      return;
    }
    entries_.push_back({std::string(key.text()), std::move(value), key.hash()});
    enter(entries_.size() - 1);
  }

  /// Removes the key; an absent key changes nothing.
  void remove(const Key& key) {
    const std::size_t position = positionOf(key);
    if (position >= entries_.size()) return;
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position));
    slots_.fill(kFree);
    index_.clear();
    for (std::size_t i = 0; i < entries_.size(); ++i) enter(i);
  }

  [[nodiscard]] std::size_t size() const noexcept { return entries_.size(); }
  [[nodiscard]] bool empty() const noexcept { return entries_.empty(); }
  [[nodiscard]] auto begin() const noexcept { return entries_.begin(); }
  [[nodiscard]] auto end() const noexcept { return entries_.end(); }

  /// Equal keys with equal Values, in any order.
  [[nodiscard]] friend bool operator==(const Dictionary& a, const Dictionary& b) {
    return a.size() == b.size() && std::all_of(a.begin(), a.end(), [&b](const Entry& entry) {
             const Value* other = b.find(entry.key);
             return other != nullptr && *other == entry.value;
           });
  }

 private:
  static constexpr std::size_t kSlots = 64;
  static constexpr std::uint8_t kFree = 0;
  static constexpr std::uint8_t kBeyond = 255;  // a slot whose entry stands too far behind for a byte
  static constexpr std::size_t kScanned = 16;   // up to so many entries a scan is faster than the index

  // Equal texts of up to 16 bytes are told by two overlapping words: calling memcmp would be most of a look-up.
  template <class Word>
  [[nodiscard]] static bool sameWords(const char* a, const char* b, std::size_t size) noexcept {
    Word words[4];
    std::memcpy(&words[0], a, sizeof(Word));
    std::memcpy(&words[1], b, sizeof(Word));
    std::memcpy(&words[2], a + size - sizeof(Word), sizeof(Word));
    std::memcpy(&words[3], b + size - sizeof(Word), sizeof(Word));
    return words[0] == words[1] && words[2] == words[3];
  }
  [[nodiscard]] static bool sameText(std::string_view a, std::string_view b) noexcept {
    if (a.size() != b.size()) return false;
    if (a.size() > 16 || a.size() < 4) return a == b;
    return a.size() >= 8 ? sameWords<std::uint64_t>(a.data(), b.data(), a.size())
                         : sameWords<std::uint32_t>(a.data(), b.data(), a.size());
  }

  [[nodiscard]] bool isAt(std::size_t position, const Key& key) const noexcept {
    const Entry& entry = entries_[position];
    return entry.hash == key.hash() && sameText(entry.key, key.text());
  }

  [[nodiscard, gnu::noinline]] std::size_t positionOf(const Key& key) const noexcept {
    if (entries_.size() > kScanned) return positionFromIndex(key);
    std::size_t position = 0;
    while (position < entries_.size() && !isAt(position, key)) ++position;
    return position;
  }

  // The index is an open-addressing table of positions plus one; 0 is a free slot.
  [[nodiscard]] std::size_t positionFromIndex(const Key& key) const noexcept {
    const std::size_t mask = index_.size() - 1;
    for (std::size_t slot = key.hash() & mask; index_[slot] != 0; slot = (slot + 1) & mask) {
      if (isAt(index_[slot] - 1, key)) return index_[slot] - 1;
    }
    return entries_.size();
  }

  // Makes the entry findable. The first entry of a slot keeps it; the others are searched for.
  void enter(std::size_t position) {
    std::uint8_t& slot = slots_[entries_[position].hash % kSlots];
    if (slot == kFree) slot = static_cast<std::uint8_t>(std::min<std::size_t>(position + 1, kBeyond));
    if (entries_.size() <= kScanned) return;
    if (index_.size() < 2 * entries_.size()) {
      index_.assign(std::bit_ceil(4 * entries_.size()), 0);
      for (std::size_t i = 0; i < position; ++i) enterInIndex(i);
    }
    enterInIndex(position);
  }

  void enterInIndex(std::size_t position) {
    const std::size_t mask = index_.size() - 1;
    std::size_t slot = entries_[position].hash & mask;
    while (index_[slot] != 0) slot = (slot + 1) & mask;
    index_[slot] = static_cast<std::uint32_t>(position + 1);
  }

  std::array<std::uint8_t, kSlots> slots_{};  // position plus one of the first entry with this hash modulo 64
  std::vector<Entry> entries_;
  std::vector<std::uint32_t> index_;
};

inline Value::Value(const Dictionary& members) : data_(std::make_shared<const Dictionary>(members)) {}
inline Value::Value(Dictionary&& members) : data_(std::make_shared<const Dictionary>(std::move(members))) {}

inline bool operator==(const Value& a, const Value& b) {
  if (a.data_.index() != b.data_.index()) return false;
  if (const Array* elements = a.array()) return *elements == *b.array();
  if (const Dictionary* members = a.dictionary()) return *members == *b.dictionary();
  if (const Object* object = a.object()) return object->equals(*b.object());
  return a.data_ == b.data_;
}

}  // namespace kzm

#endif
