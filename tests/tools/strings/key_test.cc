// Keys and texts taken apart.
#include "tools/strings/key.h"

#include <gtest/gtest.h>
#include <string>

#include "tools/strings/utf8.h"

namespace kzm::strings {
namespace {

struct KeyCase {
  const char* key;
  const char* family;  // null: no key
  const char* pattern;
};
constexpr KeyCase kKeys[] = {
    {"Units.Network.%@ GB", "Network", "%@ GB"},
    {"Units.A.Off", "A", "Off"},
    {"Units.A.a.b", "A", "a.b"},
    {"Words.A.Not charging", "A", "Not charging"},
    {"Others.A.x", nullptr, nullptr},
    {"Units.A.", nullptr, nullptr},
    {"Units..x", nullptr, nullptr},
    {"Units.A1.x", nullptr, nullptr},
    {"Units.A", nullptr, nullptr},
    {"units.A.x", nullptr, nullptr},
    {"Off", nullptr, nullptr},
    {"", nullptr, nullptr},
};

TEST(Key, HasAPrefixAFamilyAndAPattern) {
  for (const KeyCase& test : kKeys) {
    const auto key = parseKey(test.key);
    ASSERT_EQ(key.has_value(), test.family != nullptr) << test.key;
    if (!key) continue;
    EXPECT_EQ(key->family, test.family) << test.key;
    EXPECT_EQ(key->pattern, test.pattern) << test.key;
  }
}

struct SlotCase {
  const char* text;
  int numbers;  // -1: a "%" that belongs to nothing
  int percents;
};
constexpr SlotCase kSlots[] = {
    {"Off", 0, 0},  {"%@ km", 1, 0}, {"%@%%", 1, 1}, {"%%%@", 1, 1}, {"%@\u066A", 1, 1}, {"\u066A%%", 0, 2},
    {"%@%@", 2, 0}, {"%@%", -1, 0},  {"%d", -1, 0},  {"%", -1, 0},   {"%%%", -1, 0},
};

TEST(Key, SlotsAreCounted) {
  for (const SlotCase& test : kSlots) {
    const auto slots = slotsOf(test.text);
    ASSERT_EQ(slots.has_value(), test.numbers >= 0) << test.text;
    if (!slots) continue;
    EXPECT_EQ(*slots, (Slots{test.numbers, test.percents})) << test.text;
  }
}

struct UnitCase {
  const char* text;
  const char* unit;
  bool isSpaced;
};
constexpr UnitCase kUnits[] = {
    {"%@ GB/s", "GB/s", true}, {"%@GB/s", "GB/s", false},  {"MB %@", "MB", true}, {"MB%@", "MB", false},
    {"%@%%", "%%", false},     {"%%\u00A0%@", "%%", true}, {"%%%@", "%%", false}, {"North East", "North East", false},
    {"%@ a b", "a b", true},   {"%@\u00A0%%", "%%", true}, {"%@", "", false},
};

TEST(Key, AUnitIsWhatIsBesideTheNumber) {
  for (const UnitCase& test : kUnits) {
    EXPECT_EQ(unitOf(test.text), test.unit) << test.text;
    EXPECT_EQ(isSpaced(test.text), test.isSpaced) << test.text;
  }
}

struct Utf8Case {
  const char* why;
  const char* text;
  std::size_t at;
};
constexpr std::size_t kNowhere = std::string_view::npos;
constexpr Utf8Case kUtf8[] = {
    {"ASCII", "abc", kNowhere},
    {"two, three and four bytes", "\u00E9\u20AC\U0001F600", kNowhere},
    {"the last character", "\xF4\x8F\xBF\xBF", kNowhere},
    {"beyond it", "a\xF4\x90\x80\x80", 1},
    {"the last before the surrogates", "\xED\x9F\xBF", kNowhere},
    {"a surrogate", "\xED\xA0\x80", 0},
    {"overlong", "\u00E9\xC1\x81", 2},
    {"a lone continuation", "ab\x80", 2},
    {"cut", "ab\xE2\x82", 2},
};

TEST(Utf8, TheFirstIllFormedSequenceIsFound) {
  for (const Utf8Case& test : kUtf8) EXPECT_EQ(illFormedAt(test.text), test.at) << test.why;
}

}  // namespace
}  // namespace kzm::strings
