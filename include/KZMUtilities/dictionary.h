// The string-keyed dictionary of Values: options come in and results go out as one.
//
// A Dictionary is an ordinary value: read one object from many threads, change it from one. Like value.h, this header
// needs no library: all of its code is here.
#ifndef KZMUTILITIES_DICTIONARY_H
#define KZMUTILITIES_DICTIONARY_H

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <KZMUtilities/key.h>
#include <KZMUtilities/value.h>

namespace kzm {

/// A string-keyed dictionary of Values, in the order in which keys were first set.
///
/// It is made for reading a handful of options many times: one byte, in the key's slot, says that a key is absent or
/// which entry has it.
class Dictionary {
 public:
  struct Entry {
    std::string key;
    Value value;
  };

  Dictionary() noexcept = default;
  Dictionary(std::initializer_list<Entry> entries) {
    nodes_.reserve(entries.size());
    for (const Entry& entry : entries) set(entry.key, entry.value);
  }

  /// The Value under the key, or null. A key is present also when its Value is null.
  [[nodiscard, gnu::always_inline]] const Value* find(const Key& key) const noexcept {
    const std::size_t place = placeOf(key);
    return place != 0 ? &nodes_[place - 1].value : nullptr;
  }

  [[nodiscard]] bool contains(const Key& key) const noexcept { return find(key) != nullptr; }

  /// Puts the Value, or what one is made of, under the key, in the place of the former one if there was one.
  template <class V>
  requires std::constructible_from<Value, V>
  void set(const Key& key, V&& value) {
    if (const std::size_t place = placeOf(key); place != 0) {
      nodes_[place - 1].value = Value(std::forward<V>(value));
      return;
    }
    nodes_.emplace_back(key, std::forward<V>(value));
    if (nodes_.size() > kMostInSlots && nodes_.size() > buckets_.size()) {
      linkAll();
    } else {
      link(nodes_.size());
    }
  }

  /// Makes room for the given number of entries in all.
  void reserve(std::size_t entries) { nodes_.reserve(entries); }

  /// Removes the key; an absent key changes nothing.
  void remove(const Key& key) {
    const auto isSame = [&key](const Node& node) { return node.key == key.text(); };
    if (std::erase_if(nodes_, isSame) > 0) linkAll();
  }

  [[nodiscard]] std::size_t size() const noexcept { return nodes_.size(); }
  [[nodiscard]] bool empty() const noexcept { return nodes_.empty(); }

  /// The entries, each a `const Entry&`.
  [[nodiscard]] auto begin() const noexcept { return nodes_.begin(); }
  [[nodiscard]] auto end() const noexcept { return nodes_.end(); }

  /// Equal keys with equal Values, in any order.
  [[nodiscard]] friend bool operator==(const Dictionary& a, const Dictionary& b) {
    return a.size() == b.size() && std::all_of(a.begin(), a.end(), [&b](const Entry& entry) {
             const Value* other = b.find(entry.key);
             return other != nullptr && *other == entry.value;
           });
  }

 private:
  // A place is a position plus one; 0 is none. The entries of one slot or bucket are a chain.
  struct Node : Entry {
    template <class V>
    Node(const Key& k, V&& v)
        : Entry{std::string(k.text()), Value(std::forward<V>(v))}, hash(k.hash()), slot(k.slot()) {}
    std::uint32_t hash;
    std::uint32_t next = 0;
    std::uint8_t slot;
  };
  static constexpr std::size_t kMostInSlots = 128;
  static constexpr std::uint8_t kInBuckets = 255;  // a slot of a large dictionary that has entries

  [[nodiscard, gnu::always_inline]] std::size_t placeOf(const Key& key) const noexcept {
    std::size_t place = slots_[key.slot()];
    if (place == kInBuckets) [[unlikely]] {
      place = buckets_[key.hash() & (buckets_.size() - 1)];
    } else if (key.isAloneInSlot()) {
      return place;
    }
    for (; place != 0; place = nodes_[place - 1].next) {
      const Node& node = nodes_[place - 1];
      if (node.hash == key.hash() && internal::sameText(node.key, key.text())) [[likely]]
        break;
    }
    return place;
  }

  // Makes the entry findable, as the first of its chain.
  void link(std::size_t place) {
    Node& node = nodes_[place - 1];
    std::uint8_t& slot = slots_[node.slot];
    if (buckets_.empty()) {
      node.next = std::exchange(slot, static_cast<std::uint8_t>(place));
    } else {
      slot = kInBuckets;
      node.next = std::exchange(buckets_[node.hash & (buckets_.size() - 1)], static_cast<std::uint32_t>(place));
    }
  }

  void linkAll() {
    slots_.fill(0);
    buckets_.assign(nodes_.size() > kMostInSlots ? std::bit_ceil(2 * nodes_.size()) : 0, 0);
    for (std::size_t place = 1; place <= nodes_.size(); ++place) link(place);
  }

  std::array<std::uint8_t, Key::kSlots> slots_{};
  std::vector<Node> nodes_;
  std::vector<std::uint32_t> buckets_;  // a power of two; only of a dictionary with more than kMostInSlots entries
};

inline Value::Value(const Dictionary& members) : data_(std::make_shared<const Dictionary>(members)) {}
inline Value::Value(Dictionary&& members) : data_(std::make_shared<const Dictionary>(std::move(members))) {}

inline bool operator==(const Value& a, const Value& b) {
  if (a.data_.index() != b.data_.index()) return false;
  if (const Array* elements = a.array()) return elements == b.array() || *elements == *b.array();
  if (const Dictionary* members = a.dictionary()) return members == b.dictionary() || *members == *b.dictionary();
  if (const Object* object = a.object()) return object->equals(*b.object());
  return a.data_ == b.data_;
}

}  // namespace kzm

#endif
