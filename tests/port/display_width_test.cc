#include <gtest/gtest.h>

#include <KZMUtilities/display_width.h>

namespace kzm {
namespace {

TEST(DisplayWidth, CountsColumns) {
  struct Case {
    const char* why;
    std::string_view text;
    std::size_t columns;
  };
  const Case cases[] = {
      {"nothing", "", 0},
      {"letters", "eth0", 4},
      {"two bytes each", "äöü", 3},
      {"a combining mark", "e\u0301", 1},
      {"Arabic digits", "٤٢", 2},
      {"a bar", "█░", 2},
      {"ideographs", "网络", 4},
      {"Hangul", "네트", 4},
      {"Hangul in letters", "\u1112\u1161\u11ab", 2},
      {"Thai", "มิลลิบาร์", 6},
      {"Devanagari", "नेटवर्क", 5},
      {"Bengali", "মেমরি", 5},
      {"Tamil", "நினைவகம்", 7},
      {"Burmese", "မှတ်ဉာဏ်", 5},
      {"Khmer", "អង្គចងចាំ", 7},
      {"Lao", "ໜ່ວຍຄວາມຈຳ", 9},
      {"a joiner of Persian", "میلی\u200Cولت", 7},
      {"a soft hyphen", "a\u00ADb", 3},
      {"isolated", "\u2068eth0\u2069", 4},
      {"a pictograph", "\U0001F600", 2},
      {"an invisible mark", "1\u200F", 1},
      {"bytes that are broken", "\xff\xfe", 2},
      {"a character cut short", "a\xe2\x96", 2},
  };
  for (const Case& c : cases) EXPECT_EQ(displayWidth(c.text), c.columns) << c.why;
}

TEST(DisplayWidth, CutsBetweenCharacters) {
  struct Case {
    std::string_view text;
    std::size_t columns;
    std::string_view fitting;
  };
  const Case cases[] = {
      {"network", 3, "net"}, {"network", 9, "network"}, {"network", 0, ""},         {"网络", 3, "网"},
      {"网络", 1, ""},       {"äöü", 2, "äö"},          {"e\u0301a", 1, "e\u0301"},
  };
  for (const Case& c : cases) EXPECT_EQ(fitting(c.text, c.columns), c.fitting) << c.text;
}

TEST(DisplayWidth, KnowsTextThatRunsFromRightToLeft) {
  struct Case {
    const char* why;
    std::string_view text;
    bool has;
  };
  constexpr Case kCases[] = {
      {"nothing", "", false},
      {"Latin letters", "eth0", false},
      {"Arabic letters", "وحدة", true},
      {"Hebrew letters", "זיכרון", true},
      {"Arabic digits", "٤٢", true},
      {"only at the end", "eth0 ו", true},
      {"ideographs and Devanagari", "网络 नेटवर्क", false},
      {"bytes that are broken", "\xff\xfe", false},
  };
  for (const Case& c : kCases) EXPECT_EQ(hasRightToLeft(c.text), c.has) << c.why;
}

}  // namespace
}  // namespace kzm
