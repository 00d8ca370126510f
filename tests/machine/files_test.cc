#include "machine/files.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "tests/support/scratch_directory.h"

namespace kzm::machine {
namespace {

TEST(Files, WhatCannotBeReadIsEmptyAndNothingWaits) {
  const tests::ScratchDirectory scratch;
  ASSERT_EQ(mkfifo(scratch.path("pipe").c_str(), 0600), 0);
  ASSERT_EQ(symlink("loop", scratch.path("loop").c_str()), 0);
  for (const char* path : {"missing", "pipe", "loop", ""}) EXPECT_EQ(readText(scratch.path(path)), "") << path;
  EXPECT_EQ(readText("/dev/zero"), "");
  EXPECT_EQ(readText("/proc/self/mem"), "") << "a regular file that gives an error when read";
  EXPECT_TRUE(namesIn(scratch.path("missing")).empty());
  EXPECT_TRUE(namesIn(scratch.path("pipe")).empty());
}

TEST(Files, TextIsCutAtFourMebibytes) {
  const tests::ScratchDirectory scratch;
  EXPECT_EQ(readText(scratch.write("large", std::string(5000000, 'x'))).size(), 4194304U);
}

TEST(Files, NamesAreInOrderOfTheirNumbers) {
  const tests::ScratchDirectory scratch;
  for (const char* name : {"hwmon10", "hwmon2", ".hidden", "hwmon1"}) scratch.write(name, "");
  EXPECT_EQ(namesIn(scratch.path("")), (std::vector<std::string>{"hwmon1", "hwmon2", "hwmon10"}));
}

TEST(Files, NamesAreAtMost4096) {
  const tests::ScratchDirectory scratch;
  for (int number = 0; number < 4097; ++number) scratch.write("many/" + std::to_string(number), "");
  EXPECT_EQ(namesIn(scratch.path("many")).size(), 4096U);
}

TEST(Files, LinesAndFieldsSurviveAnyText) {
  EXPECT_TRUE(linesOf("").empty());
  EXPECT_EQ(linesOf("a\n\nb").size(), 3U);
  EXPECT_EQ(linesOf("a\n").size(), 1U);
  EXPECT_TRUE(fieldsOf(" \t ").empty());
  EXPECT_EQ(fieldsOf("  a\tbc \r\n"), (std::vector<std::string_view>{"a", "bc"}));
}

TEST(Files, CountsAreWholeNumbersAndNothingElse) {
  struct Case {
    const char* text;
    std::optional<std::uint64_t> count;
  };
  constexpr Case kCases[] = {
      {"0", 0},
      {"18446744073709551615", UINT64_MAX},
      {"18446744073709551616", {}},
      {"", {}},
      {"-1", {}},
      {"+1", {}},
      {"1.5", {}},
      {"12x", {}},
      {" 1", {}},
  };
  for (const Case& row : kCases) EXPECT_EQ(countIn(row.text), row.count) << row.text;
}

TEST(Files, NumbersAreFiniteAndAloneInTheirFile) {
  struct Case {
    const char* text;
    std::optional<double> number;
  };
  constexpr Case kCases[] = {
      {"42000\n", 42000.0}, {" -5 ", -5.0}, {"0.25\n", 0.25}, {"", {}},    {"\n", {}},  {"nan", {}},
      {"inf", {}},          {"1e999", {}},  {"0x10", {}},     {"1 2", {}}, {"1,5", {}}, {"N/A", {}},
  };
  for (const Case& row : kCases) EXPECT_EQ(numberIn(row.text), row.number) << row.text;
}

TEST(Files, ShownTextHoldsNothingThatSteersATerminal) {
  struct Case {
    const char* why;
    const char* text;
    const char* shown;
  };
  constexpr Case kCases[] = {
      {"plain", "Core 0", "Core 0"},
      {"spaces at the ends", "  a b \n", "a b"},
      {"escape sequence", "\x1b[2Ja\x07", "[2Ja"},
      {"C1 control in two bytes",
       "a\xc2\x9b"
       "31mb",
       "a31mb"},
      {"C1 control in one byte",
       "a\x9b"
       "31mb",
       "a31mb"},
      {"delete",
       "a\x7f"
       "b",
       "ab"},
      {"letters of any language stay", "W\u00e4rme \u6e29 \U0001f321", "W\u00e4rme \u6e29 \U0001f321"},
      {"not UTF-8", "a\xff\xc3(b", "a(b"},
      {"cut off", "a\xe2\x82", "a"},
      {"overlong", "\xc0\x9b\xe0\x80\x9b[", "["},
      {"surrogate", "a\xed\xa0\x80", "a"},
      {"beyond the last", "a\xf4\x90\x80\x80", "a"},
      {"direction override", "a\u202eb\u2066c\u200f", "abc"},
      {"line separator", "a\u2028b", "ab"},
      {"nothing left", "\x1b\x07 ", ""},
  };
  for (const Case& row : kCases) EXPECT_EQ(shownText(row.text), row.shown) << row.why;
}

// The first and the last code of each range, and their neighbors.
TEST(Files, ShownTextKeepsWhatIsBesideWhatItLeavesOut) {
  constexpr struct {
    const char* why;
    const char* bytes;
    bool isShown;
  } kCases[] = {
      {"U+0001", "\x01", false},
      {"U+001F", "\x1f", false},
      {"U+0020", " ", true},
      {"U+007E", "\x7e", true},
      {"U+007F", "\x7f", false},
      {"U+0080", "\xc2\x80", false},
      {"U+009F", "\xc2\x9f", false},
      {"U+00A0", "\xc2\xa0", true},
      {"U+061B", "\xd8\x9b", true},
      {"U+061C", "\xd8\x9c", false},
      {"U+061D", "\xd8\x9d", true},
      {"U+07FF", "\xdf\xbf", true},
      {"U+0800", "\xe0\xa0\x80", true},
      {"U+200D", "\xe2\x80\x8d", true},
      {"U+200E", "\xe2\x80\x8e", false},
      {"U+200F", "\xe2\x80\x8f", false},
      {"U+2010", "\xe2\x80\x90", true},
      {"U+2027", "\xe2\x80\xa7", true},
      {"U+2028", "\xe2\x80\xa8", false},
      {"U+202E", "\xe2\x80\xae", false},
      {"U+202F", "\xe2\x80\xaf", true},
      {"U+2065", "\xe2\x81\xa5", true},
      {"U+2066", "\xe2\x81\xa6", false},
      {"U+2069", "\xe2\x81\xa9", false},
      {"U+206A", "\xe2\x81\xaa", true},
      {"U+D7FF", "\xed\x9f\xbf", true},
      {"U+D800", "\xed\xa0\x80", false},
      {"U+DFFF", "\xed\xbf\xbf", false},
      {"U+E000", "\xee\x80\x80", true},
      {"U+FEFE", "\xef\xbb\xbe", true},
      {"U+FEFF", "\xef\xbb\xbf", false},
      {"U+FF00", "\xef\xbc\x80", true},
      {"U+FFFF", "\xef\xbf\xbf", true},
      {"U+10000", "\xf0\x90\x80\x80", true},
      {"U+10FFFF", "\xf4\x8f\xbf\xbf", true},
      {"U+110000", "\xf4\x90\x80\x80", false},
      {"a byte that follows none", "\x80", false},
      {"the last of those", "\xbf", false},
      {"two bytes for U+0041", "\xc1\x81", false},
      {"three bytes for U+07FF", "\xe0\x9f\xbf", false},
      {"four bytes for U+FFFF", "\xf0\x8f\xbf\xbf", false},
      {"a lead byte of none", "\xf5\x80\x80\x80", false},
      {"followed by a letter", "\xc2", false},
      {"a byte short of four", "\xf0\x90\x80", false},
  };
  for (const auto& row : kCases) {
    const std::string text = std::string("a") + row.bytes + "b";
    EXPECT_EQ(shownText(text), row.isShown ? text : "ab") << row.why;
  }
}

}  // namespace
}  // namespace kzm::machine
