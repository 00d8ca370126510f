// Options whose names the compiler checks: a misspelled one does not build. They are a Dictionary, to be passed
// wherever one is.
//
// Like dictionary.h, this header needs no library: all of its code is here. Like any standard container, one object may
// be read from many threads, or changed by one.
#ifndef KZMUTILITIES_OPTIONS_H
#define KZMUTILITIES_OPTIONS_H

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <utility>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/key.h>
#include <KZMUtilities/value.h>

namespace kzm {

namespace internal {

// Of the names that the library looks up, these two are in its results and in decimals rules alone.
consteval bool isOptionName(std::string_view text) {
  if (text == "format" || text == "value") return false;
  for (const std::string_view name : kSlottedNames) {
    if (name == text) return true;
  }
  return false;
}

}  // namespace internal

/// The name of an option: a literal is one, if there is an option of that name.
class OptionName {
 public:
  consteval OptionName(const char* text) : key_(text) {
    if (!internal::isOptionName(text)) throw "no option has this name";
  }
  [[nodiscard]] constexpr const Key& key() const noexcept { return key_; }

 private:
  Key key_;
};

/// A Dictionary of options.
///
/// Example (English):
///   const Options options{{"space", true}, {"bandwidthformat", 2}};
///   KZMUtilitiesFormatBandwidth(options, 1500000.0)  // "11 Mb/s"
class Options : public Dictionary {
 public:
  struct Entry {
    OptionName name;
    Value value;
  };

  Options() noexcept = default;
  Options(std::initializer_list<Entry> entries) {
    for (const Entry& entry : entries) Dictionary::set(entry.name.key(), entry.value);
  }

  /// Puts the Value, or what one is made of, under the name.
  template <class V>
  void set(OptionName name, V&& value) {
    Dictionary::set(name.key(), std::forward<V>(value));
  }
};

/// Of numbers below a bound: how many fraction digits they have.
struct DecimalsRule {
  double below;
  std::int64_t decimals;
};

/// What the options "decimals-kb" and its like hold. The first rule whose bound is above the number counts; above
/// all bounds sizes and rates have no fraction digits, sensors those that they have without rules.
///
/// Example (English): three digits, whatever the size
///   const Options options{{"decimals-mb", decimalsRules({{10.0, 2}, {100.0, 1}})}};
///   KZMUtilitiesFormatMemory(options, 1.5e6)  // "1.43MB"
///   KZMUtilitiesFormatMemory(options, 15e6)   // "14.3MB"
///   KZMUtilitiesFormatMemory(options, 150e6)  // "143MB"
[[nodiscard]] inline Array decimalsRules(std::initializer_list<DecimalsRule> rules) {
  Array array;
  for (const DecimalsRule& rule : rules) {
    array.emplace_back(Dictionary{{"value", rule.below}, {"decimals", rule.decimals}});
  }
  return array;
}

}  // namespace kzm

#endif
